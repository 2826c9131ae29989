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
        std::function<QVariant()> read;
        QVariant expected;
    } cases[] = {
        {"AudioFileType", {}, [&] { return store.audioFileType(); }, QLatin1String("m4a")},
        {"AudioFileType", QLatin1String("caf"), [&] { return store.audioFileType(); }, QLatin1String("caf")},
        {"AudioQualityType", QLatin1String(""), [&] { return store.audioQualityType(); }, QLatin1String("Medium")},
        {"AudioQualityType", QLatin1String("Hoch"), [&] { return store.audioQualityType(); }, QLatin1String("Hoch")},
        {"QuickMail", {}, [&] { return store.isQuickMailOn(); }, true},
        {"QuickMail", true, [&] { return store.isQuickMailOn(); }, false},
        {"Iclound", {}, [&] { return store.isCloudSyncOn(); }, true},
        {"Iclound", true, [&] { return store.isCloudSyncOn(); }, false},
        {"RewindSong", {}, [&] { return store.rewindSeconds(); }, 10.0},
        {"RewindSong", {}, [&] { return store.storedRewindSeconds(); }, 0.0},
        {"RewindSong", 7.5, [&] { return store.rewindSeconds(); }, 7.5},
        {"RewindSong", 7.5, [&] { return store.storedRewindSeconds(); }, 7.5},
        {"ForwardSong", 0.0, [&] { return store.forwardSeconds(); }, 30.0},
        {"ForwardSong", 45.0, [&] { return store.forwardSeconds(); }, 45.0},
        {"ForwardSong", 45.0, [&] { return store.storedForwardSeconds(); }, 45.0},
        {"ThemeColor", {}, [&] { return store.isThemeWhite(); }, false},
        {"ThemeColor", QLatin1String("WHITE"), [&] { return store.isThemeWhite(); }, true},
    };
    for (const auto& row : cases) {
        if (row.stored.isValid()) {
            defaults.setObject(row.stored, QString::fromLatin1(row.key));
        }
        EXPECT_EQ(row.read(), row.expected) << row.key << " " << row.stored.toString().toStdString();
    }
}

}  // namespace tavi::test
