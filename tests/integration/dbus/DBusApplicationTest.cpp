#include "adapters/dbus/DBusApplication.h"
#include "adapters/dbus/LockObject.h"

#include <gmock/gmock.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QTemporaryDir>
#include <QTimer>
#include <future>
#include <thread>

#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/DBusRecorder.h"
#include "adapters/dbus/HandOver.h"
#include "adapters/dbus/InstanceLock.h"
#include "adapters/dbus/LogindSleep.h"
#include "adapters/dbus/RecordingObject.h"
#include "adapters/dbus/SessionLock.h"
#include "support/EventLoop.h"
#include "support/FakeDesktop.h"
#include "support/PrivateBus.h"

namespace tavi::test {

namespace {

using Kind = ActivationRequest::Kind;

/// Writes down what it is told: the life cycle by the calls' last word, URLs and shortcuts as they are.
struct RecordingDelegate : ApplicationDelegate {
    void applicationDidBecomeActive() override { calls << QStringLiteral("active"); }
    void applicationWillResignActive() override { calls << QStringLiteral("resign"); }
    void applicationDidEnterBackground() override { calls << QStringLiteral("background"); }
    void applicationWillEnterForeground() override { calls << QStringLiteral("foreground"); }
    void applicationWillTerminate() override { calls << QStringLiteral("terminate"); }
    bool applicationOpenURL(const QUrl& url) override {
        calls << QStringLiteral("open ") + url.toString();
        return true;
    }
    void applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                 std::function<void(bool)> completionHandler) override {
        calls << QStringLiteral("shortcut ") + item.type;
        completionHandler(false);
    }

    QStringList calls;
};

/// Takes any call and keeps the last.
struct Callee : QDBusVirtualObject {
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        last = message;
        return connection.send(message.createReply());
    }

    QDBusMessage last;
};

struct DBusApplicationTest : ::testing::Test {
    DBusApplicationTest() {
        m_application.setDelegate(&m_delegate);
        m_application.setShortcutItems({{QStringLiteral("Record"), QStringLiteral("Record Audio"), {}, {}},
                                        {QStringLiteral("Recordings"), QStringLiteral("Recordings"), {}, {}}});
    }

    /// Hands over from a second participant on the bus while the first one's event loop runs; "ok" or the error.
    std::string handedOver(const ActivationRequest& request,
                           std::chrono::milliseconds patience = std::chrono::seconds(20)) {
        const QDBusConnection second = m_bus.connect();
        std::atomic<bool> done = false;
        tl::expected<void, HandOverRefusal> result;
        std::thread caller([&] {
            result = handOver(second, m_name, request, patience);
            done = true;
        });
        EXPECT_TRUE(spinUntil([&done] { return done.load(); }));
        caller.join();
        return result ? "ok" : (result.error().isLocked ? "locked: " : "") + result.error().error.text.toStdString();
    }

    /// Waits until the delegate has been told exactly this, all in all since the last time.
    void expectCalls(const char* expected) {
        QString calls;
        spinUntil([&] {
            calls = m_delegate.calls.join(QLatin1String(", "));
            return calls.size() >= qsizetype(qstrlen(expected));
        });
        EXPECT_EQ(calls.toStdString(), expected);
        m_delegate.calls.clear();
    }

    PrivateBus m_bus;
    QDBusConnection m_desktopSide = m_bus.connect();
    FakeDesktop m_desktop{m_desktopSide, {FakeDesktop::screenSaver(), FakeDesktop::login()}};
    QString m_name = busNameForContainer({});
    RecordingDelegate m_delegate;
    SystemSleep m_sleep;
    NotificationCenter m_notifications;
    DBusApplication m_application{m_bus.connect(), m_bus.connect(), m_name, {m_sleep, m_notifications}};
};

