#include "adapters/pulse/PulseConnection.h"

#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QObject>
#include <algorithm>
#include <csignal>
#include <utility>

namespace tavi {

namespace {

/// A server that has not answered by then counts as none.
constexpr pa_usec_t kConnectLimit = 3 * PA_USEC_PER_SEC;

PulseProplistHandle applicationProperties() {
    PulseProplistHandle properties(pa_proplist_new());
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_NAME, "Tavi");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ID, "com.quillfen.voicerecorder");
    pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ICON_NAME, "com.quillfen.voicerecorder");
    pa_proplist_sets(properties.get(), PA_PROP_MEDIA_ROLE, "production");
    return properties;
}

PulseSource described(const pa_source_info& info) {
    const bool isUnplugged =
        info.n_ports > 0 && std::all_of(info.ports, info.ports + info.n_ports,
                                        [](const auto* port) { return port->available == PA_PORT_AVAILABLE_NO; });
    return {QByteArray(info.name), info.index, info.monitor_of_sink != PA_INVALID_INDEX, isUnplugged,
            QString::fromUtf8(info.description)};
}

PulsePortKind kindOf(const pa_sink_port_info& port) {
    switch (port.type) {
        case PA_DEVICE_PORT_TYPE_SPEAKER:
            return PulsePortKind::Speaker;
        case PA_DEVICE_PORT_TYPE_HEADPHONES:
            return PulsePortKind::Headphones;
        case PA_DEVICE_PORT_TYPE_HEADSET:
            return PulsePortKind::Headset;
        case PA_DEVICE_PORT_TYPE_HANDSET:
        case PA_DEVICE_PORT_TYPE_EARPIECE:
            return PulsePortKind::Earpiece;
        default:
            return pulsePortKindFromWords(port.name);
    }
}

PulseSink described(const pa_sink_info& info) {
    PulseSink sink;
    sink.name = info.name;
    sink.index = info.index;
    sink.card = info.card;
    sink.description = QString::fromUtf8(info.description);
    sink.activePort = info.active_port != nullptr ? info.active_port->name : "";
    // Null when there is none.
    sink.kind = pulsePortKindFromWords(pa_proplist_gets(info.proplist, PA_PROP_DEVICE_FORM_FACTOR));
    for (std::uint32_t i = 0; i < info.n_ports; ++i) {
        const pa_sink_port_info& port = *info.ports[i];
        const auto availability = port.available == PA_PORT_AVAILABLE_NO    ? PulsePort::Availability::No
                                  : port.available == PA_PORT_AVAILABLE_YES ? PulsePort::Availability::Yes
                                                                            : PulsePort::Availability::Unknown;
        sink.ports.push_back({port.name, kindOf(port), availability, QString::fromUtf8(port.description)});
    }
    return sink;
}

}  // namespace

Error pulseError(int code) {
    switch (code) {
        case PA_ERR_ACCESS:
        case PA_ERR_AUTHKEY:
            return {qtTrId("error_sound_server_refused")};
        case PA_ERR_CONNECTIONREFUSED:
        case PA_ERR_INVALIDSERVER:
            return {qtTrId("error_sound_server_missing")};
        case PA_ERR_NOENTITY:
            return {qtTrId("error_microphone_missing")};
        case PA_ERR_KILLED:
            return {qtTrId("error_microphone_disconnected")};
        case PA_ERR_TIMEOUT:
            return {qtTrId("error_sound_server_silent")};
        default:
            return {qtTrId("error_sound_server_stopped")};
    }
}

PulseConnection::PulseConnection()
    : m_chosenSource(qgetenv("PULSE_SOURCE")),
      m_chosenSink(qgetenv("PULSE_SINK")),
      m_wakeDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_loop(pa_mainloop_new()) {
    if (m_wakeDescriptor < 0 || !m_loop) {
        qFatal("No descriptors are left for the connection to the sound server.");
    }
    m_api = pa_mainloop_get_api(m_loop.get());
    m_limit.emplace(m_api);
    // Signals are for the main thread; a thread inherits what is blocked.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    m_thread = std::thread([this] { run(); });
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

PulseConnection::~PulseConnection() {
    perform([this] { m_api->quit(m_api, 0); });
    m_thread.join();
    close(m_wakeDescriptor);
}

void PulseConnection::connect(std::function<void(State)> settled) {
    bool isFirst = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_state != State::Ready && m_state != State::Connecting) {
            m_state = State::Connecting;
            isFirst = true;
        }
    }
    perform([this, isFirst, settled = std::move(settled)]() mutable {
        if (settled) {
            m_waiters.push_back(std::move(settled));
        }
        if (isFirst) {
            begin();
        }
        tellWaiters();
    });
}

