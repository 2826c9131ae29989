#include "support/AppRater.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/Application.h"
#include "support/FakeSupport.h"

namespace tavi::test {
namespace {

class AppRaterTest : public ::testing::Test {
protected:
    AppRaterTest() { rater.setCovered(false); }

    /// Lets the questions come that are due.
    std::size_t asked() {
        runLoop.advance(AppRater::kMoment);
        rating.catalogue.answer();
        runLoop.advance(AppRater::kMoment);
        return presenter.alerts.size();
    }
    void choose(std::size_t index) {
        presenter.alerts.back().actions.at(index).handler();
        runLoop.drain();
    }
    /// The counters as they are stored.
    std::string stored() const {
        return QStringLiteral("%1%2%3 %4")
            .arg(QLatin1String(defaults.boolForKey(QStringLiteral("dontShowAgain")) ? "X" : "-"))
            .arg(QLatin1String(defaults.boolForKey(QStringLiteral("remindMeLater")) ? "R" : "-"))
            .arg(defaults.integerForKey(QStringLiteral("launchCount")))
            .arg(QDateTime::fromString(defaults.stringForKey(QStringLiteral("firstLaunchKey")), Qt::ISODateWithMs)
                     .secsTo(runLoop.clock().now()))
            .toStdString();
    }

