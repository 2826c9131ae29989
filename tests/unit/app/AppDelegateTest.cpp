#include "app/AppDelegate.h"

#include <gmock/gmock.h>

#include <QDir>

#include "support/FakeRecording.h"
#include "support/FakeSupport.h"

namespace tavi::test {

namespace {

struct AppDelegateTest : ::testing::Test, FakeServices {
    /// Whether a session exists after what was asked for has been done.
    bool isRecordingAfterAnswer() {
        session.answer(true);
        runLoop.drain();
        return screen.isRecording();
    }

    FakeApplication application;
    FakeIdleTimer idleTimer;
    FakeUserDefaults sharedDefaults;
    FakeRecording recording{*this};
    AudioRecordVC& screen = recording.vc;
    RecordingImport imports{{container, runLoop, notices, presenter, settings, cloud}};
    FakeProgressView hud;
    FakeRating rating{*this};
    PasscodeCoordinator passcode{{settings, keychain, notifications, runLoop, presenter, lockState}};
    AppDelegate delegate{{application, idleTimer, settings, sharedDefaults, container, session, tabBar, screen, imports,
                          hud, rating.rater, passcode}};
};

}  // namespace

TEST_F(AppDelegateTest, StartsUpOnceAndAgain) {
    settings.setPasscodeProtectionOn(true);
    EXPECT_TRUE(delegate.applicationDidFinishLaunching({}));
    EXPECT_TRUE(lockState.isLocked());
    EXPECT_EQ(settings.audioFileType() + settings.audioQualityType(), QStringLiteral("m4aMedium"));
    EXPECT_FALSE(settings.isQuickMailOn() || settings.isCloudSyncOn());
    EXPECT_EQ(settings.sort(), 1);
    EXPECT_TRUE(sharedDefaults.boolForKey(settingskey::kAppStart));
    EXPECT_TRUE(idleTimer.isIdleTimerDisabled());
    EXPECT_TRUE(std::filesystem::is_directory(container.documentsPath() / "ICloud"));
    EXPECT_EQ(session.questions.size(), 1U);
    session.answer(false);
    EXPECT_TRUE(presenter.alerts.empty()) << "a refusal at start-up shows nothing";

    defaults.removeObjectForKey(settingskey::kSort);
    defaults.removeObjectForKey(settingskey::kAudio);
    defaults.writes.clear();
    const QList<ShortcutItem> own{{QStringLiteral("Other"), QStringLiteral("Other"), {}, {}}};
    application.setShortcutItems(own);
    delegate.applicationDidFinishLaunching({});
    EXPECT_EQ(defaults.writes.join(QLatin1Char(' ')),
              QStringLiteral("Sort synchronize launchCount synchronize firstLaunchKey synchronize"));
    rating.rater.setCovered(false);
    lockState.setLocked(false);
    runLoop.advance(AppRater::kMoment);
    EXPECT_EQ(rating.catalogue.asked.size(), 1) << "the second launch asks for a rating";
    EXPECT_EQ(application.shortcutItems(), own);

    sharedDefaults.writes.clear();
    screen.playAndPauseRecording();
    EXPECT_TRUE(isRecordingAfterAnswer());
    delegate.applicationWillTerminate();
    EXPECT_EQ(QDir(container.documentsPath()).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(sharedDefaults.writes, (QStringList{settingskey::kAppStart, QStringLiteral("synchronize")}));
    EXPECT_FALSE(sharedDefaults.boolForKey(settingskey::kAppStart));
}

TEST_F(AppDelegateTest, ALaunchingQuickActionRunsOnceAtActivation) {
    tabBar.setSelectedIndex(2);
    EXPECT_FALSE(delegate.applicationDidFinishLaunching({QStringLiteral("Recordings")}));
    for (const int tab : {1, 2}) {
        EXPECT_EQ(tabBar.index, 2);
        delegate.applicationDidBecomeActive();
        EXPECT_EQ(std::exchange(tabBar.index, 2), tab);
    }
    delegate.applicationPerformActionForShortcutItem(application.shortcutItems().first(),
                                                     [](bool isDone) { EXPECT_FALSE(isDone); });
    EXPECT_EQ(tabBar.selectedIndex(), 0);
    EXPECT_TRUE(isRecordingAfterAnswer());
}

TEST_F(AppDelegateTest, UrlsChooseTabsAndDriveTheRecording) {
    const struct {
        const char* url;
        int tab;
        bool isRecording, isRunning;
    } cases[] = {{"TaviliteConnect://x", 1, false, false}, {"tavirecordstart:", 0, true, true},
                 {"https://example.org/", 2, true, true},  {"TaviRecordStart://", 0, true, false},
                 {"TAVIRECORDSTOP:", 0, false, false},     {"file:///tmp/a.m4a", 1, false, false},
                 {"TaviRecordStop:", 0, false, false}};
    for (const auto& row : cases) {
        tabBar.setSelectedIndex(2);
        EXPECT_TRUE(delegate.applicationOpenURL(QUrl(QString::fromLatin1(row.url))));
        EXPECT_EQ(isRecordingAfterAnswer(), row.isRecording) << row.url;
        EXPECT_EQ(screen.isRecordingRunning(), row.isRunning) << row.url;
        EXPECT_EQ(tabBar.selectedIndex(), row.tab) << row.url;
    }
}

}  // namespace tavi::test
