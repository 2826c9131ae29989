#include "app/SettingVC.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "support/Fakes.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {
namespace {

/// A string table in another language than the keys'.
struct OtherTexts : QTranslator {
    OtherTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        return qstrcmp(key, "rewind") == 0 ? QStringLiteral("Zurück (%1 Sek)")
                                           : QStringLiteral("Wort ") + QLatin1String(key);
    }
};

class SettingVCTest : public ::testing::Test {
protected:
    /// Chooses the sheet's action of that title.
    void choose(const char* title) {
        for (const AlertAction& action : presenter.sheets.back().actions) {
            if (action.title == QLatin1String(title)) {
                action.handler();
                return;
            }
        }
        FAIL() << "no action " << title;
    }

    FakeUserDefaults defaults;
    SettingsStore settings{defaults};
    ManualRunLoop runLoop;
    FakePresenter presenter;
    SettingVC vc{{.settings = settings, .runLoop = runLoop, .presenter = presenter}};
};

TEST_F(SettingVCTest, aMovedSliderSnapsAndIsLabelledInEnglishUntilTheRowsAreBuiltAgain) {
    const OtherTexts texts;
    vc.viewWillAppear();
    EXPECT_EQ(vc.rewindText(), QStringLiteral("Zurück (10 Sek)"));
    for (const auto& [position, seconds] :
         {std::pair{7.49, 5.0}, {7.5, 10.0}, {99.0, 60.0}, {0.0, 5.0}, {17.0, 15.0}}) {
        vc.rewindSliderChange(position);
        EXPECT_EQ(settings.rewindSeconds(), seconds) << position;
    }
    vc.viewWillAppear();
    EXPECT_EQ(vc.rewindText(), QStringLiteral("Rewind ( 15 Sec )"));
    vc.loadData();
    EXPECT_EQ(vc.rewindText(), QStringLiteral("Zurück (15 Sek)"));
}

TEST_F(SettingVCTest, aTypeIsStoredAtOnceAndShownAfterAMoment) {
    vc.viewWillAppear();
    for (const char* type : {"Wave", "Aac", "Mp4", "Caf", "M4a"}) {
        const QString stored = qstrcmp(type, "Wave") == 0 ? QStringLiteral("wav") : QString::fromLatin1(type).toLower();
        vc.showExtentionActionsheet();
        const QString before = vc.fileType();
        choose(type);
        EXPECT_EQ(settings.audioFileType(), stored);
        runLoop.advance(0.19);
        EXPECT_EQ(vc.fileType(), before);
        runLoop.advance(0.01);
        EXPECT_EQ(vc.fileType(), stored);
    }
}

TEST_F(SettingVCTest, aQualityIsStoredAsItReadsAndSwitchesNegated) {
    const OtherTexts texts;
    vc.showQualityActionsheet();
    choose("Wort High");
    vc.hideShowiClound(false);
    vc.autoQuickMail(false);
    EXPECT_EQ(defaults.stringForKey(QStringLiteral("AudioQualityType")), QStringLiteral("Wort High"));
    EXPECT_TRUE(defaults.boolForKey(QStringLiteral("Iclound")));
    EXPECT_TRUE(defaults.boolForKey(QStringLiteral("QuickMail")));
}

TEST_F(SettingVCTest, aChoiceAfterTheScreenIsGoneDoesNothing) {
    auto gone = std::make_unique<SettingVC>(
        SettingVC::Services{.settings = settings, .runLoop = runLoop, .presenter = presenter});
    gone->showExtentionActionsheet();
    choose("Caf");
    gone->showQualityActionsheet();
    gone.reset();
    defaults.writes.clear();
    choose("High");
    runLoop.advance(1.0);
    EXPECT_EQ(defaults.writes, QStringList());
}

}  // namespace
}  // namespace tavi::test
