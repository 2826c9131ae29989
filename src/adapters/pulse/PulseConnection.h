#pragma once

#include <QByteArray>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "adapters/pulse/PulseHandles.h"
#include "adapters/pulse/PulseSinks.h"
#include "adapters/pulse/PulseSources.h"
#include "platform/Error.h"

namespace tavi {

/// Told what becomes of a connection that was ready. Loop thread.
class PulseConnectionObserver {
public:
    virtual ~PulseConnectionObserver() = default;
    virtual void pulseConnectionDidEnd(const Error& error) = 0;
    /// Another source is to be recorded from.
    virtual void pulseConnectionDidPreferSource() {}
};

/// The program's one connection to the sound server, and the thread on which everything about it happens.
///
/// libpulse is called on that thread only. Connecting may start a server and wait for it, so nobody else shares a lock
/// with libpulse; other threads leave work with perform(). A connection that is not used makes no wake-ups.
class PulseConnection {
public:
    enum class State {
        Unconnected,  ///< Not tried yet, no server, or the server ended.
        Connecting,
        Ready,    ///< Connected, and the sources and sinks are known.
        Refused,  ///< The server does not let us in.
    };

    PulseConnection();
    /// Ends the thread after the work left with it. Not on the loop's thread.
    ~PulseConnection();
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    /// Connects if there is no connection; settled is called on the loop's thread with the outcome. Returns at once.
    /// Any thread.
    void connect(std::function<void(State)> settled = {});
    /// The state; waits up to that time for the end of Connecting. Any thread but the loop's.
    State waitForState(std::chrono::milliseconds limit) const;
    /// Whether there is something to record from, as the server said last; false without a server. Any thread.
    bool isInputAvailable() const { return !inputs().current.uid.isEmpty(); }
    /// The microphones, as the server said last; none without a server. Any thread.
    PulseInputs inputs() const;
    /// Has the listener called on the loop's thread whenever inputs() have changed. Any thread.
    void setInputsListener(std::function<void()> listener);
    /// What sound comes out of, as the server said last; empty without a server. Any thread.
    QString route() const;
    /// The server's name and version; empty without a server. Any thread.
    QString serverName() const;
    /// Runs work on the loop's thread, in order. Any thread.
    void perform(std::function<void()> work);

    // The rest is for the loop's thread.

    /// Null without a server.
    pa_context* context() const { return m_context.get(); }
    pa_mainloop_api* api() const { return m_api; }
    const PulseSources& sources() const { return m_sources; }
    /// The source that the user's environment asks for; empty for the server's default.
    const QByteArray& chosenSource() const { return m_chosenSource; }
    /// Takes a microphone before any other source, for the streams that there are, too; an empty name takes none.
    void preferSource(const QByteArray& name);
    /// The one that is taken before any other, if it is there; else empty.
    QByteArray preferredSource() const;
    /// The name of what is recorded from, as the server understands it.
    QByteArray sourceName() const;
    const PulseSinks& sinks() const { return m_sinks; }
    /// The sink that the user's environment asks for; empty for the server's default.
    const QByteArray& chosenSink() const { return m_chosenSink; }
    void addObserver(std::shared_ptr<PulseConnectionObserver> observer);
    void removeObserver(const PulseConnectionObserver* observer);

private:
    void run();
    void runPending();
    void begin();
    void end(int code);
    State state() const;
    void setState(State state);
    void tellWaiters();
    void contextDidChangeState();
    void refresh();
    void publish();
    void publishInputs();

    const QByteArray m_chosenSource;
    const QByteArray m_chosenSink;
    QByteArray m_preferredSource;
    int m_wakeDescriptor = -1;

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_stateChanged;
    State m_state = State::Unconnected;
    QString m_route;
    PulseInputs m_inputs;
    std::function<void()> m_inputsListener;
    QString m_serverName;
    std::vector<std::function<void()>> m_pending;

    PulseMainloopHandle m_loop;
    pa_mainloop_api* m_api = nullptr;
    PulseContextHandle m_context;
    std::optional<PulseTimer> m_limit;
    std::vector<std::function<void(State)>> m_waiters;
    std::vector<std::shared_ptr<PulseConnectionObserver>> m_observers;
    PulseOperation m_serverQuery;
    PulseOperation m_sinkQuery;
    PulseOperation m_sourceQuery;
    bool m_isStale = false;
    PulseSources m_sources;
    PulseSources m_arriving;
    PulseSinks m_sinks;
    PulseSinks m_arrivingSinks;

    std::thread m_thread;
};

/// What a libpulse error code means for the user.
Error pulseError(int code);

}  // namespace tavi
