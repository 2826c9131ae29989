#include "adapters/pulse/PulseAudioInput.h"

#include "adapters/pulse/PulseCapture.h"
#include "adapters/pulse/PulseConnection.h"

namespace tavi {

PulseAudioInputs::PulseAudioInputs(std::shared_ptr<PulseConnection> connection) : m_connection(std::move(connection)) {}

Result<std::unique_ptr<AudioInput>> PulseAudioInputs::open(AudioInputListener& listener) {
    return std::make_unique<PulseAudioInput>(m_connection, listener);
}

PulseAudioInput::PulseAudioInput(std::shared_ptr<PulseConnection> connection, AudioInputListener& listener)
    : m_connection(std::move(connection)), m_capture(std::make_shared<PulseCapture>(*m_connection, listener)) {
    m_connection->perform([capture = m_capture] { capture->open(); });
}

PulseAudioInput::~PulseAudioInput() {
    m_capture->silence();
    m_connection->perform([capture = std::move(m_capture)] { capture->close(); });
}

QString PulseAudioInput::deviceName() const {
    return m_capture->deviceName();
}

void PulseAudioInput::setCapturing(bool capturing) {
    if (std::exchange(m_isCapturing, capturing) != capturing) {
        m_connection->perform(
            [capture = m_capture, capturing, now = pa_rtclock_now()] { capture->setCapturing(capturing, now); });
    }
}

}  // namespace tavi
