#include "app/settings/SettingsStore.h"

#include <gmock/gmock.h>

#include <functional>

#include "support/Fakes.h"

namespace tavi::test {

TEST(SettingsStore, ReadsWhatIsStoredOrWhatItStandsFor) {
    FakeUserDefaults defaults;
    SettingsStore store(defaults);
    const struct {
        const char* key;
        /// Invalid where nothing is stored.
        QVariant stored;
        std::function<QVariant(const SettingsStore&)> read;
        QVariant expected;
    } cases[] = {{"AudioFileType", {}, &SettingsStore::audioFileType, QLatin1String("m4a")},
                 {"AudioFileType", QLatin1String("caf"), &SettingsStore::audioFileType, QLatin1String("caf")},
                 {"AudioQualityType", QLatin1String(""), &SettingsStore::audioQualityType, QLatin1String("Medium")},
                 {"QuickMail", {}, &SettingsStore::isQuickMailOn, true},
                 {"Iclound", {}, &SettingsStore::isCloudSyncOn, true},
                 {"RewindSong", {}, &SettingsStore::storedRewindSeconds, 0.0},
                 {"RewindSong", 7.5, &SettingsStore::rewindSeconds, 7.5},
                 {"ForwardSong", 0.0, &SettingsStore::forwardSeconds, 30.0},
                 {"ForwardSong", 45.0, &SettingsStore::storedForwardSeconds, 45.0},
                 {"PasscodeProtectionEnabled", {}, &SettingsStore::isPasscodeProtectionOn, false},
                 {"ThemeColor", {}, &SettingsStore::isThemeWhite, false},
                 {"ThemeColor", QLatin1String("WHITE"), &SettingsStore::isThemeWhite, true}};
    for (const auto& row : cases) {
        if (row.stored.isValid()) {
            defaults.setObject(row.stored, QString::fromLatin1(row.key));
        }
        EXPECT_EQ(row.read(store), row.expected) << row.key;
    }
}

}  // namespace tavi::test
