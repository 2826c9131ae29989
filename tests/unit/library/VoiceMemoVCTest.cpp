#include "library/VoiceMemoVC.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "library/PlayerRules.h"
#include "support/FakeLibrary.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class VoiceMemoVCTest : public ::testing::Test, protected FakeServices {
protected:
    /// A recording with that size and date.
    void add(const char* name, qint64 bytes, const QDateTime& modified = QDateTime(QDate(2024, 3, 5), QTime(14, 3))) {
        QFile file(container.addDocument(name, {}));
        ASSERT_TRUE(file.resize(bytes));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(modified, QFileDevice::FileModificationTime));
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

    FakeLibrary library{*this, durations};
    VoiceMemoVC& vc = library.vc;
    PlayerPanel& player = library.player;
};

TEST_F(VoiceMemoVCTest, listsEverythingInTheFolderButTheExcludedNames) {
    for (const char* folder : {"Inbox", "PrivateInbox", "ICloud", "stray"}) {
        ASSERT_TRUE(std::filesystem::create_directory(container.documentsPath() / folder));
    }
    for (const char* name : {".DS_Store", ".hidden", "long.M4A", "noise.wav", "\xC3\xA9.txt"}) {
        add(name, 2048);
    }
    const std::filesystem::path folder = container.documentsPath();
    std::filesystem::create_symlink("gone", folder / "dangling");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    // Whoever asked for the length of the last two would get one, and wait for the pipe's for ever.
    durations.seconds = {{"long.M4A", 3725.9}, {"noise.wav", 59.999}, {"stray", 9.0}, {"pipe", 9.0}};

    vc.getAlltheFiles();

    std::vector<std::string> listed;
    for (const RecordingEntry& entry : vc.arrRecordings()) {
        listed.push_back(QStringLiteral("%1: %2 %3")
                             .arg(entry.value(entrykey::kFilename), entry.value(entrykey::kExtension),
                                  entry.value(entrykey::kDuration))
                             .toStdString());
    }
    EXPECT_THAT(listed, UnorderedElementsAre(".hidden:  00:00", "long.M4A: M4A 62:05", "noise.wav: wav 00:59",
                                             "pipe:  00:00", "stray:  00:00", "\xC3\xA9.txt: txt 00:00"));
}

TEST_F(VoiceMemoVCTest, aNameThatIsNoTextIsListedAndMeasuredLikeAnyOther) {
    class SizeInsteadOfDuration : public AudioDuration {
        double durationOfFile(const std::filesystem::path& path) const override {
            return static_cast<double>(std::filesystem::file_size(path));
        }
    };
    const std::filesystem::path path = container.documentsPath() / "x\xff.m4a";
    std::ofstream(path) << "12345";
    const SizeInsteadOfDuration sizes;
    FakeLibrary other(*this, sizes);
    other.vc.getAlltheFiles();
    EXPECT_TRUE(std::filesystem::remove(path));
    ASSERT_EQ(other.vc.arrRecordings().size(), 1U);
    const RecordingEntry& entry = other.vc.arrRecordings()[0];
    EXPECT_EQ(entry.value(entrykey::kFilename), QStringLiteral("x\uFFFD.m4a"));
    EXPECT_EQ(entry.nativeName(), "x\xff.m4a");
    EXPECT_EQ(entry.value(entrykey::kDuration), QStringLiteral("00:05"));
    EXPECT_EQ(entry.value(entrykey::kSize), QStringLiteral("0.000005"));
}

TEST_F(VoiceMemoVCTest, aChangedRecordingIsMeasuredAgain) {
    for (const int megabytes : {1, 2}) {
        add("memo.m4a", megabytes << 20);
        durations.seconds["memo.m4a"] = 60.0 + megabytes;
        vc.reloadData();
        EXPECT_EQ(text(0, RecordingListModel::DetailTextRole),
                  QStringLiteral("%1.0 MB | 01:0%1 | 05 Mar,2024 | 02:03 PM").arg(megabytes).toStdString());
    }
}

