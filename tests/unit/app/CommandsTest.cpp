#include "app/Commands.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "app/settings/SettingsStore.h"
#include "support/Fakes.h"

namespace tavi::test {

TEST(Commands, SettingsAreReadAndWrittenByTheirKind) {
    FakeUserDefaults standard;
    FakeUserDefaults shared;
    const Suites suites{standard, shared};
    const struct {
        const char* key;
        const char* text;
        /// What reads back; null where the text is refused.
        const char* stored;
    } cases[] = {{"QuickMail", "NO", "false"},
                 {"QuickMail", "maybe", nullptr},
                 {"AudioFileType", "caf", "caf"},
                 {"AudioFileType", "CAF", nullptr},
                 {"AudioQualityType", "Hoch", "Hoch"},
                 {"Sort", "6", "6"},
                 {"Sort", "7", nullptr},
                 {"Sort", "2x", nullptr},
                 {"ForwardSong", "-1", nullptr},
                 {"ForwardSong", "nan", nullptr},
                 {"AppStart", "1", "true"},
                 {"quickmail", "NO", nullptr}};
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.key) + " " + row.text);
        const QString key = QString::fromLatin1(row.key);
        EXPECT_EQ(writeSetting(suites, key, QString::fromLatin1(row.text)).has_value(), row.stored != nullptr);
        if (row.stored != nullptr) {
            EXPECT_EQ(settingText(suites, key).value(), QString::fromLatin1(row.stored));
        }
    }
    EXPECT_FALSE(settingText(suites, QStringLiteral("ThemeColor")));
    EXPECT_FALSE(settingText(suites, QStringLiteral("Nonsense")));
    EXPECT_TRUE(shared.boolForKey(settingskey::kAppStart));
    EXPECT_FALSE(standard.objectForKey(settingskey::kAppStart).isValid());
}

TEST(Commands, ANameCannotForgeALine) {
    RecordingEntry entry;
    entry.setValue(entrykey::kFilename, QStringLiteral("a\nb\t\x1b.m4a"));
    entry.setValue(entrykey::kDuration, QStringLiteral("00:05"));
    const std::vector<RecordingEntry> recordings{entry};
    EXPECT_EQ(recordingsText(recordings, false), QByteArray("a?b??.m4a\t\t00:05\t\n"));
    const QJsonArray array = QJsonDocument::fromJson(recordingsText(recordings, true)).array();
    EXPECT_EQ(array[0][entrykey::kFilename].toString(), entry.value(entrykey::kFilename));
}

}  // namespace tavi::test
