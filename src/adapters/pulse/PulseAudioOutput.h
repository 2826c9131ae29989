#pragma once

#include <memory>

#include "platform/AudioOutput.h"

namespace tavi {

class PulseConnection;
class PulsePlayback;

/// Opens playback streams on PulseAudio, or on PipeWire speaking its protocol. Main thread.
class PulseAudioOutputs : public AudioOutputs {
public:
    explicit PulseAudioOutputs(std::shared_ptr<PulseConnection> connection);

    std::unique_ptr<AudioOutput> open(const AudioOutputFormat& format,
                                      std::shared_ptr<AudioOutputSource> source) override;

private:
    std::shared_ptr<PulseConnection> m_connection;
};

/// One playback stream: the other threads' end of a PulsePlayback.
class PulseAudioOutput : public AudioOutput {
public:
    PulseAudioOutput(std::shared_ptr<PulseConnection> connection, const AudioOutputFormat& format,
                     std::shared_ptr<AudioOutputSource> source);
    ~PulseAudioOutput() override;
    PulseAudioOutput(const PulseAudioOutput&) = delete;
    PulseAudioOutput& operator=(const PulseAudioOutput&) = delete;

    void wake() override;

private:
    std::shared_ptr<PulseConnection> m_connection;
    std::shared_ptr<PulsePlayback> m_playback;
};

}  // namespace tavi
