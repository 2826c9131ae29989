#include "library/VoiceMemoVC.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "support/Fakes.h"
#include "support/TemporaryContainer.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class VoiceMemoVCTest : public ::testing::Test {
protected:
    VoiceMemoVCTest() { QLocale::setDefault(QLocale(QStringLiteral("en_US"))); }

    /// A recording with that size and date.
    void add(const char* name, qint64 bytes, const QDateTime& modified = QDateTime(QDate(2024, 3, 5), QTime(14, 3))) {
        QFile file(container.addDocument(QString::fromUtf8(name), {}));
        ASSERT_TRUE(file.resize(bytes));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(modified, QFileDevice::FileModificationTime));
    }

    /// Three recordings that every key orders differently.
    void addThree() {
        add("b.m4a", 9 << 20, QDateTime(QDate(2024, 3, 5), QTime(9, 0)));
        add("a.m4a", 21 << 19, QDateTime(QDate(2024, 1, 31), QTime(9, 0)));
        add("C.m4a", 1 << 20, QDateTime(QDate(2023, 12, 10), QTime(9, 0)));
    }

    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (int row = 0; row < vc.tableView()->rowCount(); ++row) {
            names.push_back(text(row, RecordingListModel::NameTextRole));
        }
        return names;
    }

    std::string text(int row, int role) {
        return vc.tableView()->data(vc.tableView()->index(row, 0), role).toString().toStdString();
    }

    TemporaryContainer container;
    FakeUserDefaults defaults;
    SettingsStore settings{defaults};
    FakeAudioDuration durations;
    NotificationCenter notifications;
    VoiceMemoVC vc{{settings, container, durations, notifications}};
};

TEST_F(VoiceMemoVCTest, listsEverythingInTheFolderButTheExcludedNames) {
    for (const char* folder : {"Inbox", "PrivateInbox", "ICloud", "stray"}) {
        ASSERT_TRUE(QDir(container.documentsPath()).mkdir(QLatin1String(folder)));
    }
    for (const char* name : {".DS_Store", ".hidden", "long.M4A", "noise.wav", "\xC3\xA9.txt"}) {
        add(name, 2048);
    }
    const QByteArray folder = QFile::encodeName(container.documentsPath());
    ASSERT_TRUE(QFile::link(QStringLiteral("gone"), container.documentsPath() + QStringLiteral("/dangling")));
    ASSERT_EQ(mkfifo((folder + "/pipe").constData(), 0600), 0);
    // Whoever asked for the length of the last two would get one, and wait for the pipe's for ever.
    durations.seconds = {{QStringLiteral("long.M4A"), 3725.9},
                         {QStringLiteral("noise.wav"), 59.999},
                         {QStringLiteral("stray"), 9.0},
                         {QStringLiteral("pipe"), 9.0}};

    vc.getAlltheFiles();

    std::map<std::string, std::string> listed;
    for (const RecordingEntry& entry : vc.arrRecordings()) {
        listed[entry.value(entrykey::kFilename).toStdString()] =
            (entry.value(entrykey::kExtension) + QLatin1Char(' ') + entry.value(entrykey::kDuration)).toStdString();
    }
    EXPECT_EQ(listed, (std::map<std::string, std::string>{{".hidden", " 00:00"},
                                                          {"long.M4A", "M4A 62:05"},
                                                          {"noise.wav", "wav 00:59"},
                                                          {"pipe", " 00:00"},
                                                          {"stray", " 00:00"},
                                                          {"\xC3\xA9.txt", "txt 00:00"}}));
}

TEST_F(VoiceMemoVCTest, aNameThatIsNoTextIsListedAndMeasuredLikeAnyOther) {
    class SizeInsteadOfDuration : public AudioDuration {
        double durationOfFile(const QString& path) const override { return static_cast<double>(QFile(path).size()); }
    };
    const std::string path = container.documentsPath().toStdString() + "/x\xff.m4a";
    std::ofstream(path) << "12345";
    const SizeInsteadOfDuration sizes;
    VoiceMemoVC screen{{settings, container, sizes, notifications}};
    screen.getAlltheFiles();
    EXPECT_TRUE(std::filesystem::remove(path));
    ASSERT_EQ(screen.arrRecordings().size(), 1U);
    const RecordingEntry& entry = screen.arrRecordings()[0];
    EXPECT_EQ(entry.value(entrykey::kFilename), QStringLiteral("x\uFFFD.m4a"));
    EXPECT_EQ(entry.nativeName(), "x\xff.m4a");
    EXPECT_EQ(entry.value(entrykey::kDuration), QStringLiteral("00:05"));
    EXPECT_EQ(entry.value(entrykey::kSize), QStringLiteral("0.000005"));
}

TEST_F(VoiceMemoVCTest, aRowShowsSizeDurationAndDate) {
    add("memo.m4a", 1048576);
    durations.seconds[QStringLiteral("memo.m4a")] = 61.0;
    vc.viewDidLoad();
    EXPECT_EQ(text(0, RecordingListModel::NameTextRole), "memo.m4a");
    EXPECT_EQ(text(0, RecordingListModel::DetailTextRole), "1.0 MB | 01:01 | 05 Mar,2024 | 02:03 PM");
    EXPECT_EQ(vc.headerText(), QStringLiteral("Local Recording's"));
    EXPECT_EQ(vc.title(), QStringLiteral("voice_record"));

    // The same name with other contents is measured again.
    durations.seconds[QStringLiteral("memo.m4a")] = 62.0;
    add("memo.m4a", 2097152);
    vc.reloadData();
    EXPECT_EQ(text(0, RecordingListModel::DetailTextRole), "2.0 MB | 01:02 | 05 Mar,2024 | 02:03 PM");
}

