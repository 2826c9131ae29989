#include "adapters/qt/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QtGlobal>
#include <atomic>
#include <cerrno>
#include <utility>

namespace tavi {

namespace {

/// Write end of the pipe for the signal handler, which can reach nothing else. -1 where there is none.
std::atomic<int> g_signalPipe = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void writeSignalToPipe(int number) {
    const int savedErrno = errno;
    const auto byte = static_cast<unsigned char>(number);
    // A full pipe means that signals are waiting already.
    [[maybe_unused]] const ssize_t written = ::write(g_signalPipe.load(), &byte, 1);
    errno = savedErrno;
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void(int)> callback) : m_callback(std::move(callback)) {
    if (::pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("No pipe for signals: %s.", qUtf8Printable(qt_error_string(errno)));
        return;
    }
    g_signalPipe = m_pipe[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { deliver(); });
    struct sigaction action = {};
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        const bool isOfAWrite = kSignals[i] == SIGPIPE || kSignals[i] == SIGXFSZ;
        action.sa_handler = isOfAWrite ? SIG_IGN : writeSignalToPipe;
        ::sigaction(kSignals[i], nullptr, &m_previous[i]);
        if (m_previous[i].sa_handler != SIG_IGN) {
            ::sigaction(kSignals[i], &action, nullptr);
        }
    }
}

TerminationSignals::~TerminationSignals() {
    if (!m_notifier) {
        return;
    }
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], &m_previous[i], nullptr);
    }
    g_signalPipe = -1;
    m_notifier.reset();
    ::close(m_pipe[0]);
    ::close(m_pipe[1]);
}

void TerminationSignals::deliver() {
    unsigned char byte = 0;
    while (::read(m_pipe[0], &byte, 1) == 1) {
        m_callback(byte);
    }
}

}  // namespace tavi
