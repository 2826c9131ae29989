#include "app/SettingVC.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "support/FakeCloudConnection.h"
#include "support/FakeSharing.h"
#include "support/FakeSupport.h"

namespace tavi::test {
namespace {

/// A string table in another language than the keys'.
struct OtherTexts : QTranslator {
    OtherTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        const QByteArray name(key);
        const bool isFilled = name == "rewind" || name == "forward" || name == "gmail" || name == "report_no_mail";
        return QStringLiteral("Wort ") + QLatin1String(key) +
               QLatin1String(isFilled                 ? " %1"
                             : name == "report_facts" ? " %1 %2 %3 %4"
                                                      : "");
    }
};

struct SettingVCTest : ::testing::Test, FakeServices {
    SettingVCTest() {
        QObject::connect(&vc, &SettingVC::slidersChanged, &notifications, [this] { told += "s"; });
        QObject::connect(&vc, &SettingVC::formatHeldChanged, &notifications,
                         [this] { told += vc.isFormatHeld() ? "+" : "-"; });
    }
    /// Chooses the action of that title in the sheet shown last.
    void choose(const char* title) {
        for (const AlertAction& action : presenter.sheets.back().actions) {
            if (action.title == QStringLiteral("Wort ") + QLatin1String(title)) {
                return action.handler ? action.handler() : void();
            }
        }
        FAIL() << "no action " << title;
    }
    /// Title and choices of the sheet shown last, one to cancel with "!".
    std::string sheet() const {
        QString text = presenter.sheets.back().title;
        for (const AlertAction& action : presenter.sheets.back().actions) {
            text += action.title.mid(4) + QLatin1String(action.style == AlertAction::Style::Cancel ? "!" : "");
        }
        return text.toStdString();
    }
    /// Keys written since the last call.
    std::string writes() { return std::exchange(defaults.writes, {}).join(QLatin1Char(' ')).toStdString(); }

