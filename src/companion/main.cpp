#include <QCoreApplication>
#include <QDBusConnection>
#include <QFileInfo>
#include <cstdio>
#include <functional>
#include <memory>
#include <utility>

#include "AppStart.h"
#include "CompanionChannel.h"
#include "SettingsFiles.h"
#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/DBusRecorder.h"
#include "adapters/qt/QtAppContainer.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/qt/TerminationSignals.h"
#include "adapters/tray/StatusItem.h"
#include "companion/CompanionIcon.h"
#include "companion/CompanionLine.h"
#include "companion/CompanionMenu.h"
#include "files/PathText.h"
#include "ui/Texts.h"

namespace tavi {

namespace {

constexpr int kUsageStatus = 2;
constexpr int kLockedStatus = 3;
/// For a recorder to be reached by a channel, and for it to take what was sent.
constexpr double kPatience = 10.0;
/// A program that was killed lets go of its name a moment before it lets go of its lock.
constexpr double kTimeToDie = 0.5;

int fail(const Error& error, int status = EXIT_FAILURE) {
    std::fprintf(stderr, "tavi-companion: %s\n", qUtf8Printable(error.text));
    return status;
}

/// The program beside this one, else the one of that name that the system finds.
QStringList recorderCommand(const std::filesystem::path& container) {
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/tavi");
    QStringList command{QFileInfo(beside).isExecutable() ? beside : QStringLiteral("tavi")};
    if (!container.empty()) {
        command << QStringLiteral("--container") << pathText(container);
    }
    return command;
}

/// What all tasks work with.
struct Companion {
    Companion(const CompanionLine& line, const AppContainer& folders)
        : container(folders),
          bus(QDBusConnection::sessionBus()),
          recorder(bus, busNameForContainer(line.container), recorderCommand(line.container)) {
        if (line.channel) {
            channel = std::make_unique<CompanionChannel>(container, runLoop, bus, LocalWatchSession::End::Companion,
                                                         *line.channel);
        }
        recorder.setStateHandler([this] { stateChanged(); });
        correct();
    }

    void stateChanged() {
        if (recorder.state().phase == RecorderState::Phase::Absent) {
            runLoop.dispatchAfter(kTimeToDie, [this] { correct(); });
        }
        if (onState) {
            onState();
        }
    }
    void correct() { correctAppStart(settings.shared, container.cachesPath()); }
    CompanionCommands commands(const CompanionLine& line) {
        return CompanionCommands({.recorder = recorder,
                                  .channel = channel ? &channel->sender() : nullptr,
                                  .channelType = line.channel.value_or(MMWormholeTransitingType::File)});
    }