PulseConnection::State PulseConnection::waitForState(std::chrono::milliseconds limit) const {
    std::unique_lock lock(m_mutex);
    m_stateChanged.wait_for(lock, limit, [this] { return m_state != State::Connecting; });
    return m_state;
}

QString PulseConnection::route() const {
    const std::lock_guard lock(m_mutex);
    return m_route;
}

PulseInputs PulseConnection::inputs() const {
    const std::lock_guard lock(m_mutex);
    return m_inputs;
}

void PulseConnection::setInputsListener(std::function<void()> listener) {
    const std::lock_guard lock(m_mutex);
    m_inputsListener = std::move(listener);
}

void PulseConnection::preferSource(const QByteArray& name) {
    if (std::exchange(m_preferredSource, name) != name) {
        publishInputs();
        for (const auto& observer : std::vector(m_observers)) {
            observer->pulseConnectionDidPreferSource();
        }
    }
}

QByteArray PulseConnection::preferredSource() const {
    return m_sources.isMicrophone(m_preferredSource) ? m_preferredSource : QByteArray();
}

QByteArray PulseConnection::sourceName() const {
    const QByteArray preferred = preferredSource();
    return !preferred.isEmpty() ? preferred : !m_chosenSource.isEmpty() ? m_chosenSource : "@DEFAULT_SOURCE@";
}

QString PulseConnection::serverName() const {
    const std::lock_guard lock(m_mutex);
    return m_state == State::Ready ? m_serverName : QString();
}

void PulseConnection::perform(std::function<void()> work) {
    {
        const std::lock_guard lock(m_mutex);
        m_pending.push_back(std::move(work));
    }
    // Fails only when the counter is so high that the loop wakes anyway.
    eventfd_write(m_wakeDescriptor, 1);
}

void PulseConnection::addObserver(std::shared_ptr<PulseConnectionObserver> observer) {
    m_observers.push_back(std::move(observer));
}

void PulseConnection::removeObserver(const PulseConnectionObserver* observer) {
    std::erase_if(m_observers, [observer](const auto& other) { return other.get() == observer; });
}

void PulseConnection::run() {
    pthread_setname_np(pthread_self(), "pulse");
    pa_io_event* wake = m_api->io_new(
        m_api, m_wakeDescriptor, PA_IO_EVENT_INPUT,
        [](pa_mainloop_api*, pa_io_event*, int descriptor, pa_io_event_flags_t, void* userdata) {
            eventfd_t count = 0;
            eventfd_read(descriptor, &count);
            static_cast<PulseConnection*>(userdata)->runPending();
        },
        this);
    pa_mainloop_run(m_loop.get(), nullptr);
    m_api->io_free(wake);
    m_waiters.clear();
    m_observers.clear();
    m_serverQuery = {};
    m_sinkQuery = {};
    m_sourceQuery = {};
    m_limit.reset();
    m_context.reset();
}

void PulseConnection::runPending() {
    std::vector<std::function<void()>> work;
    {
        const std::lock_guard lock(m_mutex);
        work.swap(m_pending);
    }
    for (const auto& item : work) {
        item();
    }
}

void PulseConnection::begin() {
    const PulseProplistHandle properties = applicationProperties();
    m_context.reset(pa_context_new_with_proplist(m_api, "Tavi", properties.get()));
    pa_context_set_state_callback(
        m_context.get(),
        [](pa_context*, void* userdata) { static_cast<PulseConnection*>(userdata)->contextDidChangeState(); }, this);
    pa_context_set_subscribe_callback(
        m_context.get(),
        [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* userdata) {
            static_cast<PulseConnection*>(userdata)->refresh();
        },
        this);
    m_limit->start(
        m_context.get(), pa_rtclock_now() + kConnectLimit,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userdata) {
            static_cast<PulseConnection*>(userdata)->end(PA_ERR_TIMEOUT);
        },
        this);
    // The user's client configuration decides which server this is and whether to start one.
    if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0 && m_context) {
        end(pa_context_errno(m_context.get()));
    }
}

