#include <QCoreApplication>
#include <QDBusConnection>
#include <QLoggingCategory>
#include <chrono>
#include <cstdio>
#include <iostream>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "AppStart.h"
#include "CloudCommands.h"
#include "CloudPlace.h"
#include "Output.h"
#include "Program.h"
#include "SettingsFiles.h"
#include "Terminal.h"
#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/HandOver.h"
#include "adapters/dbus/InstanceLock.h"
#include "adapters/dbus/LockObject.h"
#include "adapters/plist/LibplistPropertyLists.h"
#include "adapters/qt/MediaLibrary.h"
#include "adapters/qt/QtAppContainer.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/qt/QtTrash.h"
#include "adapters/quick/QuickDisplayRefreshes.h"
#include "adapters/secret/SystemKeychain.h"
#include "app/cli/CommandLine.h"
#include "app/cli/CommandLock.h"
#include "app/cli/OpenFiles.h"
#include "passcode/FXKeychain.h"
#include "passcode/PasscodeStore.h"
#include "ui/Texts.h"

namespace tavi {

namespace {

const auto g_start = std::chrono::steady_clock::now();
/// Long enough for the password of a keyring.
constexpr auto kPatience = std::chrono::minutes(1);

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
        return {.kind = Kind::Open, .uris = QUrl::toStringList(request.urls, QUrl::FullyEncoded), .action = {}};
    }
    return {.kind = request.shortcutType.isEmpty() ? Kind::Activate : Kind::Action,
            .uris = {},
            .action = request.shortcutType};
}

/// Says what has failed, a line each.
int reportEach(const QStringList& failures, int exitCode) {
    for (const QString& text : failures) {
        reportFailure({text});
    }
    return exitCode;
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
    if (!handed) {
        const auto& [isLocked, error] = handed.error();
        return reportFailure(error, isLocked ? kLockedExitCode : EXIT_FAILURE);
    }
    return EXIT_SUCCESS;
}

/// Whether the lock lets a command through that prints and ends.
Result<void> passLockOf(SettingsStore& settings, RunLoop& runLoop, const QString& busName,
                        const AppContainer& container) {
    QLoggingCategory::setFilterRules(QStringLiteral("tavi.keychain.info=false"));
    return passLock({.isProtectionOn = [&] { return settings.isPasscodeProtectionOn(); },
                     .isInstanceLocked = [&] { return isInstanceLocked(QDBusConnection::sessionBus(), busName); },
                     .askForPasscode = [] { return askOnTerminal(qtTrId("command_passcode")); },
                     .whyWrong =
                         [&](const QString& passcode) {
                             SystemKeychain keychain(StorePlaces::of(container), runLoop, kPatience);
                             const LibplistPropertyLists propertyLists;
                             FXKeychain values(keychain, propertyLists, kBundleIdentifier);
                             const PasscodeStore store(settings, values, runLoop.clock());
                             if (store.isPasscodeCorrect(passcode)) {
                                 return QString();
                             }
                             const QString why = store.whyNoneIsCorrect();
                             return why.isEmpty() ? qtTrId("command_passcode_wrong") : why;
                         }});
}

CloudCommands cloudCommands(const std::function<SystemKeychain()>& keychain, const AppContainer& container) {
    return {.prepare =
                [keychain, &container](const CloudAccount& account, const QString& password) {
                    SystemKeychain secrets = keychain();
                    return prepareCloud(account, password, container, secrets);
                },
            .forget =
                [keychain](const CloudAccount& account) {
                    SystemKeychain secrets = keychain();
                    removePassword(account, secrets);
                },
            .sync =
                [keychain, &container](const CloudAccount& account, std::optional<bool> areVanishedRemoved) {
                    SystemKeychain secrets = keychain();
                    return syncCloud(account, areVanishedRemoved, container, secrets);
                },
            .look = [&container](const CloudAccount& account) { return lookAtCloud(account, container); },
            .askForPassword =
                [] {
                    const auto typed = askOnTerminal(QStringLiteral("Password: "));
                    std::string line;
                    return typed ? *typed : QString::fromStdString(std::getline(std::cin, line) ? line : std::string());
                }};
}

/// Does without the window what prints and ends.
int runPrinting(int& argc, char** argv, const CommandLine& line, const PrintingCommand& command, const QString& busName,
                const AppContainer& container) {
    QCoreApplication application(argc, argv);
    installTexts(application);
    SettingsFiles settings(container);
    correctAppStart(settings.shared, container.cachesPath());
    MediaLibrary media;
    QtRunLoop runLoop;
    if (isGuardedByLock(line, container)) {
        if (const auto passed = passLockOf(settings.store, runLoop, busName, container); !passed) {
            return reportFailure(passed.error(), kLockedExitCode);
        }
    }
    QuickDisplayRefreshes refreshes;
    QtTrash trash;
    NotificationCenter notifications;
    QObject::connect(&notifications, &NotificationCenter::posted, &notifications,
                     [&busName] { tellOfChange(QDBusConnection::sessionBus(), busName); });
    const auto keychain = [&] { return SystemKeychain(StorePlaces::of(container), runLoop, kPatience); };
    const auto output = command({.container = container,
                                 .suites = {.standard = settings.standard, .shared = settings.shared},
                                 .runLoop = runLoop,
                                 .durations = media,
                                 .files = media,
                                 .converters = media,
                                 .exports = media,
                                 .repair = media,
                                 .trash = trash,
                                 .refreshes = refreshes,
                                 .notifications = notifications,
                                 .cloud = cloudCommands(keychain, container)});
    if (!output) {
        return reportFailure(output.error());
    }
    const int exitCode = print(output->text);
    return output->failures.isEmpty() ? exitCode : reportEach(output->failures, EXIT_FAILURE);
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
    const QString busName = busNameForContainer(line->container);
    if (const auto* command = std::get_if<PrintingCommand>(&line->command)) {
        return runPrinting(argc, argv, *line, *command, busName, **container);
    }
    auto request = std::get<ProgramRequest>(line->command);
    const bool isForFiles = !request.files.empty();
    const OpenFiles opened = resolveFiles(request, **container);
    reportEach(opened.failures, opened.exitCode);
    if (isForFiles && request.urls.isEmpty()) {
        return opened.exitCode;
    }
    const auto lock = InstanceLock::take((*container)->cachesPath());
    if (!lock) {
        const auto& [isHeld, error] = lock.error();
        const int exitCode = isHeld ? runBesideOther(argc, argv, request, busName, error) : reportFailure(error);
        return exitCode != EXIT_SUCCESS ? exitCode : reportEach(opened.refusals, opened.exitCode);
    }
    return runProgram(argc, argv, request, busName, **container);
}

}  // namespace

}  // namespace tavi

int main(int argc, char** argv) {
    tavi::EZAudioUtilities::setShouldExitOnCheckResultFail(false);
    tavi::installTrace();
    return tavi::run(argc, argv);
}
