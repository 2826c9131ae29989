#include <gmock/gmock.h>

#include "passcode/ApplicationDelegateGuard.h"
#include "passcode/MailComposerGuard.h"
#include "passcode/NoticesGuard.h"
#include "passcode/RemoteControlGuard.h"
#include "support/Fakes.h"

namespace tavi::test {

namespace {

using Subtype = RemoteControlEvent::Subtype;
using State = NowPlayingInfo::PlaybackState;

/// The player, as the desktop's controls know it.
struct Player : RemoteControlDelegate {
    void remoteControlReceivedWithEvent(const RemoteControlEvent& event) override { heard.push_back(event.subtype); }
    double remoteControlCurrentTime() const override { return 12.5; }

    std::vector<Subtype> heard;
};

TEST(RemoteControlGuard, ShowsNothingAndObeysPauseAndStopAloneWhileLocked) {
    FakeRemoteControl desktop;
    LockState lock;
    Player player;
    RemoteControlGuard guard(desktop, lock);
    guard.setDelegate(&player);
    guard.beginReceivingRemoteControlEvents();
    const NowPlayingInfo info{QStringLiteral("/a.m4a"), QStringLiteral("a"), 60.0, State::Playing, 1.5};
    const NowPlayingInfo hidden{QStringLiteral("locked"), {}, 0.0, State::Playing, 1.0};
    const auto press = [&](std::initializer_list<Subtype> keys) {
        player.heard.clear();
        for (const Subtype key : keys) {
            desktop.send(key, 1.0);
        }
        return player.heard;
    };
    const auto all = {Subtype::Play,  Subtype::Pause,       Subtype::TogglePlayPause,
                      Subtype::Stop,  Subtype::SkipForward, Subtype::SkipBackward,
                      Subtype::Seek,  Subtype::SetPosition, Subtype::SetRate,
                      Subtype::Raise, Subtype::Quit};
    guard.setNowPlayingInfo(info);
    EXPECT_EQ(desktop.info, info);
    EXPECT_EQ(press(all), std::vector<Subtype>(all));
    EXPECT_EQ(desktop.delegate->remoteControlCurrentTime(), 12.5);

    lock.setLocked(true);
    EXPECT_EQ(desktop.info, hidden);
    guard.currentTimeDidJump();
    EXPECT_EQ(desktop.jumps, 0);
    EXPECT_EQ(desktop.delegate->remoteControlCurrentTime(), 0.0);
    EXPECT_EQ(press(all), (std::vector{Subtype::Pause, Subtype::Pause, Subtype::Stop}));
    NowPlayingInfo paused = info;
    paused.playbackState = State::Paused;
    guard.setNowPlayingInfo(paused);
    EXPECT_EQ(desktop.info.title + QString::number(desktop.info.playbackDuration), QStringLiteral("0"));
    EXPECT_EQ(press({Subtype::TogglePlayPause}), std::vector<Subtype>{});
    guard.setNowPlayingInfo({});
    EXPECT_EQ(desktop.info, NowPlayingInfo());
    guard.setNowPlayingInfo(paused);

    lock.setLocked(false);
    EXPECT_EQ(desktop.info, paused);
    EXPECT_EQ(desktop.jumps, 1);
}

TEST(NoticesGuard, SaysNothingWhileLockedAndTheLatestAfterwards) {
    FakeNotices line;
    LockState lock;
    NoticesGuard guard(line, lock);
    const auto shown = [&line] {
        QStringList texts;
        for (const Notice& notice : line.posted) {
            texts << notice.text;
        }
        for (const FakeNotices::Work* work : line.works) {
            texts << QStringLiteral("%1 %2").arg(work->notice.text).arg(work->progress);
        }
        return texts.join(QLatin1Char(','));
    };
    guard.postNotice({QStringLiteral("open")});
    const auto work = guard.postProgress({QStringLiteral("work")});
    EXPECT_EQ(shown(), QStringLiteral("open,work 0"));
    lock.setLocked(true);
    guard.postNotice({QStringLiteral("first")});
    guard.postNotice({QStringLiteral("last")});
    const auto more = guard.postProgress({QStringLiteral("more")});
    more->setProgress(0.5);
    EXPECT_EQ(shown(), QStringLiteral("open"));
    lock.setLocked(false);
    EXPECT_EQ(shown(), QStringLiteral("open,last,work 0,more 0.5"));
}

TEST(MailComposerGuard, OpensMailsOnceUnlocked) {
    FakeMailComposer composer;
    LockState lock;
    MailComposerGuard guard(composer, lock);
    int done = 0;
    const auto compose = [&](const char* subject) {
        guard.compose({{}, QString::fromLatin1(subject), {}, {}}, [&done](const auto&) { ++done; });
    };
    compose("open");
    lock.setLocked(true);
    compose("first");
    compose("second");
    EXPECT_EQ(composer.messages.size(), 1U);
    lock.setLocked(false);
    ASSERT_EQ(composer.messages.size(), 3U);
    EXPECT_EQ(composer.messages[1].subject + composer.messages[2].subject, QStringLiteral("firstsecond"));
    EXPECT_EQ(done, 3);
}

/// What is opened, in its order.
struct Opener : ApplicationDelegate {
    void applicationDidBecomeActive() override {}
    void applicationWillResignActive() override {}
    void applicationDidEnterBackground() override {}
    void applicationWillEnterForeground() override {}
    void applicationWillTerminate() override {}
    bool applicationOpenURL(const QUrl& url) override {
        opened << url.toString();
        return true;
    }
    void applicationPerformActionForShortcutItem(const ShortcutItem&, std::function<void(bool)>) override {}

    QStringList opened;
};

TEST(ApplicationDelegateGuard, RecordsWhileLockedAndOpensTheRestLater) {
    Opener opener;
    LockState lock;
    ApplicationDelegateGuard guard(opener, lock);
    lock.setLocked(true);
    for (const char* url : {"file:///b", "TaviRecordStart:", "TaviliteConnect:", "file:///a", "TaviRecordStop:"}) {
        EXPECT_TRUE(guard.applicationOpenURL(QUrl(QString::fromLatin1(url))));
    }
    QStringList expected{QStringLiteral("tavirecordstart:"), QStringLiteral("tavirecordstop:")};
    EXPECT_EQ(opener.opened, expected);
    for (const bool isLocked : {false, true, false}) {
        lock.setLocked(isLocked);
    }
    expected << QStringLiteral("file:///b") << QStringLiteral("taviliteconnect:") << QStringLiteral("file:///a");
    EXPECT_EQ(opener.opened, expected);
    // No flood of them fills the memory.
    lock.setLocked(true);
    int taken = guard.applicationOpenURL(QUrl(QStringLiteral("file:///") + QString(100'000, u'x'))) ? 1 : 0;
    for (int i = 0; i < 20'000; ++i) {
        taken += guard.applicationOpenURL(QUrl(QStringLiteral("file:///c"))) ? 1 : 0;
    }
    EXPECT_EQ(taken, 10'000);
}

}  // namespace
}  // namespace tavi::test
