#include "library/VoiceMemoVC.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <set>

#include "library/PlayerRules.h"
#include "library/utility/Notifications.h"
#include "support/FakeLibrary.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

struct VoiceMemoVCTest : ::testing::Test, FakeServices {
    /// A recording with that size and date.
    void add(const std::filesystem::path& name, qint64 bytes, const QDate& modified = QDate(2024, 3, 5),
             int minute = 3) {
        QFile file(container.addDocument(name, {}));
        ASSERT_TRUE(file.resize(bytes));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime(modified, QTime(14, minute)), QFileDevice::FileModificationTime));
    }
    static std::vector<std::string> texts(RecordingTable& screen, int role = RecordingListModel::NameTextRole) {
        std::vector<std::string> all;
        for (int row = 0; row < screen.tableView()->rowCount(); ++row) {
            all.push_back(screen.tableView()->index(row, 0).data(role).toString().toStdString());
        }
        return all;
    }

    FakeLibrary library{*this};
    VoiceMemoVC& vc = library.vc;
    RecordingTable& table = library.table;
};

TEST_F(VoiceMemoVCTest, listsEverythingInTheFolderButTheExcludedNames) {
    const std::filesystem::path folder = container.documentsPath();
    for (const char* name : {"Inbox", "PrivateInbox", "ICloud", "stray"}) {
        ASSERT_TRUE(std::filesystem::create_directory(folder / name));
    }
    for (const char* name : {".DS_Store", ".hidden", "long.M4A", "noise.wav", "\xC3\xA9.txt"}) {
        add(name, 2048);
    }
    std::ofstream(folder / "x\xff\n.m4a") << "12345";
    std::filesystem::create_symlink("gone", folder / "dangling");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    // Whoever asked for the length of the last two would get one, and wait for the pipe's for ever.
    durations.seconds = {
        {"long.M4A", 3725.9}, {"noise.wav", 59.999}, {"stray", 9.0}, {"pipe", 9.0}, {"x\xff\n.m4a", 5.0}};
    table.getAlltheFiles();
    runLoop.drain();
    std::vector<std::string> listed;
    for (const RecordingEntry& entry : table.arrRecordings()) {
        const QStringList values{entry.value(entrykey::kFilename), entry.value(entrykey::kExtension),
                                 entry.value(entrykey::kDuration)};
        listed.push_back(values.join(QLatin1Char(' ')).toStdString());
    }
    EXPECT_THAT(listed,
                UnorderedElementsAre(".hidden  00:00", "long.M4A M4A 62:05", "noise.wav wav 00:59", "pipe  00:00",
                                     "stray  00:00", "\xC3\xA9.txt txt 00:00", "x\xEF\xBF\xBD\n.m4a m4a 00:05"))
        << "a name that is no text is measured like any other";
    EXPECT_THAT(texts(table), ::testing::Contains("x\xEF\xBF\xBD?.m4a")) << "and stands on one line";
    std::filesystem::remove_all(folder);
    vc.reloadData();
    EXPECT_EQ(table.numberOfRowsInSection(0), 0);
}

TEST_F(VoiceMemoVCTest, aChangedRecordingIsMeasuredAgainAndAnotherLanguageDatesAnew) {
    for (const char* locale : {"en_US", "de_DE"}) {
        const bool isFirst = locale == std::string_view("en_US");
        QLocale::setDefault(QLocale(QLatin1String(locale)));
        add("memo.m4a", (isFirst ? 1 : 2) << 20);
        add("next", 1048575, QDate(2024, 3, 5), 59);
        durations.seconds["memo.m4a"] = isFirst ? 61.0 : 62.0;
        vc.reloadData();
        runLoop.drain();
        const std::string day = isFirst ? " | 05 Mar,2024 | 02:" : " | 05 M\xC3\xA4rz,2024 | 02:";
        EXPECT_THAT(texts(table, RecordingListModel::DetailTextRole),
                    UnorderedElementsAre((isFirst ? "1.0 MB | 01:01" : "2.0 MB | 01:02") + day + "03 PM",
                                         "1024 KB | 00:00" + day + "59 PM"));
    }
}

