#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <semaphore>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"
#include "platform/AudioInput.h"

namespace tavi {

/// What lies between the capture thread and the encoder thread: sound, levels, the places where pauses were cut out,
/// and how the input ended. One producer (the capture thread), one consumer of sound (the encoder thread), one consumer
/// of levels (the main thread); no locks.
class CaptureBuffer : public AudioInputListener {
public:
    /// Sum of the squares of each channel's samples, how many frames it was taken over, and the largest of them.
    struct Level {
        std::array<double, 2> sumOfSquares{};
        std::int64_t frames = 0;
        double peak = 0.0;
    };
    /// Sound that waits to be encoded, contiguous and the consumer's to change.
    struct Waiting {
        float* interleaved = nullptr;
        std::size_t frames = 0;
    };

    /// The encoder keeps up to so many seconds of sound to itself.
    explicit CaptureBuffer(double secondsHeld);
    ~CaptureBuffer() override;
    CaptureBuffer(const CaptureBuffer&) = delete;
    CaptureBuffer& operator=(const CaptureBuffer&) = delete;

    // Capture thread.
    void audioInputDidOpen(const AudioInputFormat& format) override;
    void audioInputDidCapture(const float* interleaved, std::size_t frames) override;
    void audioInputDidPause() override;
    void audioInputDidFail(const Error& error) override;

    // Main thread.
    /// Goes before every pause of a running input.
    void willPause() { ++m_pausesAsked; }
    /// Asks for the end: the input counts as finished once it has answered every pause.
    void requestEnd();
    /// Waits for the end that was asked for, but no longer than that many seconds; whether it came.
    bool waitForEnd(double seconds);
    /// The input is finished with this error, or with none, unless it has ended before. Any thread.
    void end(const std::optional<Error>& error);
    /// Levels of what arrived since the last call.
    Level takeLevel();
    /// Ends the encoder thread's wait. Any thread.
    void wake() { m_wake.release(); }
    std::int64_t framesCaptured() const { return m_framesCaptured.load(std::memory_order_relaxed); }

    // Encoder thread.
    /// Sleeps until there is sound to write: the first of it, that of 0.3 s, then of every 0.4 s, more often where the
    /// encoder holds much, and at a pause; or until the end, or wake().
    void wait() { m_wake.acquire(); }
    /// Whether nothing more will come. What waits after this has been true is all there is.
    bool isEnded() const { return m_ended.load(std::memory_order_acquire); }
    /// Why the input ended by itself; to be read once it has ended.
    const std::optional<Error>& error() const { return m_error; }
    /// The input's format once it is known; rate 0 before.
    AudioInputFormat format() const;
    Waiting waiting();
    void consume(std::size_t frames);
    /// The next place, in frames from the start, where a pause was cut out; each once, before the sound that follows
    /// it.
    std::optional<std::int64_t> takeSeam();
    /// Frames that found no room or that the sound system lost, so far.
    std::int64_t framesLost() const { return m_framesLost.load(std::memory_order_relaxed); }

private:
    std::size_t bytesPerFrame() const { return sizeof(float) * static_cast<std::size_t>(m_format.channels); }

    const double m_secondsWaiting;
    AudioInputFormat m_format;
    std::atomic<bool> m_isOpen = false;
    TPCircularBuffer m_sound;
    TPCircularBuffer m_levels;
    TPCircularBuffer m_seams;
    std::int64_t m_lastSeam = 0;
    /// The consumer is woken before more frames than these have been captured. Capture thread.
    std::int64_t m_wakeBefore = 0;
    std::atomic<std::int64_t> m_framesCaptured = 0;
    std::atomic<std::int64_t> m_framesLost = 0;
    std::optional<Error> m_error;
    int m_pausesAsked = 0;
    std::atomic<int> m_pausesAnswered = 0;
    /// How many answers make the end; negative while no end is asked for.
    std::atomic<int> m_endAfterPauses = -1;
    std::atomic<bool> m_isEndTaken = false;
    std::atomic<bool> m_ended = false;
    std::counting_semaphore<> m_wake{0};
    std::counting_semaphore<> m_endSignal{0};
};

}  // namespace tavi
