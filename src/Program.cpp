#include "Program.h"

#include <QDBusConnection>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLibrary>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QScreen>
#include <memory>
#include <optional>
#include <thread>

#include "Cloud.h"
#include "CompanionChannel.h"
#include "DisplayGuard.h"
#include "LastMoment.h"
#include "Output.h"
#include "Platform.h"
#include "Screens.h"
#include "adapters/qt/TerminationSignals.h"
#include "app/AppDelegate.h"
#include "app/CloudPage.h"
#include "app/SettingVC.h"
#include "library/CloudSection.h"
#include "library/PlayerPanel.h"
#include "library/RecordingExport.h"
#include "library/RecordingImport.h"
#include "library/RecordingLister.h"
#include "library/RecordingShapes.h"
#include "library/RecordingSharing.h"
#include "library/RecordingTable.h"
#include "library/VoiceMemoVC.h"
#include "passcode/ApplicationDelegateGuard.h"
#include "passcode/FXKeychain.h"
#include "passcode/PasscodeCoordinator.h"
#include "recording/AudioRecordVC.h"
#include "recording/RecordingRescue.h"
#include "recording/SessionGuard.h"
#include "trimming/AudioTrimmerStage.h"
#include "trimming/waves/WaveformLoader.h"
#include "ui/AccessibleItem.h"
#include "ui/Texts.h"
#include "ui/WindowPlace.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcApp, "tavi.app", QtInfoMsg)

const QString kWindow = QStringLiteral("qrc:/Tavi/Main.qml");

/// The screens, and what only they share. Wired by the members' names.
struct Screens {
    explicit Screens(Platform& services) : platform(services) {
        QObject::connect(&keychain, &FXKeychain::troubleChanged, &passcode,
                         &PasscodeCoordinator::secureStoreTroubleChanged);
        QObject::connect(&keychain, &FXKeychain::troubleChanged, &cloud, &Cloud::keychainChanged);
        // Nothing is spoken that cannot be seen.
        platform.announcements.follow(platform.noticeLine, &NoticeLine::noticeChanged, [this] {
            return platform.lockState.isLocked() ? QString() : platform.noticeLine.text();
        });
        platform.announcements.follow(platform.hudView, &JHUD::shownChanged, [this] {
            return platform.lockState.isLocked() ? QString() : platform.hudView.text();
        });
        platform.announcements.follow(recording, &AudioRecordVC::outletsChanged, [this] {
            const bool isSeen = !platform.lockState.isLocked() && !recording.lblRecording().hidden;
            return isSeen ? recording.lblRecording().text : QString();
        });
        QObject::connect(&sharing, &RecordingSharing::dataPicked, &imports,
                         &RecordingImport::saveImagesInIPhoneWithName);
        QObject::connect(&imports, &RecordingImport::imported, &library, &VoiceMemoVC::reloadData);
        QObject::connect(&platform.application, &DBusApplication::refreshRequested, &library, &VoiceMemoVC::reloadData);
    }