    const AppContainer& container;
    QDBusConnection bus;
    QtRunLoop runLoop;
    SettingsFiles settings{container};
    DBusRecorder recorder;
    std::unique_ptr<CompanionChannel> channel;
    std::function<void()> onState;
};

/// Runs the event loop until the condition holds, as far as the signal tells; false where it takes too long.
template <class Sender, class Signal, class Condition>
bool waitFor(Companion& companion, Sender& sender, Signal signal, Condition condition) {
    QObject context;
    QObject::connect(&sender, signal, &context, [condition] {
        if (condition()) {
            QCoreApplication::exit(EXIT_SUCCESS);
        }
    });
    const auto timer = companion.runLoop.scheduledTimer(kPatience, false, [] { QCoreApplication::exit(EXIT_FAILURE); });
    // A signal to the program ends the loop, too.
    const bool isMet = condition() || (QCoreApplication::exec() == EXIT_SUCCESS && condition());
    timer->invalidate();
    return isMet;
}

int runCommand(Companion& companion, const CompanionLine& line, CompanionCommand command) {
    // What to do depends on whether a recorder runs.
    if (!companion.recorder.isKnown()) {
        companion.onState = [] { QCoreApplication::quit(); };
        QCoreApplication::exec();
        companion.onState = {};
        if (!companion.recorder.isKnown()) {
            // A signal came first: nothing is asked of the recorder any more.
            return EXIT_FAILURE;
        }
    }
    const bool isBySession = companion.channel && isOfSession(*line.channel);
    LocalWatchSession* session = isBySession ? &companion.channel->session() : nullptr;
    const bool isThere = companion.recorder.state().phase != RecorderState::Phase::Absent;
    if (session != nullptr && isThere &&
        !waitFor(companion, *session, &LocalWatchSession::reachabilityChanged,
                 [session] { return session->isReachable(); })) {
        return fail({qtTrId("companion_no_channel")});
    }
    int status = EXIT_FAILURE;
    bool isDone = false;
    companion.commands(line).perform(command, line.text, [&](Recorder::Outcome outcome, const Error& error) {
        status = outcome == Recorder::Outcome::Opened   ? EXIT_SUCCESS
                 : outcome == Recorder::Outcome::Locked ? fail(error, kLockedStatus)
                                                        : fail(error);
        isDone = true;
        QCoreApplication::quit();
    });
    if (!isDone) {
        QCoreApplication::exec();
    }
    if (status == EXIT_SUCCESS && session != nullptr &&
        !waitFor(companion, *session, &LocalWatchSession::everythingSent,
                 [session] { return !session->hasUnsent(); })) {
        return fail({qtTrId("companion_no_channel")});
    }
    return status;
}

int listen(Companion& companion) {
    const auto tell = [&recorder = companion.recorder] {
        const RecorderState state = recorder.state();
        const bool hasTime =
            state.phase == RecorderState::Phase::Recording || state.phase == RecorderState::Phase::Paused;
        const QString line =
            phaseName(state.phase) + (hasTime ? QLatin1Char(' ') + companionClock(state.seconds) : QString());
        if (std::printf("%s\n", qPrintable(line)) < 0 || std::fflush(stdout) != 0) {
            QCoreApplication::exit(EXIT_FAILURE);
        }
    };
    companion.onState = tell;
    if (companion.recorder.isKnown()) {
        tell();
    }
    return QCoreApplication::exec();
}

int showIcon(Companion& companion, const CompanionLine& line) {
    if (!companion.bus.registerService(busNameForContainer(line.container) + QStringLiteral(".Companion"))) {
        return fail({companion.bus.isConnected() ? qtTrId("companion_twice") : qtTrId("companion_no_bus")});
    }
    StatusItem icon(companion.bus, QStringLiteral("com.quillfen.voicerecorder.companion"));
    CompanionCommands commands = companion.commands(line);
    CompanionIcon shown({.recorder = companion.recorder,
                         .icon = icon,
                         .runLoop = companion.runLoop,
                         .commands = commands,
                         .quit = [] { QCoreApplication::quit(); },
                         .tell = [](const Error& error) { fail(error); }});
    companion.onState = [&shown] { shown.stateChanged(); };
    if (companion.recorder.isKnown()) {
        shown.stateChanged();
    }
    const int status = QCoreApplication::exec();
    companion.onState = {};
    return status;
}

int run(int& argc, char** argv) {
    const auto line = parseCompanionLine({argv + 1, argv + argc});
    if (!line) {
        return fail(line.error(), kUsageStatus);
    }
    if (const auto* text = std::get_if<QByteArray>(&line->task)) {
        return std::fputs(text->constData(), stdout) >= 0 && std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    QCoreApplication application(argc, argv);
    installTexts(application);
    const TerminationSignals signals([](int) { QCoreApplication::quit(); });
    const auto container = QtAppContainer::create(line->container);
    if (!container) {
        return fail(container.error());
    }
    Companion companion(*line, **container);
    if (const auto* command = std::get_if<CompanionCommand>(&line->task)) {
        return runCommand(companion, *line, *command);
    }
    const auto* stay = std::get_if<CompanionLine::Stay>(&line->task);
    return stay != nullptr && *stay == CompanionLine::Stay::Listen ? listen(companion) : showIcon(companion, *line);
}

}  // namespace

}  // namespace tavi

int main(int argc, char** argv) {
    return tavi::run(argc, argv);
}