TEST_F(VoiceMemoVCTest, sortsByTheTextOfTheRememberedKeyWhichATapTurnsRound) {
    add("b", 9 << 20, QDate(2024, 3, 5));
    add("a", 2 << 20, QDate(2024, 1, 31));
    add("C", 21 << 19, QDate(2023, 12, 10));
    add("d", 1 << 20, QDate(2024, 2, 5));
    // By name, date and size; an odd code turns it round.
    const std::vector<std::string> orders[] = {{"C", "a", "b", "d"}, {"d", "b", "C", "a"}, {"d", "C", "a", "b"}};
    void (RecordingTable::*const taps[])(QObject*) = {&RecordingTable::sortByName, &RecordingTable::sortByDate,
                                                      &RecordingTable::sortBySize};
    const auto expectSorted = [&](RecordingTable& screen, int code) {
        SCOPED_TRACE(code);
        const auto key = static_cast<std::size_t>((code - 1) / 2);
        auto order = orders[key];
        if (code % 2 == 1) {
            std::reverse(order.begin(), order.end());
        }
        EXPECT_EQ(texts(screen), order);
        EXPECT_EQ(settings.sort(), code);
        const ButtonOutlet buttons[] = {screen.btnSortName(), screen.btnSortDate(), screen.btnSortSize()};
        for (std::size_t i = 0; i < 3; ++i) {
            const char* arrow = code % 2 == 0 ? "sorting_arrow_down.png" : "sorting_arrow_up.png";
            EXPECT_EQ(buttons[i].image, QLatin1String(i == key ? arrow : ""));
        }
        EXPECT_EQ(buttons[key].selected, code % 2 == 0);
        EXPECT_EQ(buttons[key].tintColor, QLatin1String(settings.isThemeWhite() ? "#000000" : "#a1a1a1"));
    };
    for (int code = 1; code <= 6; ++code) {
        defaults.setObject(code, settingskey::kSort);
        defaults.writes.clear();
        FakeLibrary opened{*this};
        opened.vc.viewDidLoad();
        expectSorted(opened.table, code);
        EXPECT_TRUE(defaults.writes.isEmpty()) << "only a tap is remembered";
        std::invoke(taps[(code - 1) / 2], opened.table, &vc);
        expectSorted(opened.table, code % 2 == 0 ? code - 1 : code + 1);
        EXPECT_EQ(defaults.writes.join(QLatin1Char(' ')), QStringLiteral("Sort synchronize"));
    }
    defaults.setObject(7, settingskey::kSort);
    vc.viewDidLoad();
    EXPECT_EQ(table.btnSortName().image + table.btnSortDate().image + table.btnSortSize().image, QString())
        << "no order at all";
    defaults.setObject(QStringLiteral("WHITE"), settingskey::kThemeColor);
    for (const int key : {2, 0, 1, 2}) {
        const int code = 2 * key + 2 - (key == 2 && settings.sort() == 4 ? 1 : 0);
        std::invoke(taps[key], table, &vc);
        expectSorted(table, code);
    }
}

TEST_F(VoiceMemoVCTest, theSearchLeavesWhatHoldsItsTextAndEachRowItsPlace) {
    for (const char* name : {"Talk 1", "memo", "talk 2", "\xC3\x9C"}) {
        add(name, 1);
    }
    defaults.setObject(2, settingskey::kSort);
    vc.viewDidLoad();
    for (const auto& [typed, expected] : {std::pair{"t", "0 Talk 1,2 talk 2,"},
                                          {"TALK 2", "2 talk 2,"},
                                          {"TALK 2x", ""},
                                          {"\xC3\xBC", "3 \xC3\x9C,"},
                                          {".*", ""},
                                          {"", "0 Talk 1,1 memo,2 talk 2,3 \xC3\x9C,"}}) {
        table.setSearchText(QString::fromUtf8(typed));
        std::string found;
        for (std::size_t i = 0; i < texts(table).size(); ++i) {
            found += texts(table, RecordingListModel::RowRole)[i] + ' ' + texts(table)[i] + ',';
        }
        EXPECT_EQ(found, expected) << typed;
        EXPECT_EQ(table.numberOfRowsInSection(0), 4);
    }
}

