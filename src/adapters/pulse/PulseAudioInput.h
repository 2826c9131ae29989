#pragma once

#include <memory>

#include "platform/AudioInput.h"

namespace tavi {

class PulseCapture;
class PulseConnection;

/// Opens capture streams on PulseAudio, or on PipeWire speaking its protocol. Main thread.
class PulseAudioInputs : public AudioInputs {
public:
    explicit PulseAudioInputs(std::shared_ptr<PulseConnection> connection);

    /// Never fails at once; the listener hears when there is no server or no microphone.
    Result<std::unique_ptr<AudioInput>> open(AudioInputListener& listener) override;

private:
    std::shared_ptr<PulseConnection> m_connection;
};

/// One capture stream: the main thread's end of a PulseCapture.
///
/// Each pause() of a running input is answered once, also when resume() follows at once; then what comes in between is
/// left out all the same. Repeating resume() or pause() changes nothing.
class PulseAudioInput : public AudioInput {
public:
    PulseAudioInput(std::shared_ptr<PulseConnection> connection, AudioInputListener& listener);
    ~PulseAudioInput() override;
    PulseAudioInput(const PulseAudioInput&) = delete;
    PulseAudioInput& operator=(const PulseAudioInput&) = delete;

    void resume() override { setCapturing(true); }
    void pause() override { setCapturing(false); }
    QString deviceName() const override;

private:
    void setCapturing(bool capturing);

    std::shared_ptr<PulseConnection> m_connection;
    std::shared_ptr<PulseCapture> m_capture;
    bool m_isCapturing = false;
};

}  // namespace tavi
