#include "adapters/ffmpeg/converting/FormatConverter.h"

#include <algorithm>
#include <cmath>

#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

/// Small enough to stay in the processor's nearest memory on its way through the steps.
constexpr std::size_t kChunkFrames = 2048;
constexpr std::uint32_t kMaximumClientChannels = 8;

bool isPlanar(const AudioStreamBasicDescription& format) {
    return (format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
}

bool isWholeRate(double rate) {
    return isSampleRate(rate) && rate == std::floor(rate);
}

}  // namespace

void FormatConverter::Planes::resize(int channels, std::size_t frames) {
    m_samples.resize(static_cast<std::size_t>(channels) * frames);
    m_planes.clear();
    for (std::size_t i = 0; i < static_cast<std::size_t>(channels); ++i) {
        m_planes.push_back(m_samples.data() + i * frames);
    }
}

std::optional<FormatConverter> FormatConverter::create(int channels, std::uint64_t channelMask, double rate,
                                                       const AudioStreamBasicDescription& client) {
    const auto encoding = PcmEncoding::of(client);
    const bool isRateKept = client.sampleRate == rate && rate >= 1;
    if (!encoding || client.channelsPerFrame < 1 || client.channelsPerFrame > kMaximumClientChannels || channels < 1 ||
        channels > kMaximumMixChannels || !(isRateKept || (isWholeRate(rate) && isWholeRate(client.sampleRate)))) {
        return std::nullopt;
    }
    FormatConverter converter;
    const int clientChannels = static_cast<int>(client.channelsPerFrame);
    const int narrow = std::min(channels, clientChannels);
    if (!isRateKept) {
        converter.m_rate = RateConverter::create(static_cast<int>(rate), static_cast<int>(client.sampleRate), narrow);
        if (!converter.m_rate) {
            return std::nullopt;
        }
    }
    converter.m_client = client;
    converter.m_encoding = *encoding;
    converter.m_narrow.emplace(channels, channelMask, narrow);
    converter.m_widen.emplace(narrow, channels == narrow ? channelMask : 0, clientChannels);
    converter.m_inputPlanes.resize(channels, kChunkFrames);
    converter.m_narrowPlanes.resize(narrow, kChunkFrames);
    converter.m_clientPlanes.resize(clientChannels, kChunkFrames);
    return converter;
}

bool FormatConverter::fits(const AudioBufferList& data, const AudioStreamBasicDescription& format) {
    return data.numberBuffers == (isPlanar(format) ? format.channelsPerFrame : 1);
}

std::int64_t FormatConverter::outputFrameFor(std::int64_t inputFrame) const {
    return m_rate ? m_rate->outputFrames(inputFrame) : inputFrame;
}

std::int64_t FormatConverter::inputFrameFor(std::int64_t outputFrame) const {
    return m_rate ? m_rate->inputFrameFor(outputFrame) : outputFrame;
}

std::int64_t FormatConverter::startAt(std::int64_t outputFrame) {
    m_isFinished = false;
    return m_rate ? m_rate->startAt(outputFrame) : outputFrame;
}

std::size_t FormatConverter::read(const Source& source, AudioBufferList& data, std::size_t frames) {
    const bool isDirect = isPlanar(m_client) && m_encoding == PcmEncoding{PcmEncoding::Kind::Float32, false};
    const std::size_t stride = isPlanar(m_client) ? 1 : m_client.channelsPerFrame;
    std::size_t done = 0;
    while (done < frames) {
        std::array<float*, kMaximumClientChannels> planes{};
        for (std::uint32_t i = 0; i < m_client.channelsPerFrame; ++i) {
            planes[i] = isDirect ? static_cast<float*>(data.buffers[i].data) + done : m_clientPlanes.data()[i];
        }
        const std::size_t count = readClient(source, planes.data(), std::min(kChunkFrames, frames - done));
        if (count == 0) {
            break;
        }
        for (std::uint32_t i = 0; !isDirect && i < m_client.channelsPerFrame; ++i) {
            const AudioBuffer& buffer = data.buffers[isPlanar(m_client) ? i : 0];
            auto* to = static_cast<std::uint8_t*>(buffer.data) + done * m_client.bytesPerFrame;
            packPcm(m_encoding, planes[i], to + (isPlanar(m_client) ? 0 : i * m_encoding.bytes()), stride, count);
        }
        done += count;
    }
    for (std::uint32_t i = 0; i < data.numberBuffers; ++i) {
        data.buffers[i].dataByteSize = static_cast<std::uint32_t>(done * m_client.bytesPerFrame);
    }
    return done;
}

std::size_t FormatConverter::readClient(const Source& source, float* const* planes, std::size_t frames) {
    // Channels that are only copied need no plane of their own.
    const bool isInPlace = m_widen->isIdentity() || m_widen->isCopy();
    const std::size_t count = readNarrow(source, isInPlace ? planes : m_narrowPlanes.data(), frames);
    if (m_widen->isIdentity()) {
        return count;
    }
    if (isInPlace) {
        for (std::uint32_t i = 1; i < m_client.channelsPerFrame; ++i) {
            std::copy_n(planes[0], count, planes[i]);
        }
    } else {
        m_widen->mix(m_narrowPlanes.data(), planes, count);
    }
    return count;
}

std::size_t FormatConverter::readNarrow(const Source& source, float* const* planes, std::size_t frames) {
    if (!m_rate) {
        return readInput(source, planes, frames);
    }
    for (;;) {
        const std::size_t count = m_rate->read(planes, frames);
        if (count > 0) {
            return count;
        }
        if (m_isFinished) {
            return 0;
        }
        // The planes hold nothing yet and have room for as many frames of the input.
        const std::size_t taken = readInput(source, planes, frames);
        if (taken > 0) {
            m_rate->write(planes, taken);
        } else {
            m_isFinished = true;
            m_rate->finish();
        }
    }
}

std::size_t FormatConverter::readInput(const Source& source, float* const* planes, std::size_t frames) {
    if (m_narrow->isIdentity()) {
        return source(planes, frames);
    }
    const std::size_t count = source(m_inputPlanes.data(), frames);
    m_narrow->mix(m_inputPlanes.data(), planes, count);
    return count;
}

}  // namespace tavi
