#include "passcode/PasscodeCoordinator.h"

#include <gmock/gmock.h>

#include "passcode/LockDecision.h"
#include "platform/Application.h"
#include "support/FakeServices.h"

namespace tavi::test {
namespace {

TEST(LockDecision, CountsWholeMinutesAndTrustsNoClock) {
    const QDateTime start(QDate(2024, 3, 5), QTime(14, 0));
    const QDateTime never;
    const auto after = [&start](qint64 seconds) { return start.addSecs(seconds); };
    const struct {
        bool isPresented, isOn;
        int minutes;
        QDateTime started, ended;
        bool locks;
    } cases[] = {
        {false, true, 0, start, after(0), true},
        {false, true, 0, start, after(1), true},
        {true, true, 0, start, after(1), false},
        {false, false, 0, start, after(100'000), false},
        {false, true, 5, start, after(299), false},
        {false, true, 5, start, after(300), true},
        {false, true, 5, start, after(-59), false},
        {false, true, 5, start, after(-60), true},
        {false, true, std::numeric_limits<int>::max(), start, after(-60), true},
        {false, false, 5, start, after(-60), false},
        {false, true, 5, never, start, true},
        {false, true, 5, start, never, false},
        {false, true, 5, never, never, false},
        {false, true, 0, never, never, true},
        {false, true, -3, start, after(0), true},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(shouldLock({row.isPresented, row.isOn, row.minutes, row.started, row.ended}), row.locks)
            << row.minutes << " minutes, " << row.started.secsTo(row.ended) << " s";
    }
}

struct PasscodeCoordinatorTest : ::testing::Test, FakeServices {
    PasscodeCoordinatorTest() {
        QObject::connect(&lockState, &LockState::changed, &lockState,
                         [this] { told += lockState.isLocked() ? '+' : '-'; });
    }

    PasscodeViewController& screen() { return *coordinator.passcodeWindow()->rootViewController(); }
    void type(const char* digits, double seconds = 0.1) {
        for (const char digit : std::string_view(digits)) {
            screen().typed(QString(QLatin1Char(digit)));
        }
        runLoop.advance(seconds);
    }
    /// What is on display: the number of the entry screen's type, or "-", and "c" below a cover.
    std::string shown() {
        const bool isShown = coordinator.isPasscodePresented();
        EXPECT_EQ(coordinator.passcodeWindow()->isHidden(), !isShown);
        EXPECT_EQ(lockState.isLocked(),
                  coordinator.isCovered() || (isShown && screen().passcodeType() == PasscodeType::Unlock));
        return (isShown ? std::to_string(static_cast<int>(screen().passcodeType())) : "-") +
               (coordinator.isCovered() ? "c" : "");
    }
    /// As it stands, after the program's start with the passcode 1234 and the protection on.
    void startLocked() {
        settings.setPasscodeProtectionOn(true);
        coordinator.setPasscode(QStringLiteral("1234"));
        coordinator.activatePasscodeProtection();
        EXPECT_EQ(shown(), "-c") << "from the first frame on";
        finishLaunching();
    }
    void finishLaunching() { notifications.postNotification(applicationnotification::kDidFinishLaunching); }
    void leave() { notifications.postNotification(applicationnotification::kDidEnterBackground); }
    void comeBack() { notifications.postNotification(applicationnotification::kWillEnterForeground); }
    PasscodeCoordinator::Completion completion() {
        return [this](bool success) { told += success ? 'Y' : 'N'; };
    }
    std::string stored(const char* key) { return keychain.values.value(QLatin1String(key)).toString().toStdString(); }

    std::string told;
    PasscodeCoordinator coordinator{{settings, keychain, notifications, runLoop, presenter, lockState}};
};

TEST_F(PasscodeCoordinatorTest, LocksAtEveryReturnOnceSetUp) {
    coordinator.activatePasscodeProtection();
    finishLaunching();
    leave();
    comeBack();
    EXPECT_EQ(shown(), "-");
    EXPECT_TRUE(keychain.values.isEmpty()) << "nothing is observed while it is off";

    coordinator.setupNewPasscodeWithCompletion(completion());
    EXPECT_EQ(shown(), "2");
    type("1234");
    type("1234");
    EXPECT_EQ(told + shown() + stored("PasscodeKey") + stored("PasscodeInactivityDuration"), "Y-12340");
    EXPECT_EQ(settings.isPasscodeProtectionOn(), true);
    EXPECT_EQ(defaults.objectForKey(QStringLiteral("PasscodeProtectionEnabled")), QStringLiteral("YES"));

    leave();
    EXPECT_EQ(shown(), "-c");
    runLoop.advance(1.0);
    EXPECT_LT(coordinator.getInactivityStartTime(), runLoop.clock().now());
    comeBack();
    EXPECT_EQ(shown(), "0");
    EXPECT_EQ(coordinator.getInactivityEndTime(), runLoop.clock().now());
    comeBack();
    type("4321");
    EXPECT_EQ(shown(), "0");
    type("1234");
    EXPECT_EQ(shown(), "-");
    EXPECT_EQ(told, "Y+-") << "once locked, once unlocked";
}

TEST_F(PasscodeCoordinatorTest, ShortAbsencesDoNotLockAndDoNotUnlock) {
    startLocked();
    EXPECT_EQ(shown(), "0") << "when it was left was never stored";
    coordinator.setPasscodeInactivityDurationInMinutes(5);
    for (const auto& [before, seconds, after] :
         {std::tuple{"", 1.0, "0"}, {"1234", 299.9, "-"}, {"", 300.0, "0"}, {"1234", -3600.0, "0"}, {"", 1.0, "0"}}) {
        type(before);
        leave();
        EXPECT_EQ(shown(), "-c");
        runLoop.manualClock().advance(seconds);
        comeBack();
        EXPECT_EQ(shown(), after) << seconds;
    }
    // Switched off by hand, in the settings file.
    leave();
    settings.setPasscodeProtectionOn(false);
    comeBack();
    EXPECT_EQ(shown(), "-");
}

TEST_F(PasscodeCoordinatorTest, WorkflowsTellHowTheyEndAndTheBackgroundEndsThemUntold) {
    startLocked();
    const auto setup = [this] { coordinator.setupNewPasscodeWithCompletion(completion()); };
    const auto change = [this] { coordinator.changePasscodeWithCompletion(completion()); };
    const auto disable = [this] { coordinator.disablePasscodeProtectionWithCompletion(completion()); };
    const auto cancel = [this] { screen().cancelPressed(); };
    const auto fill = [this] { defaults.canWrite = false; };
    const struct {
        const char* name;
        std::vector<std::function<void()>> steps;
        /// What was told, with "!" for an alert, what is shown, the passcode, and whether the protection is on.
        const char* expected;
    } cases[] = {
        {"set-up, cancelled", {setup, cancel}, "N - 1234 on"},
        {"set-up, cancelled before its end", {setup, [this] { type("5678"); }, cancel}, "N - 1234 on"},
        {"change, cancelled", {change, [this] { type("1234"); }, cancel}, "N - 1234 on"},
        {"change, left", {change, [this] { leave(); }, [this] { comeBack(); }}, "+ 0 1234 on"},
        {"off, on a full disk", {fill, disable, [this] { type("1234"); }}, "N! - 1234 on"},
        {"change, on a full disk", {fill, change, [this] { type("1234"), type("1234"), type("1234"); }}, "Y - 1234 on"},
        {"changed", {change, [this] { type("1234"), type("5678"), type("5678"); }}, "Y - 5678 on"},
        {"off, wrong", {disable, [this] { type("1111"); }}, " 1 5678 on"},
        {"off, wrong, cancelled", {disable, [this] { type("1111"); }, cancel}, "N - 5678 on"},
        {"off, left", {disable, [this] { leave(), comeBack(); }, [this] { type("5678"); }}, "+- - 5678 on"},
        {"off, left before it is judged",
         {disable, [this] { type("5678", 0.0), leave(), runLoop.advance(0.1), comeBack(); }},
         "+-Y - 5678 off"},
        {"off", {disable, [this] { type("5678"); }}, "Y - 5678 off"},
        {"left while off", {[this] { leave(), comeBack(); }}, " - 5678 off"},
        {"set-up, on a full disk", {fill, setup, [this] { type("5678"), type("5678"); }}, "N! - 5678 off"},
        {"set-up, left while off", {setup, [this] { leave(), comeBack(); }}, " 2 5678 off"},
    };
    type("1234");
    for (const auto& row : cases) {
        told.clear();
        for (const auto& step : row.steps) {
            step();
        }
        told.append(std::exchange(presenter.alerts, {}).size(), '!');
        defaults.canWrite = true;
        const std::string state = shown();
        EXPECT_EQ(
            told + " " + state + " " + stored("PasscodeKey") + (settings.isPasscodeProtectionOn() ? " on" : " off"),
            row.expected)
            << row.name;
        if (coordinator.isPasscodePresented()) {
            coordinator.dismissLockScreen();
        }
    }
}

TEST_F(PasscodeCoordinatorTest, AStoreThatFailsIsToldAndLocksNobodyOutSilently) {
    coordinator.activatePasscodeProtection();
    coordinator.setupNewPasscodeWithCompletion(completion());
    keychain.troubleText = QStringLiteral("The keyring is locked.");
    type("1234");
    type("1234");
    EXPECT_EQ(told, "Y");
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts.back().message, keychain.troubleText);
    leave();
    comeBack();
    EXPECT_EQ(shown(), "0") << "an unreadable duration counts as 0";
    EXPECT_EQ(screen().trouble(), keychain.troubleText);
    keychain.troubleText.clear();
    coordinator.secureStoreTroubleChanged();
    EXPECT_EQ(screen().trouble(), QString());
}

}  // namespace
}  // namespace tavi::test
