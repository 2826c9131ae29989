#pragma once

#include <QString>
#include <cstddef>
#include <memory>

#include "platform/Error.h"

namespace tavi {

/// The shape of captured sound: interleaved 32-bit floats, full scale -1 to 1, left before right.
struct AudioInputFormat {
    /// Frames a second: the device's own rate.
    int sampleRate = 0;
    /// 1 or 2.
    int channels = 0;
};

/// Receives captured sound. All calls come from one capture thread, one at a time; they must not block or allocate.
class AudioInputListener {
public:
    virtual ~AudioInputListener() = default;

    /// The device answered; comes once, before the first frames.
    virtual void audioInputDidOpen(const AudioInputFormat& format) = 0;
    /// The next frames. A null pointer stands for frames that the sound system lost.
    virtual void audioInputDidCapture(const float* interleaved, std::size_t frames) = 0;
    /// Everything captured before pause() was called has been delivered; nothing follows until resume().
    virtual void audioInputDidPause() = 0;
    /// The input is gone (server, device or permission); nothing follows.
    virtual void audioInputDidFail(const Error& error) = 0;
};

/// One capture stream from the default microphone. Calls come from the main thread and return at once.
///
/// Destroying it ends the calls to the listener before it returns.
class AudioInput {
public:
    virtual ~AudioInput() = default;

    /// Captures from now on.
    virtual void resume() = 0;
    /// Captures up to now; the listener is told when that much has been delivered. Never takes longer than half a
    /// second, even when the sound server has stopped answering. Every pause of a running input is answered once,
    /// before the frames of a later resume(); pausing a paused input does nothing.
    virtual void pause() = 0;
    /// What people call the device that is listened to now; empty as long as it is not known.
    virtual QString deviceName() const = 0;
};

/// Opens inputs.
class AudioInputs {
public:
    virtual ~AudioInputs() = default;

    /// Opens a paused input; the listener must outlive it. What fails later reaches the listener.
    virtual Result<std::unique_ptr<AudioInput>> open(AudioInputListener& listener) = 0;
};

}  // namespace tavi