TEST_F(VoiceMemoVCTest, reloadsOnDataUpdatedAndTellsOfTheRowsThatHaveChanged) {
    const char* const kFiles[] = {"a", "b", "c", "d"};
    for (const char* file : kFiles) {
        add(file, 1 << 20);
    }
    defaults.setObject(2, settingskey::kSort);
    vc.viewDidLoad();
    vc.viewDidLoad();
    std::set<int> told;
    int resets = 0;
    QObject::connect(table.tableView(), &QAbstractItemModel::modelReset, &vc, [&resets] { ++resets; });
    QObject::connect(table.tableView(), &QAbstractItemModel::dataChanged, &vc,
                     [&told](const auto& first, const auto& last) {
                         for (int row = first.row(); row <= last.row(); ++row) {
                             told.insert(row);
                         }
                     });
    int megabytes = 1;
    for (const std::set<int>& changed : {std::set<int>{}, {1, 2}, {0}, {3}, {0, 1, 2, 3}}) {
        ++megabytes;
        for (const int row : changed) {
            add(kFiles[row], megabytes << 20);
        }
        told.clear();
        notifications.postNotification(QStringLiteral("other"));
        EXPECT_TRUE(told.empty());
        notifications.postNotification(kDataUpdatedNotification);
        EXPECT_EQ(told, changed);
    }
    EXPECT_EQ(resets, 0) << "the view stays where it was scrolled to";
    add("aa", 1);
    notifications.postNotification(kDataUpdatedNotification);
    EXPECT_EQ(resets, 0) << "nor by one that comes";
    EXPECT_THAT(texts(table), ElementsAre("a", "aa", "b", "c", "d"));
}

TEST_F(VoiceMemoVCTest, aLongListAppearsAtOnceAndItsLengthsFillIn) {
    const auto addMany = [this](int from, int to) {
        for (int i = from; i < to; ++i) {
            add(std::to_string(i), 1000 + i);
            durations.seconds[std::to_string(i)] = 60.0 + i;
        }
    };
    // How many lengths are open; the others are right.
    const auto openIn = [](RecordingTable& screen) {
        std::ptrdiff_t open = 0;
        const auto names = texts(screen);
        const auto details = texts(screen, RecordingListModel::DetailTextRole);
        for (std::size_t i = 0; i < names.size(); ++i) {
            const bool isOpen = details[i].find("--:--") != std::string::npos;
            const std::string length = playerrules::timeText(60.0 + std::stoi(names[i])).toStdString();
            EXPECT_TRUE(isOpen || details[i].find("| " + length + " |") != std::string::npos) << details[i];
            open += isOpen ? 1 : 0;
        }
        return open;
    };
    addMany(0, 100);
    vc.viewDidLoad();
    // What is found out for one list is no longer told after the next.
    vc.viewWillAppear();
    EXPECT_EQ(openIn(table), 100);
    table.setSearchText(QStringLiteral("9"));
    EXPECT_EQ(texts(table).size(), 19U);
    table.setSearchText({});
    runLoop.drain();
    EXPECT_EQ(openIn(table), 0);
    // Only what is new is asked for.
    addMany(100, 133);
    vc.viewWillAppear();
    EXPECT_EQ(openIn(table), 33);
    // What is read for a list that is no longer shown is given up.
    bool wasStopped = false;
    durations.onQuestion = [&](const std::stop_token& stop) {
        durations.onQuestion = {};
        table.getAlltheFiles();
        wasStopped = stop.stop_requested();
    };
    runLoop.drain();
    EXPECT_TRUE(wasStopped);
    EXPECT_EQ(openIn(table), 0);
}

