#include "adapters/recorder/CaptureBuffer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>

namespace tavi {

namespace {

/// How long the encoder or the disk may stall before sound is lost.
constexpr int kSecondsBuffered = 10;
/// Seldom wake-ups save power, but what waits is lost by a kill: with what the encoder holds no more than this.
constexpr double kSecondsAtStake = 0.49;
constexpr double kLongestWait = 0.4;
constexpr double kShortestWait = 0.1;
constexpr double kFirstWait = 0.3;
constexpr std::int32_t kSmallRingBytes = 4096;

}  // namespace

CaptureBuffer::CaptureBuffer(double secondsHeld)
    : m_secondsWaiting(std::clamp(kSecondsAtStake - secondsHeld, kShortestWait, kLongestWait)) {}

CaptureBuffer::~CaptureBuffer() {
    TPCircularBufferCleanup(&m_sound);
    TPCircularBufferCleanup(&m_levels);
    TPCircularBufferCleanup(&m_seams);
}

void CaptureBuffer::audioInputDidOpen(const AudioInputFormat& format) {
    m_format = format;
    const auto bytes = static_cast<std::int32_t>(bytesPerFrame()) * format.sampleRate * kSecondsBuffered;
    if (!TPCircularBufferInit(&m_sound, bytes) || !TPCircularBufferInit(&m_levels, kSmallRingBytes) ||
        !TPCircularBufferInit(&m_seams, kSmallRingBytes)) {
        audioInputDidFail(Error{QStringLiteral("There is not enough memory to record.")});
        return;
    }
    m_isOpen.store(true, std::memory_order_release);
}

void CaptureBuffer::audioInputDidCapture(const float* interleaved, std::size_t frames) {
    if (!m_isOpen.load(std::memory_order_relaxed) || m_ended.load(std::memory_order_relaxed)) {
        return;
    }
    std::int32_t space = 0;
    void* head = TPCircularBufferHead(&m_sound, &space);
    const std::size_t bytes = frames * bytesPerFrame();
    if (static_cast<std::size_t>(space) < bytes) {
        m_framesLost.fetch_add(static_cast<std::int64_t>(frames), std::memory_order_relaxed);
        wake();
        return;
    }
    Level level;
    level.frames = static_cast<std::int64_t>(frames);
    if (interleaved == nullptr) {
        // Silence of the same length keeps what follows in its place.
        std::memset(head, 0, bytes);
        m_framesLost.fetch_add(static_cast<std::int64_t>(frames), std::memory_order_relaxed);
    } else {
        std::memcpy(head, interleaved, bytes);
        const auto channels = static_cast<std::size_t>(m_format.channels);
        for (std::size_t i = 0; i < frames * channels; ++i) {
            const double sample = std::abs(static_cast<double>(interleaved[i]));
            level.sumOfSquares[i % channels] += sample * sample;
            level.peak = std::max(level.peak, sample);
        }
    }
    TPCircularBufferProduce(&m_sound, static_cast<std::int32_t>(bytes));
    // A full ring of levels means that nobody reads them.
    TPCircularBufferProduceBytes(&m_levels, &level, sizeof(level));
    const auto count = static_cast<std::int64_t>(frames);
    const std::int64_t captured = m_framesCaptured.fetch_add(count, std::memory_order_relaxed) + count;
    // The next fragment is likely to be as long as this one.
    if (captured + count > m_wakeBefore) {
        const auto framesOf = [this](double seconds) {
            return static_cast<std::int64_t>(m_format.sampleRate * seconds);
        };
        const std::int64_t first = framesOf(std::min(kFirstWait, m_secondsWaiting));
        m_wakeBefore = captured < first ? first : captured + framesOf(m_secondsWaiting);
        wake();
    }
}

void CaptureBuffer::audioInputDidPause() {
    const std::int64_t seam = framesCaptured();
    if (seam != m_lastSeam && TPCircularBufferProduceBytes(&m_seams, &seam, sizeof(seam))) {
        m_lastSeam = seam;
        wake();
    }
    // Either this sees the request, or requestEnd() sees the answer.
    const int answered = m_pausesAnswered.fetch_add(1) + 1;
    const int last = m_endAfterPauses.load();
    if (last >= 0 && answered >= last) {
        end(std::nullopt);
    }
}

void CaptureBuffer::audioInputDidFail(const Error& error) {
    end(error);
}

void CaptureBuffer::requestEnd() {
    m_endAfterPauses.store(m_pausesAsked);
    if (m_pausesAnswered.load() >= m_pausesAsked) {
        end(std::nullopt);
    }
}

void CaptureBuffer::end(const std::optional<Error>& error) {
    // A stop and a failing input may meet: whoever comes first says how it ended, and then that it has.
    if (m_isEndTaken.exchange(true)) {
        return;
    }
    m_error = error;
    m_ended.store(true, std::memory_order_release);
    wake();
    m_endSignal.release();
}

bool CaptureBuffer::waitForEnd(double seconds) {
    return isEnded() || m_endSignal.try_acquire_for(std::chrono::duration<double>(seconds));
}

CaptureBuffer::Level CaptureBuffer::takeLevel() {
    Level sum;
    if (!m_isOpen.load(std::memory_order_acquire)) {
        return sum;
    }
    std::int32_t bytes = 0;
    const auto* levels = static_cast<const Level*>(TPCircularBufferTail(&m_levels, &bytes));
    // Records stay aligned: they are 32 bytes, and the mirror carries one over the end of the ring.
    const auto whole = bytes / static_cast<std::int32_t>(sizeof(Level));
    for (std::int32_t i = 0; i < whole; ++i) {
        sum.sumOfSquares[0] += levels[i].sumOfSquares[0];
        sum.sumOfSquares[1] += levels[i].sumOfSquares[1];
        sum.frames += levels[i].frames;
        sum.peak = std::max(sum.peak, levels[i].peak);
    }
    if (whole > 0) {
        TPCircularBufferConsume(&m_levels, whole * static_cast<std::int32_t>(sizeof(Level)));
    }
    return sum;
}

AudioInputFormat CaptureBuffer::format() const {
    return m_isOpen.load(std::memory_order_acquire) ? m_format : AudioInputFormat{};
}

CaptureBuffer::Waiting CaptureBuffer::waiting() {
    if (!m_isOpen.load(std::memory_order_acquire)) {
        return {};
    }
    std::int32_t bytes = 0;
    auto* tail = static_cast<float*>(TPCircularBufferTail(&m_sound, &bytes));
    return {tail, static_cast<std::size_t>(bytes) / bytesPerFrame()};
}

void CaptureBuffer::consume(std::size_t frames) {
    if (frames > 0) {
        TPCircularBufferConsume(&m_sound, static_cast<std::int32_t>(frames * bytesPerFrame()));
    }
}

std::optional<std::int64_t> CaptureBuffer::takeSeam() {
    std::int32_t bytes = 0;
    const void* tail = m_isOpen.load(std::memory_order_acquire) ? TPCircularBufferTail(&m_seams, &bytes) : nullptr;
    if (tail == nullptr) {
        return std::nullopt;
    }
    std::int64_t seam = 0;
    std::memcpy(&seam, tail, sizeof(seam));
    TPCircularBufferConsume(&m_seams, sizeof(seam));
    return seam;
}

}  // namespace tavi
