#include "adapters/pulse/PulseAudioOutput.h"

#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulsePlayback.h"

namespace tavi {

PulseAudioOutputs::PulseAudioOutputs(std::shared_ptr<PulseConnection> connection)
    : m_connection(std::move(connection)) {}

std::unique_ptr<AudioOutput> PulseAudioOutputs::open(const AudioOutputFormat& format,
                                                     std::shared_ptr<AudioOutputSource> source) {
    return std::make_unique<PulseAudioOutput>(m_connection, format, std::move(source));
}

PulseAudioOutput::PulseAudioOutput(std::shared_ptr<PulseConnection> connection, const AudioOutputFormat& format,
                                   std::shared_ptr<AudioOutputSource> source)
    : m_connection(std::move(connection)),
      m_playback(std::make_shared<PulsePlayback>(*m_connection, format, std::move(source))) {
    m_connection->perform([playback = m_playback] { playback->open(); });
}

PulseAudioOutput::~PulseAudioOutput() {
    m_connection->perform([playback = std::move(m_playback)] { playback->close(); });
}

void PulseAudioOutput::wake() {
    m_connection->perform([playback = m_playback] { playback->wake(); });
}

}  // namespace tavi
