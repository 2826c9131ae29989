#include "app/SettingVC.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include "support/Fakes.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {
namespace {

/// A string table in another language than the keys'.
class GermanTexts : public QTranslator {
public:
    GermanTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        return m_texts.value(QString::fromUtf8(key));
    }

private:
    QHash<QString, QString> m_texts{{QStringLiteral("High"), QStringLiteral("Hoch")},
                                    {QStringLiteral("mail"), QStringLiteral("Post")},
                                    {QStringLiteral("rewind"), QStringLiteral("Zurück (%1 Sek)")}};
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

    QStringList titles() const {
        QStringList titles;
        for (const AlertAction& action : presenter.sheets.back().actions) {
            titles.append(action.title);
        }
        return titles;
    }

    const QString kSynchronize = QStringLiteral("synchronize");
    FakeUserDefaults defaults;
    SettingsStore settings{defaults};
    ManualRunLoop runLoop;
    FakePresenter presenter;
    SettingVC vc{{settings, runLoop, presenter}};
};

TEST(SnappedSkipSecondsTest, snapsToMultiplesOfFive) {
    const struct {
        double position;
        double seconds;
    } rows[] = {{5, 5}, {7.49, 5}, {7.5, 10}, {17, 15}, {17.5, 20}, {59.9, 60}, {60, 60}, {0, 5}, {99, 60}};
    for (const auto& [position, seconds] : rows) {
        EXPECT_EQ(snappedSkipSeconds(position), seconds) << position;
    }
}

TEST_F(SettingVCTest, rowsReadTheStoreAndWriteTheSkipsBack) {
    const GermanTexts texts;
    settings.setForwardSeconds(45.0);
    settings.setCloudSyncOn(true);
    defaults.writes.clear();
    vc.viewDidLoad();
    vc.viewWillAppear();
    EXPECT_EQ(defaults.writes,
              QStringList({QStringLiteral("RewindSong"), kSynchronize, QStringLiteral("ForwardSong"), kSynchronize}));
    EXPECT_EQ(defaults.floatForKey(QStringLiteral("RewindSong")), 10.0);
    EXPECT_EQ(vc.forwardValue(), 45.0);
    EXPECT_EQ(vc.rewindText(), QStringLiteral("Zurück (10 Sek)"));
    EXPECT_EQ(vc.fileType(), QStringLiteral("m4a"));
    EXPECT_TRUE(vc.isCloudSyncOn());
    EXPECT_EQ(vc.sectionarray().size(), 8);
    EXPECT_EQ(vc.headerTexts().size(), 5);
    EXPECT_EQ(vc.headerTexts().last(), QStringLiteral("Post"));
}

TEST_F(SettingVCTest, aMovedSliderStoresAndIsLabelledInEnglishUntilTheRowsAreBuiltAgain) {
    const GermanTexts texts;
    vc.viewWillAppear();
    defaults.writes.clear();
    vc.rewindSliderChange(17.0);
    vc.forwardSliderChange(17.5);
    EXPECT_EQ(defaults.writes,
              QStringList({QStringLiteral("RewindSong"), kSynchronize, QStringLiteral("ForwardSong"), kSynchronize}));
    vc.viewWillAppear();
    EXPECT_EQ(vc.rewindValue(), 15.0);
    EXPECT_EQ(vc.rewindText(), QStringLiteral("Rewind ( 15 Sec )"));
    EXPECT_EQ(vc.forwardText(), QStringLiteral("Forward ( 20 Sec )"));
    vc.loadData();
    EXPECT_EQ(vc.rewindText(), QStringLiteral("Zurück (15 Sek)"));
    EXPECT_EQ(settings.forwardSeconds(), 20.0);
}

TEST_F(SettingVCTest, aTypeIsStoredWithoutSynchronizeAndShownAfterAMoment) {
    vc.viewWillAppear();
    const QMap<const char*, const char*> types{
        {"M4a", "m4a"}, {"Wave", "wav"}, {"Aac", "aac"}, {"Mp4", "mp4"}, {"Caf", "caf"}};
    for (auto type = types.begin(); type != types.end(); ++type) {
        vc.showExtentionActionsheet();
        EXPECT_EQ(titles().join(QLatin1Char(' ')), QStringLiteral("M4a Wave Aac Mp4 Caf Cancel"));
        EXPECT_EQ(presenter.sheets.back().title, QStringLiteral("Select Recording Audio Type"));
        const QString before = vc.fileType();
        defaults.writes.clear();
        choose(type.key());
        EXPECT_EQ(defaults.writes, QStringList(QStringLiteral("AudioFileType")));
        EXPECT_EQ(settings.audioFileType(), QLatin1String(type.value()));
        runLoop.advance(0.19);
        EXPECT_EQ(vc.fileType(), before);
        runLoop.advance(0.01);
        EXPECT_EQ(vc.fileType(), QLatin1String(type.value()));
    }
}

TEST_F(SettingVCTest, aQualityIsStoredAsItReads) {
    const GermanTexts texts;
    vc.showQualityActionsheet();
    EXPECT_EQ(titles().join(QLatin1Char(' ')), QStringLiteral("Low Medium Hoch Cancel"));
    EXPECT_EQ(presenter.sheets.back().title, QStringLiteral("Select Recording Audio Quality"));
    choose("Hoch");
    EXPECT_EQ(defaults.writes, QStringList({QStringLiteral("AudioQualityType"), kSynchronize}));
    EXPECT_EQ(defaults.stringForKey(QStringLiteral("AudioQualityType")), QStringLiteral("Hoch"));
    runLoop.advance(0.2);
    EXPECT_EQ(vc.quality(), QStringLiteral("Hoch"));
}

TEST_F(SettingVCTest, switchesAreStoredNegated) {
    for (const bool on : {true, false}) {
        defaults.writes.clear();
        vc.hideShowiClound(on);
        vc.autoQuickMail(on);
        EXPECT_EQ(defaults.writes,
                  QStringList({QStringLiteral("Iclound"), kSynchronize, QStringLiteral("QuickMail"), kSynchronize}));
        EXPECT_EQ(defaults.boolForKey(QStringLiteral("Iclound")), !on);
        EXPECT_EQ(defaults.boolForKey(QStringLiteral("QuickMail")), !on);
        EXPECT_EQ(vc.isCloudSyncOn(), on);
        EXPECT_EQ(vc.isQuickMailOn(), on);
    }
}

TEST_F(SettingVCTest, aChoiceAfterTheScreenIsGoneDoesNothing) {
    auto gone = std::make_unique<SettingVC>(SettingVC::Services{settings, runLoop, presenter});
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