    Platform& platform;
    EZAudioFile::Services waveformServices{
        .files = platform.media, .converters = platform.media, .queues = platform.runLoop};
    Cloud cloud{{.container = platform.container,
                 .defaults = platform.settings.standard,
                 .settings = platform.settings.store,
                 .runLoop = platform.runLoop,
                 .notifications = platform.notifications,
                 .keychain = platform.keychain,
                 .reachability = platform.reachability}};
    RecordingCloud recordingCloud{{.documents = cloud.documents(),
                                   .settings = platform.settings.store,
                                   .presenter = platform.presenter,
                                   .runLoop = platform.runLoop}};
    RecordingRescue rescue{{.container = platform.container,
                            .repair = platform.media,
                            .runLoop = platform.runLoop,
                            .notifications = platform.notifications,
                            .notices = platform.notices}};
    SessionFile sessionFile{{.settings = platform.settings.store,
                             .formatHold = platform.formatHold,
                             .container = platform.container,
                             .runLoop = platform.runLoop,
                             .notifications = platform.notifications,
                             .presenter = platform.presenter,
                             .mailComposer = platform.mailComposer,
                             .notices = platform.notices,
                             .rescue = rescue,
                             .cloud = recordingCloud}};
    LastRecording lastRecording{{.container = platform.container,
                                 .durations = platform.media,
                                 .files = platform.media,
                                 .runLoop = platform.runLoop}};
    AudioRecordVC recording{{.audioSession = platform.audioSession,
                             .audioRecorders = platform.audioRecorders,
                             .settings = platform.settings.store,
                             .container = platform.container,
                             .runLoop = platform.runLoop,
                             .presenter = platform.presenter,
                             .tabBar = platform.tabBar,
                             .sessionFile = sessionFile,
                             .notices = platform.notices,
                             .cloud = recordingCloud,
                             .last = lastRecording}};
    SessionGuard sessionGuard{recording, platform.formatHold, platform.systemSleep, platform.sessionEnd};
    RecordingLister lister{platform.media, platform.runLoop};
    RecordingLister cloudLister{platform.media, platform.runLoop};
    RecordingShapes shapes{platform.media, platform.runLoop};
    WaveformLoader waveforms{waveformServices};
    PlayerPanel player{{.players = platform.audioPlayers,
                        .session = platform.audioSession,
                        .remoteControl = platform.remoteControl,
                        .settings = platform.settings.store,
                        .notices = platform.notices,
                        .runLoop = platform.runLoop,
                        .waveforms = waveforms}};
    WaveformLoader trimmerWaveforms{waveformServices};
    AudioTrimmerStage trimmers{
        {.exports = platform.media,
         .players = platform.audioPlayers,
         .recorder = {.recorders = platform.audioRecorders, .audioSession = platform.audioSession},
         .waveforms = trimmerWaveforms,
         .refreshes = platform.refreshes,
         .container = platform.container,
         .notifications = platform.notifications,
         .notices = platform.notices,
         .runLoop = platform.runLoop}};
    RecordingTable table{{.settings = platform.settings.store,
                          .container = platform.container,
                          .lister = lister,
                          .cloudLister = cloudLister,
                          .shapes = shapes}};
    RecordingExport exporter{{.documentPicker = platform.documentPicker,
                              .presenter = platform.presenter,
                              .notices = platform.notices,
                              .notifications = platform.notifications,
                              .container = platform.container,
                              .runLoop = platform.runLoop}};
    RecordingSharing sharing{{.docController = platform.documentInteraction,
                              .picker = platform.mailComposer,
                              .pasteboard = platform.pasteboard,
                              .presenter = platform.presenter,
                              .notices = platform.notices,
                              .runLoop = platform.runLoop,
                              .exporter = exporter}};
    AudioTrimStage audioTrims{{.exports = platform.media,
                               .readers = platform.media,
                               .players = platform.audioPlayers,
                               .settings = platform.settings.store,
                               .container = platform.container,
                               .presenter = platform.presenter,
                               .notices = platform.notices,
                               .runLoop = platform.runLoop,
                               .cloud = cloud.documents()}};
    RecordingActions actions{{.table = table,
                              .settings = platform.settings.store,
                              .cloud = cloud.documents(),
                              .sharing = sharing,
                              .trash = platform.trash,
                              .trimmers = trimmers,
                              .audioTrims = audioTrims,
                              .presenter = platform.presenter,
                              .notices = platform.notices,
                              .runLoop = platform.runLoop}};
    CloudSection cloudSection{{.documents = cloud.documents(),
                               .connection = cloud,
                               .table = table,
                               .settings = platform.settings.store,
                               .container = platform.container,
                               .runLoop = platform.runLoop,
                               .presenter = platform.presenter,
                               .reachability = platform.reachability}};
    VoiceMemoVC library{{.settings = platform.settings.store,
                         .notifications = platform.notifications,
                         .remoteControl = platform.remoteControl,
                         .notices = platform.notices},
                        table,
                        player,
                        actions,
                        cloudSection};
    RatingStore ratingStore{platform.settings.standard};
    AppRater appRater{{.store = ratingStore,
                       .runLoop = platform.runLoop,
                       .presenter = platform.presenter,
                       .notices = platform.notices,
                       .notifications = platform.notifications,
                       .formatHold = platform.formatHold,
                       .lockState = platform.lockState,
                       .softwareStore = {.catalogue = platform.catalogue, .urlOpener = platform.urlOpener}}};
    SupportRows supportRows{{.appRater = appRater,
                             .urlOpener = platform.urlOpener,
                             .mailComposer = platform.mailComposer,
                             .notices = platform.notices,
                             .settings = platform.settings.store,
                             .audioSession = platform.audioSession}};
    FXKeychain& keychain = FXKeychain::defaultKeychain();
    PasscodeCoordinator passcode{{.settings = platform.settings.store,
                                  .keychain = keychain,
                                  .notifications = platform.notifications,
                                  .runLoop = platform.runLoop,
                                  .presenter = platform.presenter,
                                  .lockState = platform.lockState}};
    CloudPage cloudPage{{.cloud = cloud,
                         .picker = platform.documentPicker,
                         .presenter = platform.presenter,
                         .reachability = platform.reachability}};
    SettingVC settings{{.settings = platform.settings.store,
                        .formatHold = platform.formatHold,
                        .runLoop = platform.runLoop,
                        .presenter = platform.presenter,
                        .tabBar = platform.tabBar,
                        .support = supportRows,
                        .passcode = passcode,
                        .cloud = cloudPage}};
    RecordingImport imports{{.container = platform.container,
                             .runLoop = platform.runLoop,
                             .notices = platform.notices,
                             .presenter = platform.presenter,
                             .settings = platform.settings.store,
                             .cloud = cloud.documents()}};
    AppDelegate delegate{{.application = platform.application,
                          .idleTimer = platform.idleTimer,
                          .settings = platform.settings.store,
                          .sharedDefaults = platform.settings.shared,
                          .container = platform.container,
                          .audioSession = platform.audioSession,
                          .tabBar = platform.tabBar,
                          .objrecordVC = recording,
                          .imports = imports,
                          .hudView = platform.hudView,
                          .appRater = appRater,
                          .passcode = passcode}};
    ApplicationDelegateGuard guardedDelegate{delegate, platform.lockState};
};