void PulseConnection::end(int code) {
    m_limit->stop();
    m_serverQuery = {};
    m_sinkQuery = {};
    m_sourceQuery = {};
    m_isStale = false;
    m_sources = {};
    m_sinks = {};
    publishInputs();
    const auto observers = std::exchange(m_observers, {});
    const PulseContextHandle context = std::exchange(m_context, nullptr);
    setState(code == PA_ERR_ACCESS || code == PA_ERR_AUTHKEY ? State::Refused : State::Unconnected);
    for (const auto& observer : observers) {
        observer->pulseConnectionDidEnd(pulseError(code));
    }
    tellWaiters();
}

PulseConnection::State PulseConnection::state() const {
    const std::lock_guard lock(m_mutex);
    return m_state;
}

void PulseConnection::setState(State state) {
    {
        const std::lock_guard lock(m_mutex);
        m_state = state;
        m_route = m_sinks.route(m_chosenSink);
    }
    m_stateChanged.notify_all();
}

void PulseConnection::tellWaiters() {
    const State outcome = state();
    if (outcome == State::Connecting) {
        return;
    }
    for (const auto& waiter : std::exchange(m_waiters, {})) {
        waiter(outcome);
    }
}

void PulseConnection::contextDidChangeState() {
    switch (pa_context_get_state(m_context.get())) {
        case PA_CONTEXT_READY: {
            constexpr auto kWanted =
                static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SINK |
                                                    PA_SUBSCRIPTION_MASK_SERVER | PA_SUBSCRIPTION_MASK_CARD);
            pulseForget(pa_context_subscribe(m_context.get(), kWanted, nullptr, nullptr));
            refresh();
            break;
        }
        case PA_CONTEXT_FAILED:
        case PA_CONTEXT_TERMINATED:
            end(pa_context_errno(m_context.get()));
            break;
        default:
            break;
    }
}

void PulseConnection::refresh() {
    if (m_sourceQuery) {
        m_isStale = true;
        return;
    }
    m_isStale = false;
    m_arriving = {};
    m_arrivingSinks = {};
    // The server answers in the order of asking, so that the end of the last list ends all.
    m_serverQuery = PulseOperation(pa_context_get_server_info(
        m_context.get(),
        [](pa_context*, const pa_server_info* info, void* userdata) {
            auto& self = *static_cast<PulseConnection*>(userdata);
            if (info != nullptr && info->default_source_name != nullptr) {
                self.m_arriving.defaultName = info->default_source_name;
            }
            if (info != nullptr && info->default_sink_name != nullptr) {
                self.m_arrivingSinks.defaultName = info->default_sink_name;
            }
            if (info != nullptr) {
                const std::lock_guard lock(self.m_mutex);
                self.m_serverName = QStringLiteral("%1 %2").arg(QString::fromUtf8(info->server_name),
                                                                QString::fromUtf8(info->server_version));
            }
            self.m_serverQuery.finish();
        },
        this));
    m_sinkQuery = PulseOperation(pa_context_get_sink_info_list(
        m_context.get(),
        [](pa_context*, const pa_sink_info* info, int isLast, void* userdata) {
            auto& self = *static_cast<PulseConnection*>(userdata);
            if (isLast == 0) {
                self.m_arrivingSinks.list.push_back(described(*info));
            } else {
                self.m_sinkQuery.finish();
            }
        },
        this));
    m_sourceQuery = PulseOperation(pa_context_get_source_info_list(
        m_context.get(),
        [](pa_context*, const pa_source_info* info, int isLast, void* userdata) {
            auto& self = *static_cast<PulseConnection*>(userdata);
            if (isLast == 0) {
                self.m_arriving.list.push_back(described(*info));
            } else {
                self.m_sourceQuery.finish();
                self.publish();
            }
        },
        this));
}

void PulseConnection::publishInputs() {
    PulseInputs inputs = m_sources.inputs(m_chosenSource, m_preferredSource);
    std::function<void()> listener;
    {
        const std::lock_guard lock(m_mutex);
        if (m_inputs == inputs) {
            return;
        }
        m_inputs = std::move(inputs);
        listener = m_inputsListener;
    }
    if (listener) {
        listener();
    }
}

void PulseConnection::publish() {
    m_sources = std::exchange(m_arriving, {});
    m_sinks = std::exchange(m_arrivingSinks, {});
    m_limit->stop();
    publishInputs();
    setState(State::Ready);
    tellWaiters();
    if (m_isStale) {
        refresh();
    }
}

}  // namespace tavi
