// Levels and their histories: the part of EZAudioUtilities that runs for every block of sound. Built with -O3.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

namespace tavi {

namespace {

constexpr std::size_t kScrollHistoryCapacity = 8192;

// Sums run side by side, so that the compiler turns them into vectors, and none runs for more than some samples, so
// that rounding does not gather: a level from 22 roundings of squares is exact to 7e-7 whatever the samples are.
constexpr std::size_t kLanes = 32;
constexpr std::size_t kRounds = 16;

float sumOfBlock(const float* samples) {
    std::array<float, kLanes> sums{};
    for (std::size_t round = 0; round < kRounds; ++round) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            sums[lane] += samples[round * kLanes + lane] * samples[round * kLanes + lane];
        }
    }
    for (std::size_t width = kLanes / 2; width > 0; width /= 2) {
        for (std::size_t lane = 0; lane < width; ++lane) {
            sums[lane] += sums[lane + width];
        }
    }
    return sums[0];
}

std::int32_t windowBytes(const PlotHistoryInfo* historyInfo) {
    constexpr std::int32_t kSampleBytes = sizeof(float);
    return std::clamp(historyInfo->bufferSize, 0, std::numeric_limits<std::int32_t>::max() / kSampleBytes) *
           kSampleBytes;
}

}  // namespace

float EZAudioUtilities::MAP(float value, float leftMin, float leftMax, float rightMin, float rightMax) {
    return std::fma((value - leftMin) / (leftMax - leftMin), rightMax - rightMin, rightMin);
}

float EZAudioUtilities::RMS(const float* buffer, std::int32_t length) {
    double sum = 0.0;
    if (length > 0) {
        const auto count = static_cast<std::size_t>(length);
        constexpr std::size_t kBlock = kLanes * kRounds;
        std::size_t i = 0;
        for (; i + kBlock <= count; i += kBlock) {
            sum += static_cast<double>(sumOfBlock(buffer + i));
        }
        if (i < count) {
            std::array<float, kBlock> rest{};
            std::copy(buffer + i, buffer + count, rest.begin());
            sum += static_cast<double>(sumOfBlock(rest.data()));
        }
    }
    return std::sqrt(static_cast<float>(sum) / static_cast<float>(length));
}

int EZAudioUtilities::SGN(float value) {
    return (value > 0.0F ? 1 : 0) - (value < 0.0F ? 1 : 0);
}

void EZAudioUtilities::appendBufferAndShift(const float* buffer, std::int32_t bufferSize, float* scrollHistory,
                                            std::int32_t scrollHistorySize) {
    if (bufferSize <= 0 || scrollHistorySize <= 0) {
        return;
    }
    // Of a buffer longer than the history its end remains, as if it had come in pieces.
    const auto kept = static_cast<std::size_t>(std::max(scrollHistorySize - bufferSize, 0));
    const auto added = static_cast<std::size_t>(scrollHistorySize) - kept;
    std::memmove(scrollHistory, scrollHistory + added, kept * sizeof(float));
    std::memcpy(scrollHistory + kept, buffer + static_cast<std::size_t>(bufferSize) - added, added * sizeof(float));
}

void EZAudioUtilities::appendValue(float value, float* scrollHistory, std::int32_t scrollHistorySize) {
    appendBufferAndShift(&value, 1, scrollHistory, scrollHistorySize);
}

void EZAudioUtilities::updateScrollHistory(float** scrollHistory, std::int32_t length, std::int32_t* index,
                                           const float* buffer, std::int32_t bufferSize, bool isResolutionChanging) {
    if (*scrollHistory == nullptr) {
        *scrollHistory = static_cast<float*>(std::calloc(kScrollHistoryCapacity, sizeof(float)));
    }
    if (isResolutionChanging) {
        return;
    }
    const float level = RMS(buffer, bufferSize);
    if (*index < length) {
        (*scrollHistory)[(*index)++] = level;
    } else {
        appendValue(level, *scrollHistory, length);
    }
}