    FakeUserDefaults defaults;
    ManualRunLoop runLoop;
    TemporaryContainer container;
    FormatHold formatHold{container};
    FakePresenter presenter;
    FakeNotices notices;
    NotificationCenter notifications;
    FakeRating rating{defaults, runLoop, presenter, notices, notifications, formatHold};
    AppRater& rater = rating.rater;
};

TEST_F(AppRaterTest, CountsLaunchesAndDays) {
    const struct {
        const char* name;
        int days, launches, remindMeDays, remindMeLaunches;
        /// L is a launch, a return from the background "l", d a day less a minute, m a minute, n, y and r the answers
        /// no, now and later, v another version; a digit is how many questions there have been.
        const char* story;
    } cases[] = {
        {"program", 0, 2, 0, 4, "L0L1"},
        {"later", 0, 2, 0, 4, "LL1rL1l1L1L2rLLL2L3"},
        {"no", 0, 2, 0, 4, "LL1nLLLLLLLL1vL1"},
        {"now", 0, 2, 0, 4, "LL1yLLLLLLLL1"},
        {"unanswered", 0, 2, 0, 4, "LL1LLLL1nLLLL1"},
        {"own", 3, 7, 3, 7, "LLLLLLL0dddL0mmmL1"},
        {"daysFirst", 3, 7, 3, 7, "L0dddmmmL0LLLL0L0dddmmmL1"},
        {"ownLater", 3, 2, 1, 2, "LL0dddmmmL1rLL1dL1mL2"},
        {"atOnce", 0, 0, 0, 0, "L1rL2"},
    };
    for (const auto& row : cases) {
        defaults = {};
        presenter.alerts.clear();
        rater.options() = {};
        rater.options().daysUntilPrompt = row.days;
        rater.options().launchesUntilPrompt = row.launches;
        rater.options().remindMeDaysUntilPrompt = row.remindMeDays;
        rater.options().remindMeLaunchesUntilPrompt = row.remindMeLaunches;
        for (const char* step = row.story; *step != '\0'; ++step) {
            SCOPED_TRACE(std::string(row.name) + " " + std::string(row.story, step + 1));
            switch (*step) {
                case 'L':
                    rater.appLaunched();
                    break;
                case 'l':
                    notifications.postNotification(applicationnotification::kWillEnterForeground);
                    break;
                case 'd':
                    runLoop.manualClock().advance(86'340);
                    break;
                case 'm':
                    runLoop.manualClock().advance(60);
                    break;
                case 'v':
                    QCoreApplication::setApplicationVersion(QStringLiteral("99"));
                    break;
                case 'n':
                case 'y':
                case 'r':
                    choose(*step == 'n' ? 0 : *step == 'y' ? 1 : 2);
                    break;
                default:
                    EXPECT_EQ(asked(), static_cast<std::size_t>(*step - '0'));
            }
        }
        // What still stands is answered, so that the next can be asked.
        choose(2);
    }
}

TEST_F(AppRaterTest, AnotherVersionCountsAnewWhereThatIsWanted) {
    rater.options().versionCheckEnabled = true;
    rater.options().launchesUntilPrompt = 2;
    rater.options().daysUntilPrompt = 0;
    QCoreApplication::setApplicationVersion(QStringLiteral("1"));
    defaults.setObject(5, QStringLiteral("launchCount"));
    rater.appLaunched();
    EXPECT_EQ(stored(), "--1 0") << "no version is stored yet";
    rater.appLaunched();
    EXPECT_EQ(asked(), 1U);
    choose(0);
    QCoreApplication::setApplicationVersion(QStringLiteral("2"));
    defaults.writes.clear();
    rater.appLaunched();
    EXPECT_EQ(
        defaults.writes.join(QLatin1Char(' ')),
        QStringLiteral("dontShowAgain remindMeLater launchCount firstLaunchKey synchronize appVersion synchronize "
                       "launchCount synchronize"));
    EXPECT_EQ(defaults.stringForKey(QStringLiteral("appVersion")), QStringLiteral("2"));
    rater.appLaunched();
    EXPECT_EQ(asked(), 2U);
    // What makes no sense counts as nothing.
    defaults.setObject(QStringLiteral("soon"), QStringLiteral("firstLaunchKey"));
    EXPECT_TRUE(rater.isDateExpired(0));
    EXPECT_FALSE(rater.isDateExpired(1));
    defaults.setObject(std::numeric_limits<int>::max(), QStringLiteral("launchCount"));
    rater.appLaunched();
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("launchCount")), std::numeric_limits<int>::max());
}

TEST_F(AppRaterTest, DoesWhatTheButtonsSay) {
    const struct {
        bool isNoHidden;
        int index;
        const char* stored;
        bool opens;
    } cases[] = {{false, 0, "X-0 0", false}, {false, 1, "X-7 9", true},   {false, 2, "-R0 0", false},
                 {false, 3, "--7 9", false}, {false, -1, "--7 9", false}, {true, 0, "X-7 9", true},
                 {true, 1, "-R0 0", false},  {true, 2, "--7 9", false},   {true, -1, "--7 9", false}};
    for (const auto& row : cases) {
        SCOPED_TRACE(::testing::Message() << row.isNoHidden << row.index);
        rating.store.restart(false, false, runLoop.clock().now().addSecs(-9));
        rating.store.setLaunchCount(7);
        rating.store.setStoreIdentifier(QStringLiteral("com.example.store"));
        rating.urlOpener.opened.clear();
        rater.options().hideNoButton = row.isNoHidden;
        rater.alertViewClickedButtonAtIndex(row.index);
        runLoop.drain();
        EXPECT_EQ(stored(), row.stored);
        EXPECT_EQ(rating.urlOpener.opened,
                  row.opens ? QStringList{QStringLiteral("appstream://com.example.store")} : QStringList());
        rater.showRater();
        asked();
        std::string titles;
        for (const AlertAction& action : presenter.alerts.back().actions) {
            titles += action.title.toStdString() + (action.style == AlertAction::Style::Cancel ? "! " : " ");
        }
        EXPECT_EQ(presenter.alerts.back().title + presenter.alerts.back().message,
                  QStringLiteral("MessageTitleMessage"));
        EXPECT_EQ(titles, std::string(row.isNoHidden ? "" : "NoButtonTitle! ") + "NowButtonTitle LaterButtonTitle ");
        choose(presenter.alerts.back().actions.size() - 1);
    }
    EXPECT_TRUE(notices.posted.empty());
    rating.urlOpener.canOpen = false;
    rating.urlOpener.opened.clear();
    rater.openItunes();
    runLoop.drain();
    EXPECT_TRUE(rating.urlOpener.opened.isEmpty());
    EXPECT_EQ(notices.posted.size(), 1U) << "nothing here opens the page";
}

TEST_F(AppRaterTest, TheSystemIsAskedFirst) {
    FakeStoreReview review;
    AppRater system({rating.store,
                     runLoop,
                     presenter,
                     notices,
                     notifications,
                     formatHold,
                     rating.lockState,
                     {rating.catalogue, rating.urlOpener, &review}});
    system.setCovered(false);
    for (const bool isUsed : {true, false}) {
        rating.store.restart(false, false, runLoop.clock().now().addDays(-9));
        system.options().launchesUntilPrompt = 1;
        system.options().usesSystemAppRaterWhenAvailable = isUsed;
        system.appLaunched();
        EXPECT_EQ(review.requests, 1);
        EXPECT_EQ(stored(), isUsed ? "-R0 0" : "--1 777600");
        EXPECT_EQ(asked(), isUsed ? 0U : 1U);
    }
}

TEST_F(AppRaterTest, AsksOnlyInAQuietMoment) {
    const auto expectLookUps = [this](int count) {
        runLoop.advance(60.0);
        EXPECT_EQ(rating.catalogue.asked.size(), count);
    };
    rater.setCovered(true);
    rater.getApplicationID();
    expectLookUps(0);
    formatHold.setHeld(true);
    rater.setCovered(false);
    expectLookUps(0);
    formatHold.setHeld(false);
    rating.lockState.setLocked(true);
    expectLookUps(0);
    rating.lockState.setLocked(false);
    runLoop.advance(AppRater::kMoment / 2);
    rater.setCovered(true);
    rater.setCovered(false);
    runLoop.advance(AppRater::kMoment * 0.9);
    EXPECT_TRUE(rating.catalogue.asked.isEmpty()) << "the moment begins anew";
    expectLookUps(1);
    EXPECT_EQ(rating.catalogue.asked.front(), QStringLiteral("com.quillfen.voicerecorder tr"));
    rater.getApplicationID();
    expectLookUps(1);

    // Nobody has it: nothing is asked or said, and the next launch looks again.
    const QString known = std::exchange(rating.catalogue.identifier, QString());
    rating.catalogue.answer();
    runLoop.advance(60.0);
    EXPECT_TRUE(presenter.alerts.empty() && notices.posted.empty());
    rater.getApplicationID();
    expectLookUps(2);
    rating.catalogue.identifier = known;
    formatHold.setHeld(true);
    rating.catalogue.answer();
    EXPECT_EQ(rating.store.storeIdentifier(), known);
    rater.getApplicationID();
    runLoop.advance(60.0);
    EXPECT_TRUE(presenter.alerts.empty()) << "over a recording";
    formatHold.setHeld(false);
    runLoop.advance(AppRater::kMoment);
    EXPECT_EQ(presenter.alerts.size(), 1U);
    rater.getApplicationID();
    runLoop.advance(60.0);
    EXPECT_EQ(presenter.alerts.size(), 1U) << "one at a time";
    EXPECT_EQ(runLoop.activeTimers(), 0U);
}

TEST_F(AppRaterTest, AnAnswerAfterItIsGoneDoesNothing) {
    for (const bool isAsking : {false, true}) {
        rating.store.setStoreIdentifier(isAsking ? QStringLiteral("a") : QString());
        auto gone = std::make_unique<AppRater>(AppRater::Services{rating.store,
                                                                  runLoop,
                                                                  presenter,
                                                                  notices,
                                                                  notifications,
                                                                  formatHold,
                                                                  rating.lockState,
                                                                  {rating.catalogue, rating.urlOpener}});
        gone->setCovered(false);
        gone->getApplicationID();
        runLoop.advance(AppRater::kMoment);
        gone->openItunes();
        gone.reset();
        defaults.writes.clear();
        rating.catalogue.answer();
        isAsking ? choose(0) : runLoop.drain();
        runLoop.advance(60.0);
        EXPECT_TRUE(defaults.writes.isEmpty() && rating.urlOpener.opened.isEmpty());
    }
}

}  // namespace
}  // namespace tavi::test