TEST_F(VoiceMemoVCTest, aShapeIsMadeOnceWhereItIsSeenAndAnewForAChangedFile) {
    for (int i = 0; i < 100; ++i) {
        const std::string name = std::to_string(100 + i);
        add(name, 1000);
        files.sounds[container.documentsPath() / name] = std::make_shared<FakeSound>();
        files.sounds[container.documentsPath() / name]->planes = {std::vector<float>(800, 0.5F)};
    }
    std::filesystem::create_directory(container.documentsPath() / "stray");
    defaults.setObject(2, settingskey::kSort);
    vc.viewDidLoad();
    runLoop.drain();
    std::vector<int> told;
    QObject::connect(table.tableView(), &QAbstractItemModel::dataChanged, &vc,
                     [&told](const auto& first, const auto&) { told.push_back(first.row()); });
    // How many rows have a shape; asks for those that have none.
    const auto seen = [this](int from, int to) {
        int shapes = 0;
        for (int row = 2 * from; row < 2 * to; ++row) {
            const auto index = table.tableView()->index(row / 2, 0);
            shapes += index.data(RecordingListModel::ShapeRole).value<QList<qreal>>() == QList<qreal>(8, 1.0) ? 1 : 0;
        }
        runLoop.advance(1.0);
        return shapes / 2;
    };
    EXPECT_EQ(seen(3, 5), 0);
    EXPECT_EQ(seen(3, 5), 2);
    EXPECT_THAT(told, ElementsAre(4, 3)) << "what is asked for last comes first, and the stray folder never";
    EXPECT_EQ(files.opened, 2);
    vc.viewWillAppear();
    add("103", 2000);
    vc.viewWillAppear();
    EXPECT_EQ(seen(3, 5), 1);
    EXPECT_EQ(files.opened, 3);
    EXPECT_EQ(seen(0, 101), 2);
    EXPECT_EQ(files.opened, 3 + 64) << "what has been scrolled away is no longer wanted";
}

TEST_F(VoiceMemoVCTest, whatWasTrimmedIsMarkedInViewAndSaidOnce) {
    add("talk.wav", 1000);
    assets.files["talk.wav"] = {{60 * 44100, 44100}, 1, {}};
    defaults.setObject(2, settingskey::kSort);
    vc.viewDidLoad();
    std::vector<int> revealed;
    QObject::connect(&vc, &VoiceMemoVC::rowRevealed, &vc, [&revealed](int row) { revealed.push_back(row); });
    table.setSearchText(QStringLiteral("x"));
    library.actions.aim(QStringLiteral("0"), 0, {});
    library.actions.trimAudio();
    runLoop.drain();
    trimmers.screen()->btnUploadTapped();
    runLoop.advance(1.0);
    // The export comes twice, and so does its end.
    EXPECT_THAT(revealed, ElementsAre(0));
    ASSERT_EQ(notices.posted.size(), 1U);
    EXPECT_EQ(vc.newRow(), 0);
    EXPECT_EQ(table.shownIndex(0), 0) << "a search does not hide it";
    add("A.wav", 1000);
    vc.viewWillAppear();
    EXPECT_EQ(vc.newRow(), 1);
    notices.posted[0].action();
    EXPECT_EQ(vc.selectedIndex(), 1);
    EXPECT_EQ(vc.newRow(), -1) << "another row has been chosen";
}

TEST_F(VoiceMemoVCTest, theSecondSectionComesAndGoesWithTheCloudAsTheScreenAppears) {
    add("a", 1);
    vc.viewDidLoad();
    for (const bool isOn : {true, false, true}) {
        settings.setCloudSyncOn(isOn);
        EXPECT_EQ(table.numberOfSections(), isOn ? 2 : 1);
        vc.viewWillAppear();
        EXPECT_EQ(vc.cloudHeaderText(), isOn ? QStringLiteral("iCloud Sync Recording's") : QString());
        vc.didSelectRowAtIndexPath(1, 0);
        EXPECT_EQ(vc.selectedIndex(), -1) << "there is no such row";
    }
    EXPECT_EQ(vc.headerText() + vc.title(), QStringLiteral("Local Recording'svoice_record"));
}

}  // namespace
}  // namespace tavi::test