/// Tells companions what is recorded.
void tellCompanions(Screens& screens) {
    const auto tell = [&recording = screens.recording, &application = screens.platform.application] {
        using Phase = RecorderState::Phase;
        const Phase ofSession = recording.isRecordingRunning() ? Phase::Recording : Phase::Paused;
        application.setRecorderState(
            {.phase = recording.isRecording() ? ofSession : Phase::Idle, .seconds = recording.seconds()});
    };
    QObject::connect(&screens.recording, &AudioRecordVC::outletsChanged, &screens.platform.application, tell);
    QObject::connect(&screens.recording, &AudioRecordVC::clockChanged, &screens.platform.application, tell);
}

/// How the window is painted, unless the environment says otherwise. Before the application is made.
void choosePainting() {
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND")) {
        // Painting in software starts sooner, and repaints the few pixels that change for less.
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME")) {
        // A picture follows its cause at once; the usual pause between them would cost another wake-up each time.
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    }
}

void describe(QGuiApplication& application) {
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVI_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tavi"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quillfen.voicerecorder"));
    QGuiApplication::setFont(QFont(QStringLiteral("Roboto")));
    QGuiApplication::setLayoutDirection(installTexts(application));
    installAccessibleItems();
}

/// Builds the window; null where it cannot be built. The engine owns it.
QQuickWindow* loadWindow(QQmlApplicationEngine& engine, Screens& screens) {
    QList<QRect> free;
    for (const QScreen* screen : QGuiApplication::screens()) {
        free.append(screen->availableGeometry());
    }
    const QRect place = WindowPlace(screens.platform.settings.standard).place(free);
    engine.setInitialProperties({{QStringLiteral("recording"), QVariant::fromValue(&screens.recording)},
                                 {QStringLiteral("library"), QVariant::fromValue(&screens.library)},
                                 {QStringLiteral("opener"), QVariant::fromValue(&screens.guardedDelegate)},
                                 {QStringLiteral("settings"), QVariant::fromValue(&screens.settings)},
                                 {QStringLiteral("tabBar"), QVariant::fromValue(&screens.platform.tabBar)},
                                 {QStringLiteral("presenter"), QVariant::fromValue(&screens.platform.presenter)},
                                 {QStringLiteral("notices"), QVariant::fromValue(&screens.platform.noticeLine)},
                                 {QStringLiteral("hudView"), QVariant::fromValue(&screens.platform.hudView)},
                                 {QStringLiteral("savePanel"), QVariant::fromValue(&screens.platform.savePanel)},
                                 {QStringLiteral("appRater"), QVariant::fromValue(&screens.appRater)},
                                 {QStringLiteral("trimmers"), QVariant::fromValue(&screens.trimmers)},
                                 {QStringLiteral("audioTrims"), QVariant::fromValue(&screens.audioTrims)},
                                 {QStringLiteral("passcode"), QVariant::fromValue(&screens.passcode)},
                                 {QStringLiteral("reducedMotion"), qEnvironmentVariableIsSet("TAVI_REDUCED_MOTION")},
                                 {QStringLiteral("x"), place.x()},
                                 {QStringLiteral("y"), place.y()},
                                 {QStringLiteral("width"), place.width()},
                                 {QStringLiteral("height"), place.height()}});
    engine.load(QUrl(kWindow));
    return engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
}

