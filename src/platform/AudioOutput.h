#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/Error.h"

namespace tavi {

/// The shape of sound that is played: interleaved 32-bit floats, full scale -1 to 1, left before right.
struct AudioOutputFormat {
    /// Frames a second.
    int sampleRate = 0;
    /// 1 or 2.
    int channels = 0;
};

/// What an output has been given to play: an endless row of frames, numbered from 0. For the playback thread.
class AudioOutputStream {
public:
    /// Where the stream stood at a moment.
    struct Timing {
        /// Nanoseconds of the monotonic clock.
        std::int64_t time = 0;
        /// The frame that was heard then; may lie before 0 at the beginning.
        std::int64_t heard = 0;
        /// The first frame that can still be replaced before it is heard.
        std::int64_t replaceable = 0;
        /// Whether frames follow one another: it is running and has something to play.
        bool isMoving = false;
    };

    virtual ~AudioOutputStream() = default;

    /// As it was known last.
    virtual Timing timing() const = 0;
    /// Finds the timing out; audioOutputDidUpdateTiming() follows.
    virtual void updateTiming() = 0;
    /// The number of the frame behind the last that was written.
    virtual std::int64_t written() const = 0;
    /// How many more frames the output would like to have.
    virtual std::size_t wanted() const = 0;
    /// Writes frames from at on, which is no higher than written(). Frames written before are replaced; the last of
    /// them must be among them.
    virtual void write(std::int64_t at, const float* interleaved, std::size_t frames) = 0;
    /// A stream that does not run keeps its frames, and makes no wake-ups.
    virtual void setRunning(bool running) = 0;
    /// Calls audioOutputDidReach() once that frame is heard; only the last frame asked for counts.
    virtual void callAt(std::int64_t frame) = 0;
};

/// Where an output gets its sound from. All calls come from one playback thread, one at a time; they must not block or
/// allocate.
class AudioOutputSource {
public:
    virtual ~AudioOutputSource() = default;

    /// The stream is there; it does not run yet. It lasts until it fails or closes.
    virtual void audioOutputDidOpen(AudioOutputStream& stream) = 0;
    /// The stream has room for more frames.
    virtual void audioOutputWantsFrames(AudioOutputStream& stream) = 0;
    virtual void audioOutputDidUpdateTiming(AudioOutputStream& stream) = 0;
    virtual void audioOutputDidReach(AudioOutputStream& stream) = 0;
    /// Somebody called wake().
    virtual void audioOutputDidWake() = 0;
    /// The stream is about to go because nobody wants it any more; its timing is new. What is in it is still played up
    /// to the frame that this returns, so that the sound can be faded out.
    virtual std::int64_t audioOutputWillClose(AudioOutputStream& stream) = 0;
    /// There is no stream, or no longer (server or device); nothing follows.
    virtual void audioOutputDidFail(const Error& error) = 0;
};

/// One playback stream to the default device. Dropping it closes it; that takes no time of the caller's.
class AudioOutput {
public:
    virtual ~AudioOutput() = default;

    /// Has audioOutputDidWake() called on the playback thread. Any thread.
    virtual void wake() = 0;
};

/// Opens outputs.
class AudioOutputs {
public:
    virtual ~AudioOutputs() = default;

    /// The source is kept until the output has closed. What fails reaches the source. Main thread; returns at once.
    virtual std::unique_ptr<AudioOutput> open(const AudioOutputFormat& format,
                                              std::shared_ptr<AudioOutputSource> source) = 0;
};

}  // namespace tavi
