#pragma once

#include <memory>

#include "platform/AudioSession.h"

namespace tavi {

class PulseConnection;
class PulseRoute;

/// The sound session on PulseAudio, or on PipeWire speaking its protocol.
class PulseAudioSession : public AudioSession {
public:
    explicit PulseAudioSession(std::shared_ptr<PulseConnection> connection);
    /// Puts the output back to where it was.
    ~PulseAudioSession() override;
    PulseAudioSession(const PulseAudioSession&) = delete;
    PulseAudioSession& operator=(const PulseAudioSession&) = delete;

    /// Connects if need be. Refused only when the server does not let this program in.
    void requestRecordPermission(std::function<void(bool granted)> answer) override;
    /// Connects if need be and waits for the server for less than a frame of the screen. The server routes by itself;
    /// category Playback ends an override.
    Result<void> setCategory(Category category, CategoryOption option) override;
    /// Always succeeds: streams take and leave the devices by themselves.
    Result<void> setActive(bool active) override;
    bool isInputAvailable() const override;
    std::vector<AudioSessionPort> availableInputs() const override;
    AudioSessionPort currentInput() const override;
    void setPreferredInput(const QString& uid) override;
    void setInputsListener(std::function<void()> listener) override;
    Result<QString> currentRoute() const override;
    QString serverName() const override;
    Result<void> overrideOutputAudioPort(PortOverride port) override;

private:
    Result<void> waitForServer();

    std::shared_ptr<PulseConnection> m_connection;
    std::shared_ptr<PulseRoute> m_route;
    Category m_category = Category::Playback;
    bool m_isOverridden = false;
};

}  // namespace tavi