TEST_F(VoiceMemoVCTest, sortsByTheTextOfTheRememberedKeyWhichATapTurnsRound) {
    add("b", 9 << 20, QDateTime(QDate(2024, 3, 5), QTime(9, 0)));
    add("a", 21 << 19, QDateTime(QDate(2024, 1, 31), QTime(9, 0)));
    add("C", 1 << 20, QDateTime(QDate(2023, 12, 10), QTime(9, 0)));
    const struct {
        int code;
        std::vector<std::string> order;
        void (VoiceMemoVC::*tap)(QObject*);
        int after;
    } rows[] = {
        {1, {"b", "a", "C"}, &VoiceMemoVC::sortByName, 2}, {2, {"C", "a", "b"}, &VoiceMemoVC::sortByName, 1},
        {3, {"a", "C", "b"}, &VoiceMemoVC::sortByDate, 4}, {4, {"b", "C", "a"}, &VoiceMemoVC::sortByDate, 3},
        {5, {"b", "a", "C"}, &VoiceMemoVC::sortBySize, 6}, {6, {"C", "a", "b"}, &VoiceMemoVC::sortBySize, 5},
    };
    for (const auto& [code, order, tap, after] : rows) {
        SCOPED_TRACE(code);
        defaults.setObject(code, settingskey::kSort);
        vc.getAlltheFiles();
        EXPECT_EQ(names(), order);
        QObject button;
        std::invoke(tap, vc, &button);
        EXPECT_EQ(settings.sort(), after);
        EXPECT_EQ(names(), rows[after - 1].order);
    }
    // Rows of the same size keep their order in both directions.
    add("A", 9 << 20);
    std::vector<std::vector<std::string>> orders;
    for (const int code : {5, 6}) {
        defaults.setObject(code, settingskey::kSort);
        vc.getAlltheFiles();
        orders.push_back(names());
        std::erase_if(orders.back(), [](const std::string& name) { return name != "A" && name != "b"; });
    }
    EXPECT_EQ(orders[0], orders[1]);
    defaults.setObject(7, settingskey::kSort);
    FakeLibrary other(*this, durations);
    other.vc.getAlltheFiles();
    EXPECT_EQ(other.vc.numberOfRowsInSection(0), 4) << "no order at all";
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

TEST_F(VoiceMemoVCTest, aLongListAppearsAtOnceAndItsLengthsFillIn) {
    for (int i = 0; i < 100; ++i) {
        add(std::to_string(i).c_str(), 1000 + i);
        durations.seconds[std::to_string(i)] = 60.0 + i;
    }
    vc.viewDidLoad();
    vc.viewWillAppear();
    EXPECT_EQ(vc.numberOfRowsInSection(0), 100);
    for (const RecordingEntry& entry : vc.arrRecordings()) {
        EXPECT_EQ(entry.value(entrykey::kDuration), QStringLiteral("--:--"));
    }
    vc.setSearchText(QStringLiteral("9"));
    EXPECT_EQ(names().size(), 19U);
    runLoop.drain();
    for (const RecordingEntry& entry : vc.arrRecordings()) {
        EXPECT_EQ(entry.value(entrykey::kDuration),
                  playerrules::timeText(60.0 + entry.value(entrykey::kFilename).toInt()));
    }
}

/// Two recordings, a.m4a of 40 s and b.m4a of 3725 s, in this order.
class PlayingTest : public VoiceMemoVCTest {
protected:
    PlayingTest() {
        add("a.m4a", 1000);
        add("b.m4a", 2000);
        add("text.txt", 3000);
        players.seconds = {{"a.m4a", 40.0}, {"b.m4a", 3725.0}};
        defaults.setObject(2, settingskey::kSort);
        // Without the cloud's list the row's own recording is what plays.
        settings.setCloudSyncOn(true);
        vc.viewDidLoad();
        vc.viewWillAppear();
    }

    void expectPlaying(int row, const char* file, bool isHeard) {
        EXPECT_EQ(vc.selectedIndex(), row);
        EXPECT_EQ(vc.playingName(), QLatin1String(file));
        EXPECT_TRUE(vc.isPlaying());
        EXPECT_EQ(player.isPlayerPlaying(), isHeard);
        EXPECT_EQ(remote.info.playbackState,
                  isHeard ? NowPlayingInfo::PlaybackState::Playing : NowPlayingInfo::PlaybackState::Paused);
    }
};

TEST_F(PlayingTest, rowsOpenAndCloseThePlayer) {
    vc.didSelectRowAtIndexPath(0, 1);
    expectPlaying(1, "b.m4a", true);
    runLoop.advance(61.5);
    EXPECT_EQ(player.lblSongMinTime().text, QStringLiteral("01:01"));
    EXPECT_EQ(player.lblSongMaxTime().text, QStringLiteral("62:05"));

    // Sorting takes the open row along.
    QObject button;
    vc.sortByName(&button);
    expectPlaying(1, "b.m4a", true);

    vc.didSelectRowAtIndexPath(0, 2);
    expectPlaying(2, "a.m4a", true);
    vc.didSelectRowAtIndexPath(0, 2);
    EXPECT_EQ(vc.selectedIndex(), -1);
    EXPECT_FALSE(vc.isPlaying() || vc.isPanelShown() || player.hasPlayer() || remote.isReceiving);

    // What is no recording opens a panel without sound.
    vc.didSelectRowAtIndexPath(0, 0);
    EXPECT_TRUE(vc.isPanelShown());
    player.forwardSkip();
    player.progressSliderMoved(1.0);
    vc.playAudio(0, true);
    vc.playerClose();
    EXPECT_FALSE(vc.isPanelShown() || player.hasPlayer());
}

TEST_F(PlayingTest, theEndCollapsesTheRowAndKeepsThePlayer) {
    vc.didSelectRowAtIndexPath(0, 0);
    runLoop.advance(40.5);
    EXPECT_EQ(vc.selectedIndex(), -1);
    EXPECT_TRUE(vc.isPlaying() && vc.isPanelShown());
    vc.playAudio(-1, false);
    EXPECT_TRUE(player.isPlayerPlaying());
    EXPECT_LT(player.currentTime(), 1.0);
    // Appearing again collapses the row; the sound goes on.
    vc.viewWillAppear();
    EXPECT_TRUE(player.isPlayerPlaying());
}

TEST_F(PlayingTest, aHundredLoadsMakeOneTickAndNoneWhilePaused) {
    for (int i = 0; i < 101; ++i) {
        vc.didSelectRowAtIndexPath(0, 0);
    }
    EXPECT_EQ(runLoop.activeTimers(), 2U) << "the tick and the fake player's end";
    vc.playAudio(0, player.btnPlay().selected);
    EXPECT_EQ(runLoop.activeTimers(), 0U);
}

TEST_F(PlayingTest, skipsGoByTheirStepsOrNotAtAll) {
    const struct {
        double rewind, forward, from, back, ahead;
    } rows[] = {{0, 0, 5, 5, 35}, {0, 15, 25, 15, 40}, {2.5, 15, 20, 17.5, 35}, {20, 0, 10, 10, 40}};
    vc.didSelectRowAtIndexPath(0, 0);
    vc.playAudio(0, true);
    for (const auto& row : rows) {
        defaults.setObject(row.rewind, settingskey::kRewindSong);
        defaults.setObject(row.forward, settingskey::kForwardSong);
        player.progressSliderMoved(row.from);
        player.backSkip();
        EXPECT_EQ(player.slider_player().value, row.back);
        player.progressSliderMoved(row.from);
        player.forwardSkip();
        EXPECT_EQ(player.currentTime(), row.ahead);
    }
}

TEST_F(PlayingTest, speedsToggleAndExcludeEachOther) {
    vc.didSelectRowAtIndexPath(0, 0);
    QObject button;
    const std::pair<void (PlayerPanel::*)(QObject*), float> taps[] = {{&PlayerPanel::fastAudio, 2.0F},
                                                                      {&PlayerPanel::fastAudio, 1.0F},
                                                                      {&PlayerPanel::slowAudio, 0.5F},
                                                                      {&PlayerPanel::fastAudio, 2.0F},
                                                                      {&PlayerPanel::mediumAudio, 1.0F}};
    for (const auto& [tap, rate] : taps) {
        std::invoke(tap, player, &button);
        EXPECT_EQ(players.last()->rate(), rate);
        EXPECT_EQ(player.btnFastPlay().selected, rate == 2.0F);
        EXPECT_EQ(player.btnSlow().selected, rate == 0.5F);
    }
}

TEST_F(PlayingTest, theDesktopsControlsAndTheRouteButtonReachThePlayer) {
    using Subtype = RemoteControlEvent::Subtype;
    vc.didSelectRowAtIndexPath(0, 0);
    remote.send(Subtype::Play);
    expectPlaying(0, "a.m4a", true);
    remote.send(Subtype::Pause);
    remote.send(Subtype::Pause);
    expectPlaying(0, "a.m4a", false);
    remote.send(Subtype::SetPosition, 25.0);
    EXPECT_EQ(player.currentTime(), 25.0);
    EXPECT_EQ(remote.jumps, 1);
    remote.send(Subtype::SetRate, 0.5);
    EXPECT_TRUE(player.btnSlow().selected);
    for (int press = 0; press < 3; ++press) {
        player.playerSpeaker();
    }
    using Override = AudioSession::PortOverride;
    EXPECT_EQ(session.overrides, (std::vector{Override::None, Override::Speaker, Override::None}));
}

TEST_F(PlayingTest, aRowPlaysWithoutTheCloudAndItsTrimmerStopsIt) {
    // With the setting off the cloud's list is asked, which has no such row: what the row has loaded plays.
    settings.setCloudSyncOn(false);
    vc.didSelectRowAtIndexPath(0, 1);
    expectPlaying(1, "b.m4a", true);
    vc.trimRow(1);
    EXPECT_FALSE(vc.isPlaying());
    ASSERT_NE(trimmers.screen(), nullptr);
    EXPECT_TRUE(trimmers.screen()->input().getUrl.ends_with("/b.m4a"));
}

TEST_F(PlayingTest, theSecondSectionComesAndGoesWithTheCloudAsTheScreenAppears) {
    EXPECT_EQ(vc.cloudHeaderText(), QStringLiteral("iCloud Sync Recording's"));
    settings.setCloudSyncOn(false);
    EXPECT_EQ(vc.numberOfSections(), 1);
    vc.viewWillAppear();
    EXPECT_EQ(vc.cloudHeaderText(), QString());
}

}  // namespace
}  // namespace tavi::test
