#include "app/settings/SettingsStore.h"

#include <gtest/gtest.h>

#include "support/Fakes.h"

namespace tavi::test {
namespace {

const QString kSynchronize = QStringLiteral("synchronize");

TEST(SettingsStoreTest, theFirstLaunchWritesItsValuesInOrderAndTheSecondNothing) {
    FakeUserDefaults defaults;
    SettingsStore settings(defaults);
    settings.writeFirstLaunchValues();
    settings.writeSortIfAbsent();
    const QList<QPair<QString, QVariant>> expected{{QStringLiteral("DefaultValSetting"), true},
                                                   {QStringLiteral("AUDIO"), true},
                                                   {QStringLiteral("AudioFileType"), QStringLiteral("m4a")},
                                                   {QStringLiteral("AudioSegmentCount"), QStringLiteral("0")},
                                                   {QStringLiteral("AudioQualityType"), QStringLiteral("Medium")},
                                                   {QStringLiteral("AudioQualityTypeIndex"), QStringLiteral("1")},
                                                   {QStringLiteral("QuickMail"), true},
                                                   {QStringLiteral("Iclound"), true}};
    QStringList writes;
    for (const auto& [key, value] : expected) {
        EXPECT_EQ(defaults.objectForKey(key), value) << qPrintable(key);
        writes.append(key);
    }
    EXPECT_EQ(defaults.writes, writes + QStringList({kSynchronize, QStringLiteral("Sort"), kSynchronize}));
    EXPECT_EQ(settings.sort(), 1);

    defaults.writes.clear();
    settings.writeFirstLaunchValues();
    settings.writeSortIfAbsent();
    EXPECT_EQ(defaults.writes, QStringList());

    // A key that is gone comes back only if it is the sort order.
    defaults.removeObjectForKey(settingskey::kSort);
    defaults.removeObjectForKey(settingskey::kAudioFileType);
    settings.writeFirstLaunchValues();
    settings.writeSortIfAbsent();
    EXPECT_EQ(defaults.writes, QStringList({QStringLiteral("Sort"), kSynchronize}));
    EXPECT_EQ(settings.audioFileType(), QStringLiteral("m4a"));
}

TEST(SettingsStoreTest, secondsFallBackWhereNothingOrZeroIsStored) {
    FakeUserDefaults defaults;
    const SettingsStore settings(defaults);
    const struct {
        QVariant stored;
        double rewind;
        double forward;
    } rows[] = {{{}, 10.0, 30.0}, {0.0, 10.0, 30.0}, {15.0, 15.0, 15.0}, {QStringLiteral("20"), 20.0, 20.0}};
    for (const auto& row : rows) {
        defaults.setObject(row.stored, settingskey::kRewindSong);
        defaults.setObject(row.stored, settingskey::kForwardSong);
        EXPECT_EQ(settings.rewindSeconds(), row.rewind);
        EXPECT_EQ(settings.forwardSeconds(), row.forward);
    }
}

}  // namespace
}  // namespace tavi::test
