#include "support/PrivatePulse.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>
#include <csignal>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QThread>

namespace tavi::test {

namespace {

/// Milliseconds that a server may take to come up.
constexpr int kPatience = 20'000;

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

void setEnvironment(const QByteArray& name, const QByteArray& value) {
    if (value.isNull()) {
        qunsetenv(name.constData());
    } else {
        qputenv(name.constData(), value);
    }
}

}  // namespace

PrivatePulse::PrivatePulse() {
    const QByteArray cookie = m_folder.filePath(QStringLiteral("cookie")).toLocal8Bit();
    const std::pair<QByteArray, QByteArray> changes[] = {
        {"PULSE_SERVER", address().toLocal8Bit()}, {"PULSE_COOKIE", cookie}, {"PULSE_SOURCE", {}}, {"PULSE_SINK", {}}};
    for (const auto& [name, value] : changes) {
        m_environment.append({name, qgetenv(name.constData())});
        setEnvironment(name, value);
    }
    start();
}

PrivatePulse::~PrivatePulse() {
    m_server.reset();
    for (const auto& [name, value] : m_environment) {
        setEnvironment(name, value);
    }
}

QString PrivatePulse::address() const {
    return QStringLiteral("unix:") + m_folder.filePath(QStringLiteral("native"));
}

QString PrivatePulse::refusingAddress() {
    const QString port = QString::number(freePort());
    const QString cookie = m_folder.filePath(QStringLiteral("another-cookie"));
    pactl({QStringLiteral("load-module"), QStringLiteral("module-native-protocol-tcp"),
           QStringLiteral("listen=127.0.0.1"), QStringLiteral("port=") + port,
           QStringLiteral("auth-cookie=") + cookie});
    return QStringLiteral("tcp:127.0.0.1:") + port;
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
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < kPatience && m_server->isRunning()) {
        // It complains as long as there is no server.
        ChildProcess question({QStringLiteral("sh"), QStringLiteral("-c"),
                               QStringLiteral("exec timeout 20 pactl get-default-source 2>/dev/null")});
        if (question.output().trimmed() == "microphone") {
            return;
        }
        QThread::msleep(5);
    }
    qFatal("The private sound server does not come up.");
}

void PrivatePulse::kill() {
    m_server.reset();
}

void PrivatePulse::freeze() const {
    ::kill(m_server->pid(), SIGSTOP);
}

void PrivatePulse::thaw() const {
    ::kill(m_server->pid(), SIGCONT);
}

void PrivatePulse::setMicrophone(int sampleRate, int channels) {
    const QString modules = pactl({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("modules")});
    const QStringList ours = modules.split(QLatin1Char('\n')).filter(QStringLiteral("mic_sink"));
    for (auto line = ours.crbegin(); line != ours.crend(); ++line) {
        unloadModule(line->section(QLatin1Char('\t'), 0, 0));
    }
    const QString rate = QStringLiteral("rate=%1").arg(sampleRate);
    const QString width = QStringLiteral("channels=%1").arg(channels);
    pactl({QStringLiteral("load-module"), QStringLiteral("module-null-sink"), QStringLiteral("sink_name=mic_sink"),
           QStringLiteral("norewinds=1"), rate, width});
    pactl({QStringLiteral("load-module"), QStringLiteral("module-remap-source"),
           QStringLiteral("source_name=microphone"), QStringLiteral("master=mic_sink.monitor"),
           QStringLiteral("remix=no"), rate, width});
    pactl({QStringLiteral("set-default-source"), QStringLiteral("microphone")});
}

void PrivatePulse::addMicrophone() {
    pactl({QStringLiteral("load-module"), QStringLiteral("module-remap-source"),
           QStringLiteral("source_name=other_microphone"), QStringLiteral("master=mic_sink.monitor")});
}

void PrivatePulse::unloadModule(const QString& name) {
    pactl({QStringLiteral("unload-module"), name});
}

void PrivatePulse::moveRecording(const QString& source) {
    const QString outputs = pactl({QStringLiteral("list"), QStringLiteral("source-outputs")});
    // The remapped microphones are recordings too; ours carries the program's name.
    const QString head = outputs.left(outputs.indexOf(QStringLiteral("application.name = \"Tavi\"")));
    const QRegularExpression number(QStringLiteral("Source Output #(\\d+)"));
    QString index;
    for (auto matches = number.globalMatch(head); matches.hasNext();) {
        index = matches.next().captured(1);
    }
    pactl({QStringLiteral("move-source-output"), index, source});
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
    auto listener = std::make_unique<ChildProcess>(
        QStringList{QStringLiteral("parec"), QStringLiteral("--raw"), QStringLiteral("--device=%1.monitor").arg(sink),
                    QStringLiteral("--format=float32ne"), QStringLiteral("--rate=48000"),
                    QStringLiteral("--latency-msec=50"), QStringLiteral("--channels=%1").arg(channels), path});
    QElapsedTimer waited;
    waited.start();
    while (QFile(path).size() == 0) {
        if (waited.elapsed() > kPatience) {
            qFatal("Nothing is heard from the sink.");
        }
        QThread::msleep(5);
    }
    return listener;
}

QString PrivatePulse::pactl(const QStringList& arguments) const {
    ChildProcess process(QStringList{QStringLiteral("timeout"), QStringLiteral("20"), QStringLiteral("pactl")} +
                         arguments);
    const QByteArray output = process.output();
    if (process.exitCode() != 0) {
        qFatal("pactl %s fails.", qPrintable(arguments.join(QLatin1Char(' '))));
    }
    return QString::fromLocal8Bit(output);
}

}  // namespace tavi::test
