#include "support/ChildProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QProcessEnvironment>
#include <algorithm>
#include <csignal>
#include <vector>

namespace tavi::test {

namespace {

/// The form that the system's calls take: pointers, and a null pointer at the end.
std::vector<char*> pointers(QList<QByteArray>& texts) {
    std::vector<char*> result;
    for (QByteArray& text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

QList<QByteArray> environmentWith(const QMap<QByteArray, QByteArray>& changes) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        const QString name = QString::fromLocal8Bit(change.key());
        if (change.value().isNull()) {
            environment.remove(name);
        } else {
            environment.insert(name, QString::fromLocal8Bit(change.value()));
        }
    }
    QList<QByteArray> result;
    for (const QString& line : environment.toStringList()) {
        result.append(line.toLocal8Bit());
    }
    return result;
}

}  // namespace

ChildProcess::ChildProcess(const QStringList& command, const QMap<QByteArray, QByteArray>& environment) {
    QList<QByteArray> words{"setpriv", "--pdeathsig=KILL"};
    std::transform(command.begin(), command.end(), std::back_inserter(words),
                   [](const QString& word) { return word.toLocal8Bit(); });
    QList<QByteArray> variables = environmentWith(environment);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        qFatal("There is no pipe.");
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    const int error =
        posix_spawnp(&m_pid, "setpriv", &actions, nullptr, pointers(words).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    m_output = ends[0];
    if (error != 0) {
        qFatal("%s does not start.", qPrintable(command.join(QLatin1Char(' '))));
    }
}

ChildProcess::~ChildProcess() {
    if (!m_isReaped) {
        ::kill(m_pid, SIGKILL);
        reap(true);
    }
    close(m_output);
}

QByteArray ChildProcess::output() {
    QByteArray all;
    char buffer[4096];
    for (ssize_t size = 0; (size = read(m_output, buffer, sizeof buffer)) > 0;) {
        all.append(buffer, size);
    }
    reap(true);
    return all;
}

int ChildProcess::exitCode() {
    reap(true);
    return WIFEXITED(m_status) ? WEXITSTATUS(m_status) : -1;
}

bool ChildProcess::reap(bool waits) {
    if (!m_isReaped) {
        m_isReaped = waitpid(m_pid, &m_status, waits ? 0 : WNOHANG) == m_pid;
    }
    return m_isReaped;
}

}  // namespace tavi::test
