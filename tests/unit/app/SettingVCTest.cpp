#include "app/SettingVC.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "support/FakeServices.h"

namespace tavi::test {
namespace {

/// A string table in another language than the keys'.
struct OtherTexts : QTranslator {
    OtherTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        const bool isSlider = qstrcmp(key, "rewind") == 0 || qstrcmp(key, "forward") == 0;
        return QStringLiteral("Wort ") + QLatin1String(key) + QLatin1String(isSlider ? " %1" : "");
    }
};

class SettingVCTest : public ::testing::Test, protected FakeServices {
protected:
    /// Chooses the action of that title in the sheet shown last.
    void choose(const char* title) {
        for (const AlertAction& action : presenter.sheets.back().actions) {
            if (action.title == QLatin1String(title)) {
                return action.handler ? action.handler() : void();
            }
        }
        FAIL() << "no action " << title;
    }
    QStringList titles() const {
        QStringList titles{presenter.sheets.back().title};
        for (const AlertAction& action : presenter.sheets.back().actions) {
            titles += action.title + QLatin1String(action.style == AlertAction::Style::Cancel ? "!" : "");
        }
        return titles;
    }
    /// Keys written since the last call.
    QString writes() { return std::exchange(defaults.writes, {}).join(QLatin1Char(' ')); }

