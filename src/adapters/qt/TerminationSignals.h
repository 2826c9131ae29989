#pragma once

#include <signal.h>

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <memory>

namespace tavi {

/// Turns the signals that ask a program to end into a call on the main thread, so that it ends in order: a recording is
/// finished before the process goes. Those that would end it for a write that failed are ignored: the write says so.
///
/// One at a time; main thread. A signal that was being ignored at the start, as nohup does with SIGHUP, stays ignored.
/// The destructor restores what the signals did before.
class TerminationSignals {
public:
    /// The callback is called on the main thread for each signal, with its number. Typically it quits the application.
    explicit TerminationSignals(std::function<void(int)> callback);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    static constexpr std::array<int, 8> kSignals = {SIGTERM, SIGINT,  SIGHUP,  SIGQUIT,
                                                    SIGUSR1, SIGUSR2, SIGPIPE, SIGXFSZ};

    void deliver();

    std::function<void(int)> m_callback;
    /// Read end and write end.
    std::array<int, 2> m_pipe = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::array<struct sigaction, kSignals.size()> m_previous = {};
};

}  // namespace tavi
