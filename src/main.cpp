#include <QCoreApplication>
#include <QDBusConnection>
#include <QLoggingCategory>
#include <chrono>
#include <cstdio>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "Output.h"
#include "Program.h"
#include "SettingsFiles.h"
#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/HandOver.h"
#include "adapters/dbus/InstanceLock.h"
#include "adapters/qt/MediaLibrary.h"
#include "adapters/qt/QtAppContainer.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/quick/QuickDisplayRefreshes.h"
#include "app/cli/CommandLine.h"
#include "ui/Texts.h"

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

ActivationRequest activationOf(const ProgramRequest& request) {
    using Kind = ActivationRequest::Kind;
    if (!request.urls.isEmpty()) {
        return {.kind = Kind::Open, .uris = QUrl::toStringList(request.urls), .action = {}};
    }
    return {.kind = request.shortcutType.isEmpty() ? Kind::Activate : Kind::Action,
            .uris = {},
            .action = request.shortcutType};
}

/// Hands the request to the instance that holds the lock.
int runBesideOther(int& argc, char** argv, const ProgramRequest& request, const QString& busName,
                   const Error& lockError) {
    const QCoreApplication application(argc, argv);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return reportFailure({lockError.text + QStringLiteral(" Without a session bus it cannot be told.")});
    }
    const auto handed = handOver(bus, busName, activationOf(request));
    return handed ? EXIT_SUCCESS : reportFailure(handed.error());
}

/// Does without the window what prints and ends.
int runPrinting(int& argc, char** argv, const PrintingCommand& command, const AppContainer& container) {
    QCoreApplication application(argc, argv);
    installTexts(application);
    SettingsFiles settings(container);
    MediaLibrary media;
    QtRunLoop runLoop;
    QuickDisplayRefreshes refreshes;
    const auto text = command({.container = container,
                               .suites = {.standard = settings.standard, .shared = settings.shared},
                               .runLoop = runLoop,
                               .durations = media,
                               .files = media,
                               .converters = media,
                               .exports = media,
                               .repair = media,
                               .refreshes = refreshes});
    return text ? print(*text) : reportFailure(text.error());
}

int run(int& argc, char** argv) {
    const auto line = parseCommandLine({argv + 1, argv + argc});
    if (!line) {
        return reportFailure(line.error(), kUsageExitCode);
    }
    if (const auto* text = std::get_if<QByteArray>(&line->command)) {
        return print(*text);
    }
    const auto container = QtAppContainer::create(line->container);
    if (!container) {
        return reportFailure(container.error());
    }
    if (const auto* command = std::get_if<PrintingCommand>(&line->command)) {
        return runPrinting(argc, argv, *command, **container);
    }
    const auto* request = std::get_if<ProgramRequest>(&line->command);
    const QString busName = busNameForContainer(line->container);
    const auto lock = InstanceLock::take((*container)->cachesPath());
    if (!lock) {
        const auto& [isHeld, error] = lock.error();
        return isHeld ? runBesideOther(argc, argv, *request, busName, error) : reportFailure(error);
    }
    return runProgram(argc, argv, *request, busName, **container);
}

}  // namespace

}  // namespace tavi

int main(int argc, char** argv) {
    tavi::EZAudioUtilities::setShouldExitOnCheckResultFail(false);
    tavi::installTrace();
    return tavi::run(argc, argv);
}