    FakePresenter presenter;
    SettingVC::Services services{
        .settings = settings, .formatHold = formatHold, .runLoop = runLoop, .presenter = presenter};
    SettingVC vc{services};
};

TEST_F(SettingVCTest, RowsShowWhatIsStoredAndStoreTheirSliders) {
    const OtherTexts texts;
    const struct {
        double stored, rewind, forward;
    } cases[] = {{0.0, 10.0, 30.0}, {3.0, 5.0, 5.0}, {45.0, 45.0, 45.0}, {90.0, 60.0, 60.0}};
    settings.setAudioFileType(QStringLiteral("caf"));
    settings.setAudioQualityType(QStringLiteral("Low"));
    settings.setCloudSyncOn(true);
    settings.setQuickMailOn(true);
    for (const auto& row : cases) {
        settings.setRewindSeconds(row.stored);
        settings.setForwardSeconds(row.stored);
        SettingVC screen(services);
        screen.viewDidLoad();
        screen.viewWillAppear();
        screen.loadData();
        EXPECT_EQ(screen.rewindValue(), row.rewind);
        EXPECT_EQ(screen.forwardValue(), row.forward);
        EXPECT_EQ(settings.storedRewindSeconds(), row.rewind);
        EXPECT_EQ(settings.storedForwardSeconds(), row.forward);
        EXPECT_EQ(screen.title(), QStringLiteral("Wort Settings"));
        EXPECT_EQ(screen.headerTexts(),
                  (QStringList{QStringLiteral("Wort recording_type"), QStringLiteral("Wort recording_quality"),
                               QStringLiteral("Wort audio_setting"), QStringLiteral("Wort icloud_sync"),
                               QStringLiteral("Wort mail")}));
        EXPECT_EQ(screen.sectionarray().mid(5).join(QLatin1Char(' ')), QStringLiteral("data_security support feature"));
        EXPECT_EQ(screen.fileType() + screen.quality(), QStringLiteral("cafLow"));
        EXPECT_TRUE(screen.isCloudSyncOn() && screen.isQuickMailOn());
    }
}

TEST_F(SettingVCTest, AMovedSliderSnapsAndIsLabelledInEnglishUntilTheRowsAreBuiltAgain) {
    const OtherTexts texts;
    const struct {
        void (SettingVC::*move)(double);
        double (SettingVC::*value)() const;
        QString (SettingVC::*text)() const;
        const char *key, *built, *moved;
    } sliders[] = {{&SettingVC::rewindSliderChange, &SettingVC::rewindValue, &SettingVC::rewindText, "RewindSong",
                    "Wort rewind 15", "Rewind ( 15 Sec )"},
                   {&SettingVC::forwardSliderChange, &SettingVC::forwardValue, &SettingVC::forwardText, "ForwardSong",
                    "Wort forward 15", "Forward ( 15 Sec )"}};
    int changes = 0;
    QObject::connect(&vc, &SettingVC::slidersChanged, &notifications, [&] { ++changes; });
    vc.viewWillAppear();
    for (const auto& slider : sliders) {
        SCOPED_TRACE(slider.key);
        for (const auto& [position, seconds] :
             {std::pair{7.49, 5.0}, {7.5, 10.0}, {99.0, 60.0}, {0.0, 5.0}, {17.0, 15.0}}) {
            writes();
            changes = 0;
            (vc.*slider.move)(position);
            EXPECT_EQ(changes, 1);
            EXPECT_EQ((vc.*slider.value)(), seconds) << position;
            EXPECT_EQ(defaults.floatForKey(QLatin1String(slider.key)), seconds) << position;
            EXPECT_EQ(writes(), QLatin1String(slider.key) + QStringLiteral(" synchronize"));
        }
        vc.viewWillAppear();
        EXPECT_EQ((vc.*slider.text)(), QLatin1String(slider.moved));
        vc.loadData();
        EXPECT_EQ((vc.*slider.text)(), QLatin1String(slider.built));
    }
}

TEST_F(SettingVCTest, AChoiceIsStoredAtOnceAndShownAfterAMoment) {
    const OtherTexts texts;
    const struct {
        bool isType;
        const char *title, *stored;
    } cases[] = {{true, "Wave", "wav"},        {true, "Aac", "aac"},
                 {true, "Mp4", "mp4"},         {true, "Caf", "caf"},
                 {true, "M4a", "m4a"},         {false, "Low", "Wort Low"},
                 {false, "High", "Wort High"}, {false, "Medium", "Wort Medium"}};
    vc.viewWillAppear();
    for (const auto& row : cases) {
        SCOPED_TRACE(row.title);
        row.isType ? vc.showExtentionActionsheet() : vc.showQualityActionsheet();
        EXPECT_EQ(
            titles().join(QLatin1Char('|')),
            QLatin1String(
                row.isType
                    ? "Wort Select Recording Audio Type|Wort M4a|Wort Wave|Wort Aac|Wort Mp4|Wort Caf|Wort Cancel!"
                    : "Wort Select Recording Audio Quality|Wort Low|Wort Medium|Wort High|Wort Cancel!"));
        const auto shown = [&] { return row.isType ? vc.fileType() : vc.quality(); };
        const QString before = shown();
        writes();
        choose("Wort Cancel");
        EXPECT_EQ(writes(), QString());
        choose(qPrintable(QStringLiteral("Wort ") + QLatin1String(row.title)));
        EXPECT_EQ(writes(), QLatin1String(row.isType ? "AudioFileType" : "AudioQualityType synchronize"));
        EXPECT_EQ(row.isType ? settings.audioFileType() : settings.audioQualityType(), QLatin1String(row.stored));
        runLoop.advance(0.19);
        EXPECT_EQ(shown(), before);
        runLoop.advance(0.01);
        EXPECT_EQ(shown(), QLatin1String(row.stored));
    }
}

TEST_F(SettingVCTest, TypeAndQualityWaitForTheEndOfARecording) {
    vc.viewWillAppear();
    vc.showExtentionActionsheet();
    vc.showQualityActionsheet();
    std::string told;
    QObject::connect(&vc, &SettingVC::formatHeldChanged, &notifications,
                     [&] { told += vc.isFormatHeld() ? '+' : '-'; });
    formatHold.setHeld(true);
    vc.showExtentionActionsheet();
    vc.showQualityActionsheet();
    EXPECT_EQ(presenter.sheets.size(), 2U);
    writes();
    // Both sheets still stand.
    choose("High");
    presenter.sheets.pop_back();
    choose("Caf");
    choose("Wave");
    runLoop.advance(1.0);
    EXPECT_EQ(writes(), QString());
    formatHold.setHeld(false);
    EXPECT_EQ(told.front(), '+');
    EXPECT_EQ(told.back(), '-');
    EXPECT_EQ(settings.audioFileType() + settings.audioQualityType(), QStringLiteral("wavHigh"));
    runLoop.advance(0.2);
    EXPECT_EQ(vc.fileType() + vc.quality(), QStringLiteral("wavHigh"));
    writes();
    formatHold.setHeld(true);
    formatHold.setHeld(false);
    EXPECT_EQ(writes(), QString()) << "a choice is stored twice";
}

TEST_F(SettingVCTest, SwitchesAreStoredNegated) {
    for (const bool on : {true, false, true}) {
        writes();
        vc.hideShowiClound(on);
        vc.autoQuickMail(on);
        EXPECT_EQ(writes(), QStringLiteral("Iclound synchronize QuickMail synchronize"));
        EXPECT_EQ(defaults.boolForKey(QStringLiteral("Iclound")), !on);
        EXPECT_EQ(defaults.boolForKey(QStringLiteral("QuickMail")), !on);
        EXPECT_EQ(vc.isCloudSyncOn() && vc.isQuickMailOn(), on);
    }
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
    EXPECT_EQ(writes(), QString());
}

}  // namespace
}  // namespace tavi::test
