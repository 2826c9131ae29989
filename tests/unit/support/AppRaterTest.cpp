#include "support/AppRater.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <map>
#include <tuple>

#include "platform/Application.h"
#include "support/FakeSupport.h"

namespace tavi::test {
namespace {

struct AppRaterTest : ::testing::Test, FakeServices {
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
        const QString date = defaults.stringForKey(QStringLiteral("firstLaunchKey"));
        const auto age = QDateTime::fromString(date, Qt::ISODateWithMs).secsTo(runLoop.clock().now());
        return (defaults.boolForKey(QStringLiteral("dontShowAgain")) ? "X" : "-") +
               std::string(defaults.boolForKey(QStringLiteral("remindMeLater")) ? "R" : "-") +
               std::to_string(defaults.integerForKey(QStringLiteral("launchCount"))) + ' ' + std::to_string(age);
    }

    FakeRating rating{*this};
    AppRater& rater = rating.rater;
};

TEST_F(AppRaterTest, CountsLaunchesAndDays) {
    // A return from the background, a day less a minute, a minute, another version; the answers no, now and later.
    const std::map<char, std::function<void()>> steps{
        {'L', [&] { rater.appLaunched(); }},
        {'l', [&] { notifications.postNotification(applicationnotification::kWillEnterForeground); }},
        {'d', [&] { runLoop.manualClock().advance(86'340); }},
        {'m', [&] { runLoop.manualClock().advance(60); }},
        {'v', [] { QCoreApplication::setApplicationVersion(QStringLiteral("99")); }},
        {'n', [&] { choose(0); }},
        {'y', [&] { choose(1); }},
        {'r', [&] { choose(2); }},
    };
    const struct {
        /// Days and launches until the question, and until the next one.
        std::tuple<int, int, int, int> thresholds;
        /// Steps; a digit is how many questions there have been.
        const char* story;
    } cases[] = {
        {{0, 2, 0, 4}, "L0L1"},
        {{0, 2, 0, 4}, "LL1rL1l1L1L2rLLL2L3"},
        {{0, 2, 0, 4}, "LL1nLLLLLLLL1vL1"},
        {{0, 2, 0, 4}, "LL1yLLLLLLLL1"},
        {{0, 2, 0, 4}, "LL1LLLL1nLLLL1"},
        {{3, 7, 3, 7}, "LLLLLLL0dddL0mmmL1"},
        {{3, 7, 3, 7}, "L0dddmmmL0LLLL0L0dddmmmL1"},
        {{3, 2, 1, 2}, "LL0dddmmmL1rLL1dL1mL2"},
        {{0, 0, 0, 0}, "L1rL2"},
    };
    for (const auto& row : cases) {
        defaults = {};
        presenter.alerts.clear();
        RatingOptions& options = rater.options();
        std::tie(options.daysUntilPrompt, options.launchesUntilPrompt, options.remindMeDaysUntilPrompt,
                 options.remindMeLaunchesUntilPrompt) = row.thresholds;
        for (const char* step = row.story; *step != '\0'; ++step) {
            SCOPED_TRACE(std::string(row.story, step + 1));
            if (const auto found = steps.find(*step); found != steps.end()) {
                found->second();
            } else {
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
    rating.store.setLaunchCount(5);
    for (const std::size_t questions : {1U, 2U}) {
        QCoreApplication::setApplicationVersion(QString::number(questions));
        rater.appLaunched();
        EXPECT_EQ(stored(), "--1 0") << "another version, or none was stored";
        EXPECT_EQ(rating.store.appVersion(), QString::number(questions));
        rater.appLaunched();
        EXPECT_EQ(asked(), questions);
        choose(0);
    }
    // What makes no sense counts as nothing.
    defaults.setObject(QStringLiteral("soon"), QStringLiteral("firstLaunchKey"));
    EXPECT_TRUE(rater.isDateExpired(0));
    EXPECT_FALSE(rater.isDateExpired(1));
    rating.store.restart(false, false, {});
    rating.store.setLaunchCount(std::numeric_limits<int>::max());
    rater.appLaunched();
    EXPECT_EQ(rating.store.launchCount(), std::numeric_limits<int>::max());
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
        EXPECT_EQ(rating.urlOpener.opened.join(u' '), QLatin1String(row.opens ? "appstream://com.example.store" : ""));
        rater.showRater();
        asked();
        const Alert& alert = presenter.alerts.back();
        QString texts = alert.title + alert.message;
        for (const AlertAction& action : alert.actions) {
            texts += action.title + QLatin1String(action.style == AlertAction::Style::Cancel ? "! " : " ");
        }
        EXPECT_EQ(texts, QLatin1String("MessageTitleMessage") + QLatin1String(row.isNoHidden ? "" : "NoButtonTitle! ") +
                             QLatin1String("NowButtonTitle LaterButtonTitle "));
        choose(alert.actions.size() - 1);
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
    rating.services.softwareStore.review = &review;
    AppRater system(rating.services);
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
    const auto expectCounts = [this](int lookUps, std::size_t questions) {
        runLoop.advance(60.0);
        EXPECT_EQ(rating.catalogue.asked.size(), lookUps);
        EXPECT_EQ(presenter.alerts.size(), questions);
    };
    rater.setCovered(true);
    rater.getApplicationID();
    expectCounts(0, 0);
    formatHold.setHeld(true);
    rater.setCovered(false);
    expectCounts(0, 0);
    formatHold.setHeld(false);
    lockState.setLocked(true);
    expectCounts(0, 0);
    lockState.setLocked(false);
    runLoop.advance(AppRater::kMoment / 2);
    rater.setCovered(true);
    rater.setCovered(false);
    runLoop.advance(AppRater::kMoment * 0.9);
    EXPECT_TRUE(rating.catalogue.asked.isEmpty()) << "the moment begins anew";
    expectCounts(1, 0);
    EXPECT_EQ(rating.catalogue.asked.front(), QStringLiteral("com.quillfen.voicerecorder tr"));
    rater.getApplicationID();
    expectCounts(1, 0);
    // Nobody has it: nothing is asked or said, and the next launch looks again.
    const QString known = std::exchange(rating.catalogue.identifier, QString());
    rating.catalogue.answer();
    expectCounts(1, 0);
    EXPECT_TRUE(notices.posted.empty());
    rater.getApplicationID();
    expectCounts(2, 0);
    rating.catalogue.identifier = known;
    formatHold.setHeld(true);
    rating.catalogue.answer();
    EXPECT_EQ(rating.store.storeIdentifier(), known);
    rater.getApplicationID();
    expectCounts(2, 0);
    formatHold.setHeld(false);
    expectCounts(2, 1);
    rater.getApplicationID();
    expectCounts(2, 1);
    EXPECT_EQ(runLoop.activeTimers(), 0U);
}

TEST_F(AppRaterTest, AnAnswerAfterItIsGoneDoesNothing) {
    for (const bool isAsking : {false, true}) {
        rating.store.setStoreIdentifier(isAsking ? QStringLiteral("a") : QString());
        auto gone = std::make_unique<AppRater>(rating.services);
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
