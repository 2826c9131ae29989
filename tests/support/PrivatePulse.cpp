#include "support/PrivatePulse.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

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

}  // namespace

ChildProcess::ChildProcess(const QStringList& command) {
    QList<QByteArray> words{"setpriv", "--pdeathsig=KILL"};
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
    const QByteArray cookie = m_folder.filePath(QStringLiteral("another-cookie")).toLocal8Bit();
    // Others may listen on some ports.
    for (int port = 20'000; port < 60'000; ++port) {
        const QByteArray number = QByteArray::number(port);
        if (runs("timeout 20 pactl load-module module-native-protocol-tcp listen=127.0.0.1 port=" + number +
                 " auth-cookie=" + cookie + " >/dev/null 2>&1")) {
            return "tcp:127.0.0.1:" + number;
        }
    }
    qFatal("There is no free port.");
}

void PrivatePulse::start() {
    const QString command = QStringLiteral(
        "env --unset=PULSE_SERVER --unset=DBUS_SESSION_BUS_ADDRESS HOME=%1 XDG_RUNTIME_DIR=%1 "
        "PULSE_RUNTIME_PATH=%1 PULSE_STATE_PATH=%1 pulseaudio -n --daemonize=no --use-pid-file=no "
        "--exit-idle-time=-1 --disable-shm=yes --log-level=error -F");
    m_server = std::make_unique<ChildProcess>(command.arg(m_folder.path()).split(QLatin1Char(' '))
                                              << QStringLiteral(TAVI_PRIVATE_PULSE));
    const auto isUp = [this] {
        if (!m_server->isRunning()) {
            qFatal("The private sound server has ended.");
        }
        return runs("timeout 20 pactl get-default-source 2>/dev/null | grep -qx microphone");
    };
    waitUntil(isUp, "The private sound server does not come up.");
}

void PrivatePulse::setMicrophone(int sampleRate, int channels) const {
    const QByteArray shape = " rate=" + QByteArray::number(sampleRate) + " channels=" + QByteArray::number(channels);
    pactl("list short modules | grep mic_sink | cut -f1 | tac | xargs -rn1 pactl unload-module");
    pactl("load-module module-null-sink sink_name=mic_sink norewinds=1" + shape);
    pactl("load-module module-remap-source source_name=microphone master=mic_sink.monitor remix=no" + shape);
    pactl("set-default-source microphone");
}

void PrivatePulse::describeSpeaker(const QByteArray& description) const {
    const QByteArray path = m_folder.filePath(QStringLiteral("commands")).toLocal8Bit();
    pactl("load-module module-cli-protocol-unix socket=" + path);
    // pactl has no word for it.
    if (!runs("python3 -c \"import socket; s = socket.socket(socket.AF_UNIX); s.connect('" + path +
              "'); s.sendall(b'update-sink-proplist speaker device.description=" + description +
              "\\n'); s.shutdown(socket.SHUT_WR); s.makefile().read()\"")) {
        qFatal("The sound server takes no commands.");
    }
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
    const QString command =
        QStringLiteral("pacat --playback --raw --device=mic_sink --format=s16ne --rate=%1 --channels=%2 %3");
    return std::make_unique<ChildProcess>(command.arg(sampleRate).arg(channels).arg(path).split(QLatin1Char(' ')));
}

ProcessHandle PrivatePulse::listen(const QString& path, int channels, const QString& sink) const {
    QFile::remove(path);
    const QString command = QStringLiteral(
        "parec --raw --device=%1.monitor --format=float32ne --rate=48000 --latency-msec=50 --channels=%2");
    auto listener = std::make_unique<ChildProcess>(command.arg(sink).arg(channels).split(QLatin1Char(' ')) << path);
    waitUntil([&path] { return QFile(path).size() > 0; }, "Nothing is heard from the sink.");
    return listener;
}

void PrivatePulse::pactl(const QByteArray& arguments) const {
    if (!runs("timeout 20 pactl " + arguments + " >/dev/null")) {
        qFatal("pactl %s fails.", arguments.constData());
    }
}

}  // namespace tavi::test