/// What the window does for its screens, and they for it.
void connectWindow(QQuickWindow* window, Screens& screens) {
    const auto shown = [&platform = screens.platform, &rescue = screens.rescue, &imports = screens.imports] {
        qCDebug(lcApp, "first-frame");
        rescue.rescue();
        imports.removeLeftovers();
        platform.reachability.load();
        platform.runLoop.dispatchBackground([&media = platform.media] { media.load(); });
    };
    QObject::connect(window, &QQuickWindow::frameSwapped, window, shown, Qt::SingleShotConnection);
    QObject::connect(&screens.library, &VoiceMemoVC::raiseRequested, window, [window] {
        window->showNormal();
        window->raise();
        window->requestActivate();
    });
    QObject::connect(&screens.library, &VoiceMemoVC::quitRequested, window, &QWindow::close);
    screens.platform.refreshes.setWindow(window);
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        screens.platform.portal.setParentWindow(QStringLiteral("x11:") + QString::number(window->winId(), 16));
    }
}

}  // namespace

int runProgram(int& argc, char** argv, const ProgramRequest& request, const QString& busName,
               const AppContainer& container) {
    choosePainting();
    auto display = std::make_optional<DisplayGuard>();
    // What takes time to load and is needed soon is loaded beside what the desktop is asked meanwhile.
    const std::jthread controls([] { QLibrary(QStringLiteral("Qt6QuickTemplates2"), 6).load(); });
    QGuiApplication application(argc, argv);
    const std::jthread services([] {
        QDBusConnection::sessionBus();
        QDBusConnection::systemBus();
        QFontDatabase::families();
    });
    display.reset();
    describe(application);
    const TerminationSignals signals([](int) { QCoreApplication::quit(); });
    // QML is read on a thread of its own while this one puts the rest together.
    std::optional<Platform> platform;
    std::optional<Screens> screens;
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(":/"));
    const QQmlComponent reading(&engine, QUrl(kWindow), QQmlComponent::Asynchronous);

    platform.emplace(container, busName);
    if (platform->settings.store.isPasscodeProtectionOn()) {
        platform->keychain.prepare();
    }
    screens.emplace(*platform);
    tellCompanions(*screens);
    std::optional<CompanionChannel> companions;
    if (request.companionChannel) {
        companions.emplace(container, platform->runLoop, platform->bus, LocalWatchSession::End::Recorder,
                           *request.companionChannel);
        screens->recording.setWormhole(&companions->receiver());
    }
    const LastMoment lastMoment([&delegate = screens->delegate] { delegate.applicationWillTerminate(); });
    screens->delegate.applicationDidFinishLaunching({request.shortcutType});
    QQuickWindow* window = loadWindow(engine, *screens);
    if (window == nullptr) {
        return reportFailure({QStringLiteral("the window cannot be built")});
    }
    connectWindow(window, *screens);
    WindowPlace::follow(*window, platform->settings.standard);
    platform->application.setDelegate(&screens->guardedDelegate);
    platform->application.setWindow(window);
    for (const QUrl& url : request.urls) {
        screens->guardedDelegate.applicationOpenURL(url);
    }
    platform->application.launchFinished();
    return QGuiApplication::exec();
}

}  // namespace tavi