TEST_F(DBusApplicationTest, ASecondStartHandsOverToTheFirst) {
    EXPECT_THAT(handedOver({}, std::chrono::milliseconds(1)),
                ::testing::StartsWith("The instance that is already running did not take"));
    ASSERT_EQ(m_application.claim(), DBusApplication::Claim::First);
    const DBusApplication::Services services{m_sleep, m_notifications};
    EXPECT_EQ(DBusApplication(m_bus.connect(), PrivateBus::none(), m_name, services).claim(),
              DBusApplication::Claim::AlreadyRunning);
    EXPECT_EQ(DBusApplication(PrivateBus::none(), PrivateBus::none(), m_name, services).claim(),
              DBusApplication::Claim::NoBus);
    QRasterWindow window;
    m_application.setWindow(&window);

    // Before the launch has finished, calls are taken and wait.
    EXPECT_EQ(handedOver({Kind::Action, {}, QStringLiteral("RECORD")}), "ok");
    EXPECT_EQ(handedOver({Kind::Open, {QStringLiteral("TaviRecordStart:")}, {}}), "ok");
    EXPECT_TRUE(m_delegate.calls.isEmpty());
    window.show();
    ASSERT_TRUE(spinUntil([&window] { return window.isExposed(); }));
    EXPECT_TRUE(m_delegate.calls.isEmpty());
    m_application.launchFinished();
    expectCalls("shortcut Record, open tavirecordstart:, active");

    EXPECT_EQ(handedOver({Kind::Action, {}, QStringLiteral("library")}), "ok");
    EXPECT_EQ(handedOver({Kind::Action, {}, QStringLiteral("Stop")}), "ok");
    const std::pair<QStringList, const char*> untaken[] = {
        {{QStringLiteral("x:y")}, "The recorder does not open “x:y”."}, {{}, "There is nothing to open."}};
    for (const auto& [uris, why] : untaken) {
        EXPECT_THAT(handedOver({Kind::Open, uris, {}}), ::testing::EndsWith(why));
    }
    EXPECT_EQ(handedOver({Kind::Open, {QStringLiteral("//tmp/a b%#.wav"), QStringLiteral("file:///x%FF")}, {}}), "ok");
    expectCalls(
        "shortcut Recordings, open tavirecordstop:, open x:y, open file:////tmp/a b%25%23.wav, open file:///x%FF");

    EXPECT_THAT(handedOver({Kind::Action, {}, QStringLiteral("dance")}), ::testing::HasSubstr("no action “dance”"));
    EXPECT_THAT(handedOver({Kind::Open, {QStringLiteral("a.wav")}, {}}), ::testing::HasSubstr("“a.wav”"));
    EXPECT_TRUE(m_delegate.calls.isEmpty());
}