    const OtherTexts texts;
    FakeMailComposer mail;
    FakeRating rating{*this};
    SupportRows support{{rating.rater, rating.urlOpener, mail, notices, settings, session}};
    PasscodeCoordinator passcode{{settings, keychain, notifications, runLoop, presenter, lockState}};
    FakeCloudConnection connection{runLoop};
    FakeDocumentPicker picker;
    FakeReachability reachability;
    CloudPage page{{connection, picker, presenter, reachability}};
    SettingVC::Services services{settings, formatHold, runLoop, presenter, tabBar, support, passcode, page};
    SettingVC vc{services};
    std::string told;
};

TEST_F(SettingVCTest, RowsShowWhatIsStoredAndStoreTheirSliders) {
    settings.setAudioFileType(QStringLiteral("caf"));
    settings.setAudioQualityType(QStringLiteral("Low"));
    settings.setCloudSyncOn(true);
    settings.setQuickMailOn(true);
    for (const auto& [stored, rewind, forward] :
         {std::tuple{0.0, 10.0, 30.0}, {3.0, 5.0, 5.0}, {45.0, 45.0, 45.0}, {90.0, 60.0, 60.0}}) {
        settings.setRewindSeconds(stored);
        settings.setForwardSeconds(stored);
        vc.viewDidLoad();
        vc.loadData();
        EXPECT_EQ((std::pair{vc.rewindValue(), vc.forwardValue()}), (std::pair{rewind, forward}));
        EXPECT_EQ((std::pair{settings.storedRewindSeconds(), settings.storedForwardSeconds()}),
                  (std::pair{rewind, forward}));
        EXPECT_EQ((vc.headerTexts() << vc.title() << vc.fileType() << vc.quality() << vc.sectionarray().mid(7))
                      .join(QLatin1Char(' ')),
                  QStringLiteral("Wort recording_type Wort recording_quality Wort audio_setting Wort icloud_sync "
                                 "Wort mail Wort data_security Wort support Wort Settings caf Low feature"));
        EXPECT_TRUE(vc.isCloudSyncOn() && vc.isQuickMailOn());
    }
}

TEST_F(SettingVCTest, AMovedSliderSnapsAndIsLabelledInEnglishUntilTheRowsAreBuiltAgain) {
    const struct {
        void (SettingVC::*move)(double);
        double (SettingVC::*value)() const;
        QString (SettingVC::*text)() const;
        const char *key, *built, *moved;
    } sliders[] = {{&SettingVC::rewindSliderChange, &SettingVC::rewindValue, &SettingVC::rewindText, "RewindSong",
                    "Wort rewind 15", "Rewind ( 15 Sec )"},
                   {&SettingVC::forwardSliderChange, &SettingVC::forwardValue, &SettingVC::forwardText, "ForwardSong",
                    "Wort forward 15", "Forward ( 15 Sec )"}};
    vc.viewWillAppear();
    for (const auto& slider : sliders) {
        for (const auto& [position, seconds] :
             {std::pair{7.49, 5.0}, {7.5, 10.0}, {99.0, 60.0}, {0.0, 5.0}, {17.0, 15.0}}) {
            writes();
            told.clear();
            (vc.*slider.move)(position);
            EXPECT_EQ(told, "s");
            EXPECT_EQ((vc.*slider.value)(), seconds) << position;
            EXPECT_EQ(defaults.floatForKey(QLatin1String(slider.key)), seconds) << position;
            EXPECT_EQ(writes(), std::string(slider.key) + " synchronize");
        }
        vc.viewWillAppear();
        EXPECT_EQ((vc.*slider.text)(), QLatin1String(slider.moved));
        vc.loadData();
        EXPECT_EQ((vc.*slider.text)(), QLatin1String(slider.built));
    }
}

TEST_F(SettingVCTest, AChoiceIsStoredAtOnceAndShownAfterAMoment) {
    vc.viewWillAppear();
    for (const auto& [isType, title, stored] : {std::tuple{true, "Wave", "wav"},
                                                {true, "Aac", "aac"},
                                                {true, "Mp4", "mp4"},
                                                {true, "Caf", "caf"},
                                                {true, "M4a", "m4a"},
                                                {false, "Low", "Wort Low"},
                                                {false, "High", "Wort High"},
                                                {false, "Medium", "Wort Medium"}}) {
        isType ? vc.showExtentionActionsheet() : vc.showQualityActionsheet();
        EXPECT_EQ(sheet(), isType ? "Wort Select Recording Audio Type M4a Wave Aac Mp4 Caf Cancel!"
                                  : "Wort Select Recording Audio Quality Low Medium High Cancel!");
        const QString before = isType ? vc.fileType() : vc.quality();
        writes();
        choose("Cancel");
        EXPECT_EQ(writes(), "");
        choose(title);
        EXPECT_EQ(writes(), isType ? "AudioFileType" : "AudioQualityType synchronize");
        EXPECT_EQ(isType ? settings.audioFileType() : settings.audioQualityType(), QLatin1String(stored));
        runLoop.advance(0.19);
        EXPECT_EQ(isType ? vc.fileType() : vc.quality(), before);
        runLoop.advance(0.01);
        EXPECT_EQ(isType ? vc.fileType() : vc.quality(), QLatin1String(stored));
    }
}

TEST_F(SettingVCTest, TypeAndQualityWaitForTheEndOfARecording) {
    vc.viewWillAppear();
    vc.showExtentionActionsheet();
    vc.showQualityActionsheet();
    writes();
    told.clear();
    formatHold.setHeld(true);
    EXPECT_EQ(told, "+");
    vc.showExtentionActionsheet();
    vc.showQualityActionsheet();
    ASSERT_EQ(presenter.sheets.size(), 2U);
    // The two that were there still stand.
    choose("High");
    presenter.sheets.pop_back();
    choose("Caf");
    choose("Wave");
    runLoop.advance(1.0);
    EXPECT_EQ(writes(), "");
    formatHold.setHeld(false);
    EXPECT_EQ(told.back(), '-');
    runLoop.advance(0.2);
    EXPECT_EQ(settings.audioFileType() + vc.fileType() + vc.quality(), QStringLiteral("wavwavWort High"));
    writes();
    formatHold.setHeld(true);
    formatHold.setHeld(false);
    EXPECT_EQ(writes(), "") << "a choice is stored twice";
}

TEST_F(SettingVCTest, SwitchesAreStoredNegated) {
    connection.place.kind = CloudAccount::Kind::Folder;
    for (const bool on : {true, false, true}) {
        writes();
        vc.hideShowiClound(on);
        vc.autoQuickMail(on);
        EXPECT_EQ(writes(), "Iclound synchronize QuickMail synchronize");
        EXPECT_EQ(defaults.boolForKey(QStringLiteral("Iclound")), !on);
        EXPECT_EQ(defaults.boolForKey(QStringLiteral("QuickMail")), !on);
        EXPECT_EQ((std::pair{vc.isCloudSyncOn(), vc.isQuickMailOn()}), (std::pair{on, on}));
    }
    EXPECT_EQ(connection.asked, std::vector<std::string>(3, "settings"));
}

TEST_F(SettingVCTest, TheCloudsSwitchAsksWhereItIsAndGoesOnOnceThereIsOne) {
    settings.setCloudSyncOn(false);
    writes();
    vc.hideShowiClound(true);
    EXPECT_TRUE(page.isOpen());
    EXPECT_EQ(writes(), "");
    const struct {
        const char* address;
        bool hasNetwork;
        /// The last alert; "!" where it is agreed to.
        const char* alert;
        const char* asked;
        Result<void> answer;
    } attempts[] = {
        {"https://a.example/d", false, "Network Error", "", {}},
        {"https://a.example/d", true, "", "connect me@https://a.example/d/ secret", failure(QStringLiteral("no"))},
        {"http://localhost/d", false, "", "connect me@http://localhost/d/ secret", failure(QStringLiteral("no"))},
        {"http://a.example/d", true, "cloud_clear_title", "", {}},
        {"http://a.example/d", true, "cloud_clear_title!", "connect me@http://a.example/d/ secret", {}},
    };
    for (const auto& [address, hasNetwork, alert, asked, answer] : attempts) {
        SCOPED_TRACE(address);
        connection.asked = {""};
        presenter.alerts = {{QStringLiteral("Wort "), {}, {}}};
        connection.answer = answer;
        reachability.flags = ReachabilityFlags{.reachable = hasNetwork};
        page.connectToServer(QLatin1String(address), QStringLiteral("me"), QStringLiteral("secret"));
        const bool isAgreed = QLatin1String(alert).endsWith(QLatin1Char('!'));
        EXPECT_EQ(presenter.alerts.back().title.mid(5) + QLatin1String(isAgreed ? "!" : ""), QLatin1String(alert));
        isAgreed ? presenter.alerts.back().actions.back().handler() : void();
        EXPECT_EQ(page.isConnecting(), *asked != 0);
        EXPECT_EQ(connection.asked.back(), asked);
        runLoop.drain();
        EXPECT_FALSE(page.isConnecting());
        EXPECT_EQ(page.errorText(), answer ? QString() : QStringLiteral("no"));
        EXPECT_EQ(settings.isCloudSyncOn(), isAgreed);
    }
    EXPECT_TRUE(vc.isCloudSyncOn());

    // It asks by itself once, however often it is said that files have vanished, and whatever fails between.
    using State = CloudCondition::State;
    presenter.alerts.clear();
    for (const State state : {State::InStep, State::Asking, State::Troubled, State::Working, State::Asking}) {
        connection.how = {state, {}, {}, state == State::Asking ? 7 : 0};
        Q_EMIT connection.conditionChanged();
    }
    ASSERT_EQ(presenter.alerts.size(), 1U);
    presenter.alerts.back().actions[1].handler();
    presenter.alerts.back().actions[2].handler();
    EXPECT_EQ((std::vector(connection.asked.end() - 2, connection.asked.end())),
              (std::vector<std::string>{"vanished no", "vanished yes"}));
    for (const State state : {State::Asking, State::Troubled, State::Asking}) {
        connection.how.state = state;
        Q_EMIT connection.conditionChanged();
    }
    EXPECT_EQ(presenter.alerts.size(), 2U) << "once answered, the next ones are others";

    page.disconnectAccount();
    EXPECT_TRUE(page.hasAccount());
    presenter.alerts.back().actions[1].handler();
    EXPECT_FALSE(page.hasAccount() || page.isOpen() || vc.isCloudSyncOn() || settings.isCloudSyncOn());

    // A folder is asked for in a dialog; an answer to an attempt that was given up is none.
    for (const bool isGivenUp : {true, false}) {
        picker.answer = std::optional<PickedDocument>({.path = "/cloud"});
        connection.answer = isGivenUp ? failure(QStringLiteral("late")) : Result<void>();
        page.askForFolder();
        isGivenUp ? page.close() : void();
        runLoop.drain();
        EXPECT_EQ(page.errorText(), QString());
        EXPECT_EQ(page.placeText(), QLatin1String(isGivenUp ? "" : "/cloud"));
    }
}

TEST_F(SettingVCTest, SupportIsAskedForAndNothingIsOpened) {
    tabBar.index = 2;
    vc.dismissView();
    EXPECT_EQ(tabBar.index, 0);
    for (int taps = 1; taps <= 3; ++taps) {
        support.rate();
        support.moreApps();
        runLoop.advance(AppRater::kMoment);
        EXPECT_EQ(rating.store.launchCount(), taps);
        rating.rater.setCovered(false);
    }
    EXPECT_EQ(rating.catalogue.asked.size(), 1) << "two launches are enough";
    EXPECT_EQ(rating.urlOpener.asked, QStringList(3, QStringLiteral("https://apps.tavi.invalid/")));
    EXPECT_TRUE(rating.urlOpener.opened.isEmpty());

    settings.setAudioFileType(QStringLiteral("caf"));
    settings.setAudioQualityType(QStringLiteral("Low"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    support.reportBug();
    const MailMessage& report = mail.messages.back();
    EXPECT_EQ(report.subject, QStringLiteral("Wort bug_report"));
    EXPECT_EQ(report.recipient, QStringLiteral("Wort gmail support@tavi.invalid"));
    for (const QString& fact : {QStringLiteral("Wort issue_recorder"), QStringLiteral("1.2"), session.server,
                                QSysInfo::prettyProductName(), QStringLiteral("caf, Low, 8000 Hz × 1")}) {
        EXPECT_TRUE(report.body.contains(fact)) << qPrintable(fact) << qPrintable(report.body);
    }
    EXPECT_TRUE(notices.posted.empty());
    session.server.clear();
    mail.result = failure(QStringLiteral("no"));
    support.reportBug();
    EXPECT_TRUE(mail.messages.back().body.contains(QStringLiteral("Wort report_no_server")));
    mail.canSend = false;
    support.reportBug();
    EXPECT_EQ(mail.messages.size(), 2U);
    ASSERT_EQ(notices.posted.size(), 2U);
    EXPECT_EQ(notices.posted[0].text, notices.posted[1].text);
}

TEST_F(SettingVCTest, AChoiceAfterTheScreenIsGoneDoesNothing) {
    auto gone = std::make_unique<SettingVC>(services);
    gone->showExtentionActionsheet();
    choose("Caf");
    gone->showQualityActionsheet();
    gone.reset();
    writes();
    choose("High");
    runLoop.advance(1.0);
    EXPECT_EQ(writes(), "");
}

}  // namespace
}  // namespace tavi::test
