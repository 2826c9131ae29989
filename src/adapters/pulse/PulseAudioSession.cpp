#include "adapters/pulse/PulseAudioSession.h"

#include <semaphore>
#include <utility>

#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulseRoute.h"

namespace tavi {

namespace {

/// Less than a frame of the screen; a local server needs a few milliseconds.
constexpr std::chrono::milliseconds kAnswerLimit{14};
/// At the end of the program nobody looks at the screen.
constexpr std::chrono::milliseconds kLeaveLimit{200};

}  // namespace

PulseAudioSession::PulseAudioSession(std::shared_ptr<PulseConnection> connection)
    : m_connection(std::move(connection)), m_route(std::make_shared<PulseRoute>(*m_connection)) {}

PulseAudioSession::~PulseAudioSession() {
    if (m_isOverridden) {
        const auto done = std::make_shared<std::binary_semaphore>(0);
        m_connection->perform([route = m_route, done] { route->restore([done] { done->release(); }); });
        // The connection may end next, and what it was told last must have got through.
        static_cast<void>(done->try_acquire_for(kLeaveLimit));
    }
    m_connection->perform([route = std::move(m_route)] { route->forget(); });
}

void PulseAudioSession::requestRecordPermission(std::function<void(bool)> answer) {
    m_connection->connect([answer = std::move(answer)](PulseConnection::State state) {
        answer(state != PulseConnection::State::Refused);
    });
}

Result<void> PulseAudioSession::setCategory(Category category, CategoryOption) {
    m_category = category;
    if (category == Category::Playback && std::exchange(m_isOverridden, false)) {
        m_connection->perform([route = m_route] { route->restore(); });
    }
    return waitForServer();
}

Result<void> PulseAudioSession::waitForServer() {
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

std::vector<AudioSessionPort> PulseAudioSession::availableInputs() const {
    return m_connection->inputs().available;
}

AudioSessionPort PulseAudioSession::currentInput() const {
    return m_connection->inputs().current;
}

void PulseAudioSession::setPreferredInput(const QString& uid) {
    m_connection->perform([connection = m_connection.get(), name = uid.toUtf8()] { connection->preferSource(name); });
}

void PulseAudioSession::setInputsListener(std::function<void()> listener) {
    m_connection->setInputsListener(std::move(listener));
}

Result<QString> PulseAudioSession::currentRoute() const {
    const QString route = m_connection->route();
    return route.isEmpty() ? Result<QString>(tl::unexpected(pulseError(PA_ERR_CONNECTIONREFUSED))) : route;
}

QString PulseAudioSession::serverName() const {
    return m_connection->serverName();
}

Result<void> PulseAudioSession::overrideOutputAudioPort(PortOverride port) {
    Result<void> server = waitForServer();
    if (server) {
        m_isOverridden = true;
        m_connection->perform([route = m_route, port, category = m_category] {
            if (port == PortOverride::Speaker) {
                route->useSpeaker();
            } else if (category == Category::PlayAndRecord) {
                route->useReceiver();
            } else {
                route->restore();
            }
        });
    }
    return server;
}

}  // namespace tavi