TEST_F(DBusApplicationTest, RefusesTheLibraryWhileLockedAndRecordsAllTheSame) {
    LockState lock;
    m_application.setLockState(lock);
    ASSERT_EQ(m_application.claim(), DBusApplication::Claim::First);
    const auto isLocked = [this, bus = m_bus.connect()] {
        std::future<std::optional<bool>> answer =
            std::async(std::launch::async, [&] { return isInstanceLocked(bus, m_name); });
        spinUntil([&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return answer.get();
    };
    EXPECT_EQ(isLocked(), false);
    lock.setLocked(true);
    EXPECT_EQ(isLocked(), true);
    m_application.launchFinished();
    const std::pair<ActivationRequest, const char*> rows[] = {
        {{Kind::Action, {}, QStringLiteral("library")}, "locked: The recorder is locked."},
        {{Kind::Action, {}, QStringLiteral("Recordings")}, "locked: The recorder is locked."},
        {{Kind::Open, {QStringLiteral("TaviliteConnect:")}, {}}, "locked: The recorder is locked."},
        {{Kind::Action, {}, QStringLiteral("Record")}, "ok"},
        {{Kind::Open, {QStringLiteral("TaviRecordStop:")}, {}}, "ok"},
        {{Kind::Open, {QStringLiteral("TaviliteConnect:"), QStringLiteral("file:///a")}, {}}, "ok"},
        {{}, "ok"}};
    for (const auto& [request, answer] : rows) {
        EXPECT_THAT(handedOver(request), ::testing::StartsWith(answer));
    }
    expectCalls("shortcut Record, open tavirecordstop:, open taviliteconnect:, open file:///a");
    QRasterWindow window;
    m_application.setWindow(&window);
    handedOver(rows[0].first);
    EXPECT_TRUE(window.isVisible()) << "where the passcode can be entered";
    EXPECT_EQ(isInstanceLocked(PrivateBus::none(), m_name), std::nullopt);
}

TEST_F(DBusApplicationTest, WhateverIsAskedShowsAHiddenWindow) {
    // The second start comes before the first has got the name.
    QTimer::singleShot(100, &m_application,
                       [this] { EXPECT_EQ(m_application.claim(), DBusApplication::Claim::First); });
    QRasterWindow window;
    m_application.setWindow(&window);
    m_application.launchFinished();
    EXPECT_TRUE(m_delegate.calls.isEmpty());
    const std::pair<ActivationRequest, const char*> cases[] = {
        {{}, "active"},
        {{Kind::Open, {QStringLiteral("TaviRecordStop:")}, {}}, "open tavirecordstop:, foreground, active"},
        {{Kind::Action, {}, QStringLiteral("Record")}, "shortcut Record, foreground, active"},
        {{}, "foreground, active"}};
    bool isMinimised = false;
    for (const auto& [request, calls] : cases) {
        EXPECT_EQ(handedOver(request), "ok");
        EXPECT_TRUE(window.isVisible() && !window.windowStates().testFlag(Qt::WindowMinimized));
        expectCalls(calls);
        isMinimised = !isMinimised;
        isMinimised ? window.showMinimized() : window.hide();
        spinUntil([this] { return m_delegate.calls.contains(QStringLiteral("background")); });
        m_delegate.calls.clear();
    }
}

TEST_F(DBusApplicationTest, WhoeverHasChangedTheRecordingsTellsWithoutShowingTheWindow) {
    QRasterWindow window;
    m_application.setWindow(&window);
    int refreshes = 0;
    QObject::connect(&m_application, &DBusApplication::refreshRequested, &m_application, [&refreshes] { ++refreshes; });
    const QDBusConnection second = m_bus.connect();
    const auto tell = [&] {
        std::atomic<bool> done = false;
        std::thread caller([&] {
            tellOfChange(second, m_name);
            done = true;
        });
        EXPECT_TRUE(spinUntil([&done] { return done.load(); }));
        caller.join();
    };
    tell();
    ASSERT_EQ(m_application.claim(), DBusApplication::Claim::First);
    tell();
    EXPECT_EQ(refreshes, 0);
    m_application.launchFinished();
    EXPECT_EQ(refreshes, 1) << "told while it was starting";
    tell();
    EXPECT_EQ(refreshes, 2);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(DBusApplicationTest, TheDesktopsTokensGoWithTheRequest) {
    const std::map<QString, QVariant> tokens{{QStringLiteral("activation-token"), QStringLiteral("wayland")},
                                             {QStringLiteral("desktop-startup-id"), QStringLiteral("x11")}};
    qputenv("XDG_ACTIVATION_TOKEN", "wayland");
    qputenv("DESKTOP_STARTUP_ID", "x11");
    QDBusConnection running = m_bus.connect();
    Callee callee;
    running.registerVirtualObject(kApplicationObjectPath, &callee);
    ASSERT_TRUE(running.registerService(m_name));
    const std::pair<ActivationRequest, const char*> cases[] = {
        {{}, "Activate a{sv}"},
        {{Kind::Open, {QStringLiteral("x:y")}, {}}, "Open asa{sv}"},
        {{Kind::Action, {}, QStringLiteral("a")}, "ActivateAction sava{sv}"}};
    for (const auto& [request, call] : cases) {
        EXPECT_EQ(handedOver(request), "ok");
        EXPECT_EQ(callee.last.member() + QLatin1Char(' ') + callee.last.signature(), QLatin1String(call));
        EXPECT_EQ(qdbus_cast<QVariantMap>(callee.last.arguments().last()).toStdMap(), tokens);
    }
    qunsetenv("XDG_ACTIVATION_TOKEN");
    qunsetenv("DESKTOP_STARTUP_ID");
}

TEST_F(DBusApplicationTest, FollowsWindowSessionAndSleep) {
    QStringList posted;
    QObject::connect(&m_notifications, &NotificationCenter::posted,
                     [&posted](const QString& name) { posted << name.mid(13).chopped(12); });
    QRasterWindow window;
    m_application.setWindow(&window);
    m_application.launchFinished();
    window.show();
    expectCalls("active");
    window.requestActivate();
    ASSERT_TRUE(spinUntil([] { return QGuiApplication::applicationState() == Qt::ApplicationActive; }));
    for (const auto leave : {&QWindow::hide, &QWindow::showMinimized}) {
        (window.*leave)();
        expectCalls("resign, background");
        window.showNormal();
        window.requestActivate();
        expectCalls("foreground, active");
    }

    ASSERT_TRUE(spinUntil([this] { return m_desktop.isWatched; }));
    m_desktop.setScreenSaverActive(true);
    expectCalls("resign, background");
    m_desktop.setScreenSaverActive(false);
    expectCalls("foreground, active");
    m_desktop.setLockedHint(true);
    expectCalls("resign, background");
    // Locked twice over: only the last unlocking counts.
    m_desktop.emitSessionSignal(QStringLiteral("Lock"));
    m_desktop.setLockedHint(false);
    m_desktop.emitSessionSignal(QStringLiteral("Unlock"));
    expectCalls("foreground, active");
    posted.erase(posted.begin() + 3, posted.end());
    EXPECT_EQ(posted, (QStringList{QStringLiteral("DidFinishLaunching"), QStringLiteral("DidEnterBackground"),
                                   QStringLiteral("WillEnterForeground")}));
    Q_EMIT m_sleep.willSleep(nullptr);
    EXPECT_EQ(posted.size(), 4) << "before anything else is done";
    expectCalls("resign, background");
    Q_EMIT m_sleep.hasWoken(1.0);
    expectCalls("foreground, active");
    QMetaObject::invokeMethod(QCoreApplication::instance(), "aboutToQuit");
    window.hide();
    expectCalls("terminate");
}

TEST_F(DBusApplicationTest, ALockIsKnownFromTheStartAndAMereRequestEndsWhenTheUserIsBack) {
    const auto becomes = [](const SessionLock& lock, bool isLocked) {
        return spinUntil([&] { return lock.isLocked() == isLocked; });
    };
    for (const bool isHint : {false, true}) {
        m_desktop.setLockedHint(isHint);
        m_desktop.setScreenSaverActive(!isHint);
        SessionLock lock(m_bus.connect(), m_bus.connect());
        EXPECT_FALSE(lock.isLocked());
        EXPECT_TRUE(becomes(lock, true));
        lock.userIsBack();
        EXPECT_TRUE(lock.isLocked());
    }
    m_desktop.setLockedHint(false);
    m_desktop.isWatched = false;
    SessionLock lock(PrivateBus::none(), m_bus.connect());
    ASSERT_TRUE(spinUntil([this] { return m_desktop.isWatched; }));
    m_desktop.emitSessionSignal(QStringLiteral("Lock"));
    ASSERT_TRUE(becomes(lock, true));
    lock.userIsBack();
    EXPECT_FALSE(lock.isLocked());

    m_desktop.setScreenSaverActive(true);
    SessionLock saved(m_bus.connect(), PrivateBus::none());
    ASSERT_TRUE(becomes(saved, true));
    m_desktop.disown(FakeDesktop::screenSaver());
    EXPECT_TRUE(becomes(saved, false));
}

TEST_F(DBusApplicationTest, TheMachineSleepsOnceNobodyHoldsItUp) {
    double asleep = 5.0;
    LogindSleep sleep(m_bus.connect(), QStringLiteral("Recording"), [&asleep] { return asleep; });
    std::vector<double> told;
    std::shared_ptr<void> kept;
    QObject::connect(&sleep, &SystemSleep::willSleep, [&](const std::shared_ptr<void>& delay) { kept = delay; });
    QObject::connect(&sleep, &SystemSleep::hasWoken, [&](double seconds) { told.push_back(seconds); });
    const auto delayBecomes = [this](bool isDelayed) {
        return spinUntil([&] { return m_desktop.isSleepDelayed() == isDelayed; });
    };
    EXPECT_TRUE(delayBecomes(true));
    EXPECT_EQ(m_desktop.sleepInhibitor, QStringLiteral("sleep Recording delay"));
    m_desktop.prepareForSleep(true);
    ASSERT_TRUE(spinUntil([&kept] { return kept != nullptr; }));
    EXPECT_TRUE(m_desktop.isSleepDelayed());
    kept.reset();
    EXPECT_TRUE(delayBecomes(false));
    asleep += 90.0;
    m_desktop.prepareForSleep(false);
    EXPECT_TRUE(delayBecomes(true));
    EXPECT_EQ(told, std::vector{90.0});
    // The login manager is started anew, and has never said that the sleep is over.
    m_desktop.prepareForSleep(true);
    ASSERT_TRUE(spinUntil([&kept] { return kept != nullptr; }));
    kept.reset();
    m_desktop.disown(FakeDesktop::login());
    m_desktop.own(FakeDesktop::login());
    // The delay that was given back may be seen to go only now.
    EXPECT_TRUE(spinUntil([&] { return told == std::vector{90.0, 0.0} && m_desktop.isSleepDelayed(); }));
}

/// Takes any call, and leaves it without an answer.
struct Hung : Callee {
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        asked << message;
        return true;
    }

    QList<QDBusMessage> asked;
};

TEST(DBusRecorder, TellsWhatTheRecorderDoesAndWhenItHangs) {
    PrivateBus bus;
    Hung object;
    QDBusConnection there = bus.connect();
    const QString name = busNameForContainer({});
    ASSERT_TRUE(there.registerVirtualObject(kApplicationObjectPath, &object) && there.registerService(name));
    DBusRecorder recorder(bus.connect(), name, {QStringLiteral("/absent")}, std::chrono::milliseconds(50));
    QStringList phases;
    recorder.setStateHandler([&] { phases << phaseName(recorder.state().phase); });
    ASSERT_TRUE(spinUntil([&] { return recorder.isKnown() && !object.asked.isEmpty(); }));
    std::string why;
    recorder.open(QUrl(QStringLiteral("x:y")),
                  [&why](Recorder::Outcome, const Error& error) { why = error.text.toStdString(); });
    ASSERT_TRUE(spinUntil([&why] { return !why.empty(); }));
    EXPECT_EQ(why, "The recorder does not answer.");
    // When it goes on it answers everything; what it tells of itself before is newer than what it was asked.
    QDBusMessage change = QDBusMessage::createSignal(
        kApplicationObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
    change << QString(kRecordingInterface) << QVariantMap{{QStringLiteral("State"), QStringLiteral("recording")}}
           << QStringList();
    there.send(change);
    for (const QDBusMessage& question : object.asked) {
        there.send(question.createReply(QVariantMap{{QStringLiteral("State"), QStringLiteral("paused")}}));
    }
    there.unregisterService(name);
    ASSERT_TRUE(spinUntil([&phases] { return phases.contains(QStringLiteral("absent")); }));
    EXPECT_EQ(phases.join(u' ').toStdString(), "silent recording absent");

    there.unregisterObject(kApplicationObjectPath);
    QObject own;
    LockState lock;
    RecordingObject recording(&own, lock, there);
    ASSERT_TRUE(there.registerObject(kApplicationObjectPath, &own, QDBusConnection::ExportAdaptors));
    ASSERT_TRUE(there.registerService(name));
    ASSERT_TRUE(spinUntil([&phases] { return phases.last() == u"idle"; }));
    recording.setState({.phase = RecorderState::Phase::Paused, .seconds = 7});
    lock.setLocked(true);
    ASSERT_TRUE(spinUntil([&phases] { return phases.last() == u"locked"; }));
    EXPECT_EQ(recorder.state().seconds, 0);
    lock.setLocked(false);
    ASSERT_TRUE(spinUntil([&phases] { return phases.last() == u"paused"; }));
    EXPECT_EQ(recorder.state().seconds, 7);
}

TEST(BusName, IsOneForEachFolder) {
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.path().toStdString();
    const QString name = busNameForContainer(path);
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(QStringLiteral("link"))));
    EXPECT_EQ(busNameForContainer(path / "link/"), name);
    EXPECT_NE(busNameForContainer(path.native() + "x"), name);
    EXPECT_TRUE(name.startsWith(busNameForContainer({}) + QLatin1String(".c")));
}

TEST(InstanceLock, KeepsASecondOneOutUntilItIsGone) {
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.path().toStdString();
    const QByteArray process = QByteArray::number(QCoreApplication::applicationPid());
    QFile file(folder.filePath(QStringLiteral("instance.lock")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.write("12345678901234\n") > 0 && file.flush());
    for (int round = 0; round < 2; ++round) {
        const InstanceLock first = InstanceLock::take(path).value();
        file.seek(0);
        EXPECT_EQ(file.readAll(), process + '\n');
        const auto second = InstanceLock::take(path);
        ASSERT_TRUE(!second && second.error().isHeld);
        EXPECT_TRUE(second.error().error.text.contains(QString::fromLatin1(process)));
    }
    const auto lost = InstanceLock::take(path / "absent");
    ASSERT_TRUE(!lost && !lost.error().isHeld);
    EXPECT_TRUE(lost.error().error.text.endsWith(QStringLiteral("/absent/instance.lock”: No such file or directory.")));
}

}  // namespace

}  // namespace tavi::test

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