PlotHistoryInfo* EZAudioUtilities::historyInfoWithDefaultLength(std::int32_t defaultLength,
                                                                std::int32_t maximumLength) {
    auto* info = static_cast<PlotHistoryInfo*>(std::calloc(1, sizeof(PlotHistoryInfo)));
    info->bufferSize = defaultLength;
    info->buffer = static_cast<float*>(std::calloc(static_cast<std::size_t>(maximumLength), sizeof(float)));
    // As many bytes as the maximum has samples, not four times as many: enough for the usual window.
    circularBuffer(&info->circularBuffer, maximumLength);
    const std::size_t zeroBytes = static_cast<std::size_t>(maximumLength) * sizeof(float);
    std::int32_t space = 0;
    void* head = TPCircularBufferHead(&info->circularBuffer, &space);
    if (head != nullptr && zeroBytes <= static_cast<std::size_t>(space)) {
        std::memset(head, 0, zeroBytes);
        TPCircularBufferProduce(&info->circularBuffer, static_cast<std::int32_t>(zeroBytes));
    }
    return info;
}

void EZAudioUtilities::freeHistoryInfo(PlotHistoryInfo* historyInfo) {
    if (historyInfo == nullptr) {
        return;
    }
    std::free(historyInfo->buffer);
    freeCircularBuffer(&historyInfo->circularBuffer);
    std::free(historyInfo);
}

void EZAudioUtilities::appendBuffer(const float* buffer, std::uint32_t bufferSize, PlotHistoryInfo* historyInfo) {
    if (bufferSize == 0) {
        return;
    }
    TPCircularBuffer* ring = &historyInfo->circularBuffer;
    std::int32_t space = 0;
    TPCircularBufferHead(ring, &space);
    if (bufferSize <= static_cast<std::uint32_t>(space) / sizeof(float)) {
        TPCircularBufferProduceBytes(ring, buffer, static_cast<std::int32_t>(bufferSize * sizeof(float)));
    }
    const std::int32_t wanted = windowBytes(historyInfo);
    std::int32_t held = 0;
    const void* tail = TPCircularBufferTail(ring, &held);
    if (tail == nullptr) {
        return;
    }
    // On purpose before the excess is consumed: the window shows the samples as they stood after the call before.
    std::memcpy(historyInfo->buffer, tail, static_cast<std::size_t>(std::min(wanted, held)));
    if (held >= wanted) {
        TPCircularBufferConsume(ring, held - wanted);
    }
}

void EZAudioUtilities::appendBufferRMS(const float* buffer, std::uint32_t bufferSize, PlotHistoryInfo* historyInfo) {
    const float level = RMS(buffer, static_cast<std::int32_t>(bufferSize));
    const float sample = std::isnan(level) ? 0.0F : level;
    appendBuffer(&sample, 1, historyInfo);
}

void EZAudioUtilities::clearHistoryInfo(PlotHistoryInfo* historyInfo) {
    std::memset(historyInfo->buffer, 0, static_cast<std::size_t>(windowBytes(historyInfo)));
    TPCircularBufferClear(&historyInfo->circularBuffer);
}

void EZAudioUtilities::circularBuffer(TPCircularBuffer* circularBuffer, std::int32_t size) {
    TPCircularBufferInit(circularBuffer, size);
}

void EZAudioUtilities::appendDataToCircularBuffer(TPCircularBuffer* circularBuffer, const AudioBufferList* bufferList) {
    const AudioBuffer& first = bufferList->buffers[0];
    std::int32_t space = 0;
    TPCircularBufferHead(circularBuffer, &space);
    if (bufferList->numberBuffers > 0 && first.dataByteSize <= static_cast<std::uint32_t>(space)) {
        TPCircularBufferProduceBytes(circularBuffer, first.data, static_cast<std::int32_t>(first.dataByteSize));
    }
}

void EZAudioUtilities::freeCircularBuffer(TPCircularBuffer* circularBuffer) {
    TPCircularBufferClear(circularBuffer);
    TPCircularBufferCleanup(circularBuffer);
}

}  // namespace tavi
