#include <gmock/gmock.h>

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>

#include "adapters/dbus/MprisRemoteControl.h"
#include "support/EventLoop.h"
#include "support/PrivateBus.h"

namespace tavi::test {

using Subtype = RemoteControlEvent::Subtype;

/// Hears the signals of the player on the bus.
class SignalEar : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void onPropertiesChanged(const QString&, const QVariantMap& changed, const QStringList&) { changes << changed; }
    void onSeeked(qlonglong position) { jumps << position; }

public:
    QList<QVariantMap> changes;
    QList<qlonglong> jumps;
};

namespace {

const QString kName = QStringLiteral("org.mpris.MediaPlayer2.tavi");
const QString kPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString kRoot = QStringLiteral("org.mpris.MediaPlayer2");
const QString kPlayer = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

struct MprisTest : ::testing::Test, RemoteControlDelegate {
    MprisTest() { m_control.setDelegate(this); }
    void remoteControlReceivedWithEvent(const RemoteControlEvent& event) override { m_events.push_back(event); }
    double remoteControlCurrentTime() const override { return m_time; }

    /// The reply, once it is there.
    QDBusMessage ask(const QString& interface, const char* method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(kName, kPath, interface, QString::fromLatin1(method));
        message.setArguments(arguments);
        const QDBusPendingCall pending = m_desktop.asyncCall(message);
        EXPECT_TRUE(spinUntil([&pending] { return pending.isFinished(); }));
        return pending.reply();
    }
    QVariant property(const char* name, const QString& interface = kPlayer) {
        const QDBusMessage reply = ask(kProperties, "Get", {interface, QString::fromLatin1(name)});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }
    QVariant metadata(const char* key) {
        return qdbus_cast<QVariantMap>(property("Metadata")).value(QString::fromLatin1(key));
    }
    bool comesToBus(const QString& name = kName, bool isThere = true) {
        return spinUntil([&] { return m_desktop.interface()->isServiceRegistered(name) == isThere; });
    }
    static QVariantList rate(double value) {
        return {kPlayer, QStringLiteral("Rate"), QVariant::fromValue(QDBusVariant(value))};
    }

