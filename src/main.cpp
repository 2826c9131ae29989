#include <QCoreApplication>
#include <QDBusConnection>
#include <QLoggingCategory>
#include <chrono>
#include <cstdio>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "Headless.h"
#include "Output.h"
#include "Program.h"
#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/HandOver.h"
#include "adapters/dbus/InstanceLock.h"
#include "adapters/qt/QtAppContainer.h"
#include "app/cli/CommandLine.h"

namespace tavi {

namespace {

const auto g_start = std::chrono::steady_clock::now();

/// With TAVI_TRACE in the environment, debug messages go to standard error as "trace: TEXT MICROSECONDS-SINCE-START".
void installTrace() {
    if (!qEnvironmentVariableIsSet("TAVI_TRACE")) {
        return;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("tavi.*.debug=true"));
    static QtMessageHandler other = nullptr;
    other = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (type != QtDebugMsg) {
            other(type, context, text);
            return;
        }
        const auto elapsed = std::chrono::steady_clock::now() - g_start;
        const auto micros = std::chrono::duration_cast<std::chrono::microseconds>(elapsed).count();
        std::fprintf(stderr, "trace: %s %lld\n", qPrintable(text), static_cast<long long>(micros));
    });
}

/// What the running program is asked to do in place of this start.
ActivationRequest requestOf(const CommandLine& line) {
    switch (line.command) {
        case CommandLine::Command::Record:
            return {ActivationRequest::Kind::Action, {}, QStringLiteral("record")};
        case CommandLine::Command::Stop:
            return {ActivationRequest::Kind::Action, {}, QStringLiteral("stop")};
        case CommandLine::Command::Library:
            return {ActivationRequest::Kind::Action, {}, QStringLiteral("library")};
        case CommandLine::Command::Url:
            return {ActivationRequest::Kind::Open, QUrl::toStringList(line.urls), {}};
        default:
            return {};
    }
}

/// Hands the request to the instance that holds the lock.
int runBesideOther(int& argc, char** argv, const CommandLine& line, const Error& lockError) {
    const QCoreApplication application(argc, argv);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return reportFailure({lockError.text + QStringLiteral(" Without a session bus it cannot be told.")});
    }
    const auto handed = handOver(bus, busNameForContainer(line.container), requestOf(line));
    return handed ? EXIT_SUCCESS : reportFailure(handed.error());
}

int run(int& argc, char** argv) {
    const QList<QByteArray> arguments(argv + 1, argv + argc);
    const auto line = parseCommandLine(arguments);
    if (!line) {
        return reportFailure(line.error(), kUsageExitCode);
    }
    using Command = CommandLine::Command;
    if (line->command == Command::Help || line->command == Command::Version) {
        return print((line->command == Command::Help ? helpText() : versionText()).toUtf8());
    }
    const auto container = QtAppContainer::create(line->container);
    if (!container) {
        return reportFailure(container.error());
    }
    if (isHeadless(line->command)) {
        return runHeadless(argc, argv, *line, **container);
    }
    const auto lock = InstanceLock::take((*container)->cachesPath());
    if (!lock) {
        return runBesideOther(argc, argv, *line, lock.error());
    }
    return runProgram(argc, argv, *line, **container);
}

}  // namespace

}  // namespace tavi

int main(int argc, char** argv) {
    tavi::EZAudioUtilities::setShouldExitOnCheckResultFail(false);
    tavi::installTrace();
    return tavi::run(argc, argv);
}
