#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <semaphore>

#include "API/AudioTrimmerController/EZAudio/TPCircularBuffer/TPCircularBuffer.h"
#include "platform/AudioOutput.h"

namespace tavi {

/// Something that happens at a place in the buffer.
struct PlaybackMark {
    enum class Kind : std::int32_t {
        /// Here begins sound that is to be heard at once, in place of everything before it.
        Jump,
        /// Here begins sound that goes on, at another rate, from the same time in the recording.
        Continue,
        /// The recording ends before this frame.
        End,
        /// No more of the recording can be read.
        Failure,
    };

    Kind kind = Kind::Jump;
    /// The number of the frame in the buffer's row.
    std::int64_t frame = 0;
    /// The place in the recording, in frames, and how far each frame from here on leads.
    double media = 0.0;
    double mediaPerFrame = 1.0;
    /// Counts the jumps that were asked for.
    std::uint64_t jump = 0;
    /// How many frames are there when this is.
    std::int64_t published = 0;
};

/// What lies between the decoding thread and the playback thread: sound decoded ahead, and marks in it. One producer
/// (the decoding thread), one consumer (the playback thread), no locks. Frames are numbered from 0.
class PlaybackBuffer {
public:
    explicit PlaybackBuffer(const AudioOutputFormat& format);
    ~PlaybackBuffer();
    PlaybackBuffer(const PlaybackBuffer&) = delete;
    PlaybackBuffer& operator=(const PlaybackBuffer&) = delete;

    const AudioOutputFormat& format() const { return m_format; }
    bool isValid() const { return m_sound.buffer != nullptr && m_marks.buffer != nullptr; }

    // Decoding thread.
    /// Where the frames behind the prepared ones go, and how many fit.
    float* room(std::size_t& frames);
    /// That many more frames are written, and not to be seen yet.
    void prepare(std::size_t frames) { m_prepared += static_cast<std::int64_t>(frames); }
    void forgetPrepared() { m_prepared = 0; }
    /// The number behind the prepared frames.
    std::int64_t preparedEnd() const { return m_produced + m_prepared; }
    /// The number behind the published frames.
    std::int64_t producedEnd() const { return m_produced; }
    /// Frames that wait to be heard.
    std::int64_t fill() const;
    bool hasRoomForMarks() const;
    /// To be seen with what is published next.
    void mark(PlaybackMark mark);
    /// Lets the consumer see the prepared frames and the marks.
    void publish();
    /// Whether the consumer has run out of frames since the last call.
    bool takeStarving() { return m_isStarving.exchange(false); }
    /// Sleeps until the consumer, or a command, wakes it.
    void wait() { m_wake.acquire(); }

    // Any thread.
    void wakeProducer() { m_wake.release(); }

    // Playback thread.
    /// The number behind the frames that can be had.
    std::int64_t publishedEnd() const { return m_published.load(std::memory_order_acquire); }
    /// The next mark that belongs to the frames before that number.
    std::optional<PlaybackMark> takeMark(std::int64_t publishedEnd);
    /// Frames from that number on, which is published and not consumed.
    const float* framesAt(std::int64_t frame);
    /// The number of the first frame that is not consumed.
    std::int64_t begin() const { return m_consumed; }
    /// Asks to be woken when frames come.
    void starve() { m_isStarving = true; }
    /// Nothing before that number is needed any more.
    void consumeTo(std::int64_t frame);

    /// Sound decoded ahead at most, and what is left when more is decoded. Frames.
    std::int64_t highWater() const { return std::int64_t{5} * m_format.sampleRate / 2; }
    std::int64_t lowWater() const { return std::int64_t{3} * m_format.sampleRate / 2; }

private:
    std::size_t bytesPerFrame() const { return sizeof(float) * static_cast<std::size_t>(m_format.channels); }

    const AudioOutputFormat m_format;
    TPCircularBuffer m_sound;
    TPCircularBuffer m_marks;
    std::int64_t m_prepared = 0;
    std::int64_t m_produced = 0;
    std::int64_t m_consumed = 0;
    std::atomic<std::int64_t> m_published = 0;
    std::atomic<bool> m_isStarving = false;
    std::counting_semaphore<> m_wake{0};
};

}  // namespace tavi