TEST_F(VoiceMemoVCTest, sortsByTheTextOfTheRememberedKeyAndStoresNothing) {
    addThree();
    const struct {
        int code;
        std::vector<std::string> order;
    } rows[] = {
        {1, {"b.m4a", "a.m4a", "C.m4a"}}, {2, {"C.m4a", "a.m4a", "b.m4a"}}, {3, {"a.m4a", "C.m4a", "b.m4a"}},
        {4, {"b.m4a", "C.m4a", "a.m4a"}}, {5, {"b.m4a", "a.m4a", "C.m4a"}}, {6, {"C.m4a", "a.m4a", "b.m4a"}},
    };
    for (const auto& row : rows) {
        defaults.setObject(row.code, settingskey::kSort);
        defaults.writes.clear();
        vc.getAlltheFiles();
        EXPECT_EQ(names(), row.order) << "Sort " << row.code;
        EXPECT_TRUE(defaults.writes.isEmpty());
        const ButtonOutlet button = row.code <= 2   ? vc.btnSortName()
                                    : row.code <= 4 ? vc.btnSortDate()
                                                    : vc.btnSortSize();
        EXPECT_EQ(button.selected, row.code % 2 == 0);
        EXPECT_EQ(button.image,
                  button.selected ? QStringLiteral("sorting_arrow_down.png") : QStringLiteral("sorting_arrow_up.png"));
        EXPECT_EQ(vc.btnSortName().image.isEmpty(), row.code > 2);
        EXPECT_EQ(vc.btnSortSize().image.isEmpty(), row.code < 5);
    }
    for (const int code : {0, 7, -1}) {
        defaults.setObject(code, settingskey::kSort);
        VoiceMemoVC fresh{{settings, container, durations, notifications}};
        fresh.getAlltheFiles();
        EXPECT_EQ(fresh.numberOfRowsInSection(0), 3);
        EXPECT_FALSE(fresh.btnSortName().selected || fresh.btnSortDate().selected || fresh.btnSortSize().selected);
    }
}

TEST_F(VoiceMemoVCTest, equalKeysKeepTheFoldersOrderInBothDirections) {
    for (const char* name : {"d", "a", "c", "b"}) {
        add(name, 4096);
    }
    vc.getAlltheFiles();
    const auto unsorted = names();
    for (const int code : {5, 6}) {
        defaults.setObject(code, settingskey::kSort);
        vc.getAlltheFiles();
        EXPECT_EQ(names(), unsorted);
    }
}

TEST_F(VoiceMemoVCTest, aTapTurnsTheDirectionRoundAndStoresIt) {
    addThree();
    vc.viewDidLoad();
    QObject button;
    const struct {
        void (VoiceMemoVC::*tap)(QObject*);
        int code;
        std::string first;
    } taps[] = {{&VoiceMemoVC::sortByName, 2, "C.m4a"}, {&VoiceMemoVC::sortByName, 1, "b.m4a"},
                {&VoiceMemoVC::sortByDate, 4, "b.m4a"}, {&VoiceMemoVC::sortByDate, 3, "a.m4a"},
                {&VoiceMemoVC::sortBySize, 6, "C.m4a"}, {&VoiceMemoVC::sortByDate, 4, "b.m4a"}};
    for (const auto& [tap, code, first] : taps) {
        defaults.writes.clear();
        (vc.*tap)(&button);
        EXPECT_EQ(settings.sort(), code);
        EXPECT_EQ(defaults.writes, (QStringList{settingskey::kSort, QStringLiteral("synchronize")}));
        EXPECT_EQ(names().front(), first) << code;
    }
    EXPECT_EQ(vc.btnSortDate().tintColor, QStringLiteral("#a1a1a1"));
    defaults.setObject(QStringLiteral("WHITE"), settingskey::kThemeColor);
    vc.sortByDate(&button);
    EXPECT_EQ(vc.btnSortDate().tintColor, QStringLiteral("#000000"));
}

TEST_F(VoiceMemoVCTest, reloadsOnDataUpdatedAndLeavesAnUnchangedTableAlone) {
    add("a.m4a", 1);
    vc.viewDidLoad();
    int resets = 0;
    QObject::connect(vc.tableView(), &QAbstractItemModel::modelReset, &vc, [&resets] { ++resets; });
    notifications.postNotification(kDataUpdatedNotification);
    EXPECT_EQ(resets, 0);
    add("b.m4a", 1);
    notifications.postNotification(QStringLiteral("other"));
    EXPECT_THAT(names(), ElementsAre("a.m4a"));
    notifications.postNotification(kDataUpdatedNotification);
    EXPECT_THAT(names(), UnorderedElementsAre("a.m4a", "b.m4a"));
    EXPECT_EQ(resets, 1);
}

}  // namespace
}  // namespace tavi::test
