#include "adapters/pulse/PulseAudioSession.h"

#include "adapters/pulse/PulseConnection.h"

namespace tavi {

namespace {

/// Less than a frame of the screen; a local server needs a few milliseconds.
constexpr std::chrono::milliseconds kAnswerLimit{14};

}  // namespace

PulseAudioSession::PulseAudioSession(std::shared_ptr<PulseConnection> connection)
    : m_connection(std::move(connection)) {}

void PulseAudioSession::requestRecordPermission(std::function<void(bool)> answer) {
    m_connection->connect([answer = std::move(answer)](PulseConnection::State state) {
        answer(state != PulseConnection::State::Refused);
    });
}

Result<void> PulseAudioSession::setCategory(Category, CategoryOption) {
    m_connection->connect();
    switch (m_connection->waitForState(kAnswerLimit)) {
        case PulseConnection::State::Ready:
            return {};
        case PulseConnection::State::Refused:
            return tl::unexpected<Error>(pulseError(PA_ERR_ACCESS));
        case PulseConnection::State::Connecting:
            return tl::unexpected<Error>(pulseError(PA_ERR_TIMEOUT));
        case PulseConnection::State::Unconnected:
            break;
    }
    return tl::unexpected<Error>(pulseError(PA_ERR_CONNECTIONREFUSED));
}

Result<void> PulseAudioSession::setActive(bool) {
    return {};
}

bool PulseAudioSession::isInputAvailable() const {
    return m_connection->isInputAvailable();
}

Result<QString> PulseAudioSession::currentRoute() const {
    return tl::unexpected(pulseError(PA_ERR_CONNECTIONREFUSED));
}

Result<void> PulseAudioSession::overrideOutputAudioPort(PortOverride) {
    return {};
}

}  // namespace tavi
