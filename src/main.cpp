#include <QDBusConnection>
#include <QFont>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <chrono>
#include <cstdio>

#include "Headless.h"
#include "Screens.h"
#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/DBusApplication.h"
#include "adapters/dbus/DBusIdleTimer.h"
#include "adapters/dbus/HandOver.h"
#include "adapters/dbus/InstanceLock.h"
#include "adapters/dbus/MprisRemoteControl.h"
#include "adapters/desktop/DesktopMailComposer.h"
#include "adapters/player/FilePlayer.h"
#include "adapters/pulse/PulseAudioInput.h"
#include "adapters/pulse/PulseAudioOutput.h"
#include "adapters/pulse/PulseAudioSession.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/MediaLibrary.h"
#include "adapters/qt/QtAppContainer.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/qt/TerminationSignals.h"
#include "adapters/quick/QuickDisplayRefreshes.h"
#include "adapters/recorder/CaptureRecorder.h"
#include "app/AppDelegate.h"
#include "app/SettingVC.h"
#include "app/cli/CommandLine.h"
#include "library/PlayerPanel.h"
#include "library/RecordingLister.h"
#include "library/VoiceMemoVC.h"
#include "recording/AudioRecordVC.h"
#include "trimming/waves/WaveformLoader.h"
#include "ui/AlertPresenter.h"
#include "ui/TabBarController.h"
#include "ui/Texts.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcApp, "tavi.app", QtInfoMsg)

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

/// What this start does once the window is there.
LaunchOptions launchOptionsOf(const CommandLine& line) {
    switch (line.command) {
        case CommandLine::Command::Record:
            return {QStringLiteral("Record")};
        case CommandLine::Command::Library:
            return {QStringLiteral("Recordings")};
        default:
            return {};
    }
}

QList<QUrl> urlsOf(const CommandLine& line) {
    return line.command == CommandLine::Command::Stop ? QList<QUrl>{QUrl(QStringLiteral("TaviRecordStop:"))}
                                                      : line.urls;
}

/// The program with its window, until it is closed.
int runProgram(int& argc, char** argv, const CommandLine& line, const AppContainer& container) {
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND")) {
        // Painting in software starts sooner, and repaints the few pixels that change for less.
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME")) {
        // A picture follows its cause at once; the usual pause between them would cost another wake-up each time.
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    }
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tavi"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quillfen.voicerecorder"));
    QGuiApplication::setFont(QFont(QStringLiteral("Roboto")));
    installTexts(application);
    const TerminationSignals signals([](int) { QCoreApplication::quit(); });

    const QDBusConnection bus = QDBusConnection::sessionBus();
    DBusApplication desktop(bus, QDBusConnection::systemBus(), busNameForContainer(line.container));
    desktop.claim();

    SettingsFiles files(container);
    MediaLibrary media;
    QtRunLoop runLoop;
    const auto pulse = std::make_shared<PulseConnection>();
    PulseAudioSession audioSession(pulse);
    PulseAudioInputs audioInputs(pulse);
    CaptureRecorders audioRecorders(audioInputs, media, runLoop);
    DBusIdleTimer idleTimer(bus, qtTrId("idle_reason"));
    DesktopMailComposer mailComposer(bus);
    NotificationCenter notifications;
    AlertPresenter presenter;
    TabBarController tabBar;

    AudioRecordVC recording(
        {audioSession, audioRecorders, files.store, container, runLoop, presenter, tabBar, mailComposer});
    PulseAudioOutputs audioOutputs(pulse);
    FilePlayers audioPlayers(media, media, audioOutputs, runLoop);
    MprisRemoteControl remoteControl(bus);
    RecordingLister lister(media, runLoop);
    WaveformLoader waveforms({media, media, runLoop});
    QuickDisplayRefreshes refreshes;
    PlayerPanel player({audioPlayers, audioSession, remoteControl, files.store, runLoop, waveforms, refreshes});
    WaveformLoader trimmerWaveforms({media, media, runLoop});
    AudioTrimmerStage trimmers({media,
                                audioPlayers,
                                {audioRecorders, audioSession},
                                trimmerWaveforms,
                                refreshes,
                                container,
                                notifications,
                                runLoop});
    VoiceMemoVC library({files.store, container, notifications, lister, remoteControl, trimmers}, player);
    SettingVC settings({files.store, runLoop, presenter});
    AppDelegate delegate({desktop, idleTimer, files.store, files.shared, container, audioSession, tabBar, recording});

    delegate.applicationDidFinishLaunching(launchOptionsOf(line));
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(":/"));
    engine.setInitialProperties({{QStringLiteral("recording"), QVariant::fromValue(&recording)},
                                 {QStringLiteral("library"), QVariant::fromValue(&library)},
                                 {QStringLiteral("settings"), QVariant::fromValue(&settings)},
                                 {QStringLiteral("tabBar"), QVariant::fromValue(&tabBar)},
                                 {QStringLiteral("presenter"), QVariant::fromValue(&presenter)},
                                 {QStringLiteral("trimmers"), QVariant::fromValue(&trimmers)}});
    engine.load(QStringLiteral("qrc:/Tavi/Main.qml"));
    auto* window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
    if (window == nullptr) {
        return reportFailure({QStringLiteral("the window cannot be built")});
    }
    const auto shown = [&runLoop, &media] {
        qCDebug(lcApp, "first-frame");
        runLoop.dispatchBackground([&media] { media.load(); });
    };
    QObject::connect(window, &QQuickWindow::frameSwapped, window, shown, Qt::SingleShotConnection);
    QObject::connect(&library, &VoiceMemoVC::raiseRequested, window, [window] {
        window->showNormal();
        window->raise();
        window->requestActivate();
    });
    QObject::connect(&library, &VoiceMemoVC::quitRequested, window, &QWindow::close);
    refreshes.setWindow(window);
    desktop.setDelegate(&delegate);
    desktop.setWindow(window);
    for (const QUrl& url : urlsOf(line)) {
        delegate.applicationOpenURL(url);
    }
    desktop.launchFinished();
    return QGuiApplication::exec();
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
