#include "support/PrivatePulse.h"

#include <arpa/inet.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <csignal>

namespace tavi::test {

namespace {

/// Asks every few milliseconds, for as long as a server may take to come up.
template <class Condition>
void waitUntil(Condition condition, const char* failure) {
    QElapsedTimer waited;
    for (waited.start(); !condition(); QThread::msleep(5)) {
        if (waited.elapsed() > 20'000) {
            qFatal("%s", failure);
        }
    }
}

bool runs(const QByteArray& shellCommand) {
    return ::system(shellCommand.constData()) == 0;
}

/// A port that nobody listens on.
int freePort() {
    const int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(descriptor, generic, size) != 0 || getsockname(descriptor, generic, &size) != 0) {
        qFatal("There is no free port.");
    }
    close(descriptor);
    return ntohs(address.sin_port);
}

}  // namespace

ChildProcess::ChildProcess(const QStringList& command, const QMap<QByteArray, QByteArray>& environment) {
    QList<QByteArray> words{"setpriv", "--pdeathsig=KILL", "env"};
    for (auto change = environment.begin(); change != environment.end(); ++change) {
        words.append(change.value().isNull() ? "--unset=" + change.key() : change.key() + '=' + change.value());
    }
    for (const QString& word : command) {
        words.append(word.toLocal8Bit());
    }
    std::vector<char*> pointers;
    for (QByteArray& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    if (posix_spawnp(&m_pid, pointers[0], nullptr, nullptr, pointers.data(), environ) != 0) {
        qFatal("%s does not start.", qPrintable(command.join(QLatin1Char(' '))));
    }
}

ChildProcess::~ChildProcess() {
    ::kill(m_pid, SIGKILL);
    waitpid(m_pid, nullptr, 0);
}

bool ChildProcess::isRunning() const {
    siginfo_t end{};
    return waitid(P_PID, static_cast<id_t>(m_pid), &end, WEXITED | WNOHANG | WNOWAIT) == 0 && end.si_pid == 0;
}

PrivatePulse::PrivatePulse() {
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath(QStringLiteral("native")).toLocal8Bit());
    qputenv("PULSE_COOKIE", m_folder.filePath(QStringLiteral("cookie")).toLocal8Bit());
    qunsetenv("PULSE_SOURCE");
    qunsetenv("PULSE_SINK");
    start();
}

QByteArray PrivatePulse::refusingAddress() const {
    const QByteArray port = QByteArray::number(freePort());
    pactl("load-module module-native-protocol-tcp listen=127.0.0.1 port=" + port +
          " auth-cookie=" + m_folder.filePath(QStringLiteral("another-cookie")).toLocal8Bit());
    return "tcp:127.0.0.1:" + port;
}

void PrivatePulse::start() {
    const QByteArray folder = m_folder.path().toLocal8Bit();
    m_server = std::make_unique<ChildProcess>(
        QStringList{QStringLiteral("pulseaudio"), QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                    QStringLiteral("--use-pid-file=no"), QStringLiteral("--exit-idle-time=-1"),
                    QStringLiteral("--disable-shm=yes"), QStringLiteral("--log-level=error"), QStringLiteral("-F"),
                    QStringLiteral(TAVI_PRIVATE_PULSE)},
        QMap<QByteArray, QByteArray>{{"PULSE_SERVER", {}},
                                     {"DBUS_SESSION_BUS_ADDRESS", {}},
                                     {"HOME", folder},
                                     {"XDG_RUNTIME_DIR", folder},
                                     {"PULSE_RUNTIME_PATH", folder},
                                     {"PULSE_STATE_PATH", folder}});
    const auto isUp = [this] {
        if (!m_server->isRunning()) {
            qFatal("The private sound server has ended.");
        }
        return runs("timeout 20 pactl get-default-source 2>/dev/null | grep -qx microphone");
    };
    waitUntil(isUp, "The private sound server does not come up.");
}

void PrivatePulse::freeze() const {
    ::kill(m_server->pid(), SIGSTOP);
}

void PrivatePulse::thaw() const {
    ::kill(m_server->pid(), SIGCONT);
}

void PrivatePulse::setMicrophone(int sampleRate, int channels) const {
    const QByteArray shape = " rate=" + QByteArray::number(sampleRate) + " channels=" + QByteArray::number(channels);
    pactl("list short modules | grep mic_sink | cut -f1 | tac | xargs -rn1 pactl unload-module");
    pactl("load-module module-null-sink sink_name=mic_sink norewinds=1" + shape);
    pactl("load-module module-remap-source source_name=microphone master=mic_sink.monitor remix=no" + shape);
    pactl("set-default-source microphone");
}

void PrivatePulse::moveRecording(const QByteArray& source) const {
    // The remapped microphones are recordings too; ours carries the program's name.
    pactl(
        "move-source-output $(pactl list source-outputs | awk '/^Source Output/ { number = substr($3, 2) } "
        "/application.name = \"Tavi\"/ { print number }') " +
        source);
}

ProcessHandle PrivatePulse::play(const QByteArray& samples, int sampleRate, int channels) {
    const QString path = m_folder.filePath(QStringLiteral("sound%1.raw").arg(++m_files));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(samples) != samples.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    file.close();
    return std::make_unique<ChildProcess>(
        QStringList{QStringLiteral("pacat"), QStringLiteral("--playback"), QStringLiteral("--raw"),
                    QStringLiteral("--device=mic_sink"), QStringLiteral("--format=s16ne"),
                    QStringLiteral("--rate=%1").arg(sampleRate), QStringLiteral("--channels=%1").arg(channels), path});
}

ProcessHandle PrivatePulse::listen(const QString& path, int channels, const QString& sink) const {
    QFile::remove(path);
    auto listener = std::make_unique<ChildProcess>(
        QStringList{QStringLiteral("parec"), QStringLiteral("--raw"), QStringLiteral("--device=%1.monitor").arg(sink),
                    QStringLiteral("--format=float32ne"), QStringLiteral("--rate=48000"),
                    QStringLiteral("--latency-msec=50"), QStringLiteral("--channels=%1").arg(channels), path});
    waitUntil([&path] { return QFile(path).size() > 0; }, "Nothing is heard from the sink.");
    return listener;
}

void PrivatePulse::pactl(const QByteArray& arguments) const {
    if (!runs("timeout 20 pactl " + arguments + " >/dev/null")) {
        qFatal("pactl %s fails.", arguments.constData());
    }
}

}  // namespace tavi::test
