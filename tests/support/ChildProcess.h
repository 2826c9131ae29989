#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QMap>
#include <QStringList>

namespace tavi::test {

/// A process that ends with this, and with the test's main thread if that crashes. Fails the program when it cannot be
/// started.
///
/// Not QProcess: its way of forking hides the main thread's locks from ThreadSanitizer.
class ChildProcess {
public:
    /// The environment is the program's own with these changes; a null value removes a variable. What the process
    /// prints is kept for output().
    explicit ChildProcess(const QStringList& command, const QMap<QByteArray, QByteArray>& environment = {});
    /// Kills it.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return m_pid; }
    bool isRunning() { return !reap(false); }
    /// Waits for the end; all that the process printed.
    QByteArray output();
    /// Waits for the end; -1 after a signal.
    int exitCode();

private:
    bool reap(bool waits);

    pid_t m_pid = 0;
    int m_output = -1;
    int m_status = 0;
    bool m_isReaped = false;
};

}  // namespace tavi::test