    PrivateBus m_bus;
    QDBusConnection m_program = m_bus.connect();
    QDBusConnection m_desktop = m_bus.connect();
    MprisRemoteControl m_control{m_program};
    NowPlayingInfo m_info{QStringLiteral("/a/Ünsound.m4a"), QStringLiteral("Ünsound"), 62.5,
                          NowPlayingInfo::PlaybackState::Playing, 1.0};
    std::vector<RemoteControlEvent> m_events;
    double m_time = 12.5;
};

TEST_F(MprisTest, HandsOnWhatIsPressedWhileItReceives) {
    m_control.setNowPlayingInfo(m_info);
    ask(kPlayer, "Play", {});
    EXPECT_TRUE(m_events.empty());

    m_control.beginReceivingRemoteControlEvents();
    m_control.beginReceivingRemoteControlEvents();
    ASSERT_TRUE(comesToBus());
    const QVariant trackId = metadata("mpris:trackid");
    const struct {
        RemoteControlEvent event;
        const char* method;
        QVariantList arguments;
        QString interface = kPlayer;
    } presses[] = {
        {{Subtype::Play}, "Play", {}},
        {{Subtype::Pause}, "Pause", {}},
        {{Subtype::TogglePlayPause}, "PlayPause", {}},
        {{Subtype::Stop}, "Stop", {}},
        {{Subtype::SkipForward}, "Next", {}},
        {{Subtype::SkipBackward}, "Previous", {}},
        {{Subtype::Seek, -1.5}, "Seek", {qlonglong{-1500000}}},
        {{Subtype::SetPosition, 62.5}, "SetPosition", {trackId, qlonglong{62500000}}},
        {{Subtype::SetPosition}, "SetPosition", {trackId, qlonglong{0}}},
        {{Subtype::SetRate, 2.0}, "Set", rate(2.0), kProperties},
        {{Subtype::SetRate, 0.5}, "Set", rate(0.5), kProperties},
        {{Subtype::Pause}, "Set", rate(0.0), kProperties},
        {{Subtype::Raise}, "Raise", {}, kRoot},
        {{Subtype::Quit}, "Quit", {}, kRoot},
    };
    for (const auto& each : presses) {
        ask(each.interface, each.method, each.arguments);
        EXPECT_EQ(std::exchange(m_events, {}), std::vector{each.event}) << each.method;
    }
    m_control.endReceivingRemoteControlEvents();
    ask(kPlayer, "Play", {});
    m_control.beginReceivingRemoteControlEvents();
    m_control.setDelegate(nullptr);
    ask(kPlayer, "Play", {});
    EXPECT_TRUE(m_events.empty());
}

TEST_F(MprisTest, ShowsWhatIsPlayed) {
    EXPECT_TRUE(comesToBus(kName, false));
    m_control.beginReceivingRemoteControlEvents();
    EXPECT_TRUE(comesToBus());
    EXPECT_EQ(property("PlaybackStatus"), QStringLiteral("Stopped"));
    EXPECT_EQ(property("CanPlay"), false);
    EXPECT_EQ(property("DesktopEntry", kRoot), QStringLiteral("com.quillfen.voicerecorder"));
    EXPECT_TRUE(property("CanRaise", kRoot) == true && property("CanQuit", kRoot) == true);
    EXPECT_TRUE(property("MinimumRate") == 0.5 && property("MaximumRate") == 2.0);

    SignalEar ear;
    m_desktop.connect(kName, kPath, kProperties, QStringLiteral("PropertiesChanged"), &ear,
                      SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
    m_desktop.connect(kName, kPath, kPlayer, QStringLiteral("Seeked"), &ear, SLOT(onSeeked(qlonglong)));
    m_control.setNowPlayingInfo(m_info);
    ASSERT_TRUE(spinUntil([&ear] { return !ear.changes.isEmpty(); }));
    QVariantMap told = ear.changes[0];
    EXPECT_TRUE(told.remove(QStringLiteral("Metadata")));
    EXPECT_EQ(told.take(QStringLiteral("PlaybackStatus")), QStringLiteral("Playing"));
    EXPECT_EQ(told.keys().join(QLatin1Char(' ')), QStringLiteral("CanGoNext CanGoPrevious CanPause CanPlay CanSeek"));
    EXPECT_FALSE(told.values().contains(false));
    EXPECT_EQ(metadata("xesam:title"), QStringLiteral("Ünsound"));
    EXPECT_EQ(metadata("mpris:length"), qlonglong{62500000});
    EXPECT_EQ(property("Position"), qlonglong{12500000});

    m_info.playbackRate = 0.5;
    m_info.playbackState = NowPlayingInfo::PlaybackState::Paused;
    m_control.setNowPlayingInfo(m_info);
    m_control.setNowPlayingInfo(m_info);
    m_time = 3.0;
    m_control.currentTimeDidJump();
    ASSERT_TRUE(spinUntil([&ear] { return !ear.jumps.isEmpty(); }));
    EXPECT_EQ(ear.jumps, QList<qlonglong>{3000000});
    ASSERT_EQ(ear.changes.size(), 2);
    EXPECT_EQ(ear.changes[1], (QVariantMap{{QStringLiteral("Rate"), 0.5},
                                           {QStringLiteral("PlaybackStatus"), QStringLiteral("Paused")}}));

    // Another recording's, one outside the recording, and rates that it does not have.
    const QVariant other = QVariant::fromValue(QDBusObjectPath(QStringLiteral("/other")));
    ask(kPlayer, "SetPosition", {other, qlonglong{1}});
    ask(kPlayer, "SetPosition", {metadata("mpris:trackid"), qlonglong{62500001}});
    ask(kPlayer, "SetPosition", {metadata("mpris:trackid"), qlonglong{-1}});
    ask(kProperties, "Set", rate(2.5));
    EXPECT_TRUE(m_events.empty());
    m_control.endReceivingRemoteControlEvents();
    EXPECT_TRUE(comesToBus(kName, false));
    // What changed while nobody looked is there the next time.
    m_control.setNowPlayingInfo({});
    m_control.beginReceivingRemoteControlEvents();
    EXPECT_TRUE(comesToBus());
    EXPECT_EQ(property("PlaybackStatus"), QStringLiteral("Stopped"));
    EXPECT_EQ(metadata("mpris:trackid").value<QDBusObjectPath>().path(), kPath + QStringLiteral("/TrackList/NoTrack"));
}

TEST_F(MprisTest, TakesANameOfItsOwnBesideAnotherInstance) {
    ASSERT_TRUE(m_desktop.registerService(kName));
    const QString name = kName + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid());
    m_control.beginReceivingRemoteControlEvents();
    EXPECT_TRUE(comesToBus(name));
    m_control.endReceivingRemoteControlEvents();
    EXPECT_TRUE(comesToBus(name, false));
    MprisRemoteControl lonely(PrivateBus::none());
    lonely.beginReceivingRemoteControlEvents();
    lonely.setNowPlayingInfo(m_info);
    lonely.currentTimeDidJump();
}

}  // namespace
}  // namespace tavi::test

#include "MprisTest.moc"
