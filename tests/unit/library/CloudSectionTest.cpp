#include "library/CloudSection.h"

#include <gmock/gmock.h>

#include "support/FakeLibrary.h"
#include "support/Files.h"
#include "support/Texts.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;
using State = CloudFile::State;

struct CloudSectionTest : ::testing::Test, FakeServices {
    CloudSectionTest() {
        settings.setCloudSyncOn(true);
        cloud.files = {{"a.m4a", "A"}, {"b.m4a", "B"}};
        library.connection.place.kind = CloudAccount::Kind::Folder;
        library.vc.viewDidLoad();
    }
    void appear() {
        library.vc.viewWillAppear();
        settle();
    }
    void settle() { runLoop.advance(1.0); }
    void tell(std::map<std::filesystem::path, CloudFile> known) {
        library.connection.known = std::move(known);
        Q_EMIT library.connection.filesChanged();
        settle();
    }
    /// Name and contents of what is in a folder.
    static std::vector<std::string> filesIn(const std::filesystem::path& folder) {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                found.push_back(entry.path().filename().string() + ' ' + contentsOf(entry.path()));
            }
        }
        return found;
    }
    /// Section, row, name and state of every row.
    std::vector<std::string> rows() {
        std::vector<std::string> all;
        const QAbstractItemModel& model = *library.table.tableView();
        for (int row = 0; row < model.rowCount(); ++row) {
            QString text;
            for (const int role : {RecordingListModel::SectionRole, RecordingListModel::RowRole,
                                   RecordingListModel::NameTextRole, RecordingListModel::CloudStateRole}) {
                text += model.index(row, 0).data(role).toString() + QLatin1Char(' ');
            }
            const bool isHere = model.index(row, 0).data(RecordingListModel::IsHereRole).toBool();
            all.push_back((isHere ? text.trimmed() : text.trimmed() + QLatin1Char('?')).toStdString());
        }
        return all;
    }

    FakeLibrary library{*this};
    const std::filesystem::path recordings = container.documentsPath();
    const std::filesystem::path cache = recordings / "ICloud";
};

TEST_F(CloudSectionTest, TheCacheIsMadeAnewAndWhatNoRefreshMadeIsKeptAmongTheRecordings) {
    written(cache / "mine.m4a", "mine");
    written(cache / "a.m4a", "mine, too");
    written(recordings / "mine.m4a", "local");
    const std::filesystem::path record = container.cachesPath() / "cloud-cache";
    for (int times = 0; times < 2; ++times) {
        appear();
        EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A", "b.m4a B"));
        EXPECT_THAT(filesIn(recordings), UnorderedElementsAre("mine.m4a local", "mine_2.m4a mine", "a.m4a mine, too"));
        EXPECT_EQ(std::filesystem::hard_link_count(record), 1U)
            << "the record is replaced whole, never cut and rewritten";
        std::filesystem::create_hard_link(record, std::filesystem::path(record) += std::to_string(times));
    }
    EXPECT_EQ((std::pair{library.table.numberOfRowsInSection(0), library.table.numberOfRowsInSection(1)}),
              (std::pair{3, 2}));
    // A copy that somebody has changed since is the user's; what a killed refresh was writing is nobody's.
    written(cache / "b.m4a", "changed");
    written(cache / ".tavi-unfinished-0123456789abcdef", "half");
    FakeLibrary next{*this};
    next.vc.viewWillAppear();
    settle();
    EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A", "b.m4a B"));
    EXPECT_THAT(filesIn(recordings), ::testing::Contains("b.m4a changed"));
    EXPECT_EQ(filesIn(recordings).size(), 4U);

    // A pull fetches what is listed, and what no longer is goes.
    cloud.files = {{"c.m4a", "C"}, {"a.m4a", "A2"}};
    next.section.refresh();
    settle();
    EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A2", "c.m4a C"));
    EXPECT_FALSE(next.section.isRefreshing());
    EXPECT_EQ(filesIn(recordings).size(), 4U);
    // Without a list everything stays.
    cloud.hasAccount = false;
    next.vc.viewWillAppear();
    settle();
    EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A2", "c.m4a C"));
}

TEST_F(CloudSectionTest, EveryFileOfTheCloudHasARowThatSaysHowItIsAndATapAsksAgain) {
    written(recordings / "local.m4a", "L");
    appear();
    tell({{"a.m4a", {State::Sending, false, 0.42}},
          {"b.m4a", {State::There, true}},
          {"far.m4a", {State::OnlyThere}},
          {"late.m4a", {State::Arriving}}});
    EXPECT_THAT(rows(),
                UnorderedElementsAre("0 0 local.m4a", ::testing::AnyOf("1 0 a.m4a sending", "1 1 a.m4a sending"),
                                     ::testing::AnyOf("1 0 b.m4a conflict", "1 1 b.m4a conflict"), "1 2 far.m4a only?",
                                     "1 3 late.m4a arriving?"));
    EXPECT_EQ(library.table.numberOfRowsInSection(1), 2) << "those that are here";
    for (const int row : {2, 3, 4}) {
        library.vc.didSelectRowAtIndexPath(1, row);
    }
    EXPECT_THAT(library.connection.asked, ElementsAre("download far.m4a", "download late.m4a"));
    EXPECT_EQ(library.vc.selectedIndex(), -1);

    // What has come is fetched by itself.
    cloud.files["far.m4a"] = "F";
    tell({{"far.m4a", {State::There}}, {"a.m4a", {State::There}}, {"b.m4a", {State::There}}});
    EXPECT_THAT(filesIn(cache), ::testing::Contains("far.m4a F"));
    for (int times = 0; times < 2; ++times) {
        library.vc.didSelectRowAtIndexPath(1, library.table.rowOf(1, "far.m4a"));
        EXPECT_EQ((std::pair{library.vc.selectedSection(), library.vc.selectedIndex()}),
                  (std::pair{1, library.table.rowOf(1, "far.m4a")}));
        // Once for every file, the cloud says that they have changed.
        const std::vector<std::filesystem::path> names{"a.m4a", "b.m4a"};
        cloud.delegate()->iCloudFilesDidChange({}, names);
        settle();
        EXPECT_EQ(library.vc.selectedIndex(), -1);
    }

    settings.setCloudSyncOn(false);
    appear();
    EXPECT_THAT(rows(), ElementsAre("0 0 local.m4a"));
    EXPECT_EQ(cloud.delegate(), nullptr);
}

TEST_F(CloudSectionTest, WhatIsDoneInTheCloudsListIsDoneInTheCloud) {
    written(recordings / "a.m4a", "local");
    appear();
    const auto act = [this](const char* section, const char* name, auto operation) {
        library.actions.aim(QLatin1String(section), library.table.rowOf(section[0] - '0', name), {});
        operation();
        settle();
    };
    act("0", "a.m4a", [this] { library.actions.deleteAudio(); });
    EXPECT_TRUE(cloud.files.contains("a.m4a")) << "only the local file";
    act("1", "a.m4a", [this] { library.actions.deleteAudio(); });
    EXPECT_FALSE(cloud.files.contains("a.m4a"));
    EXPECT_THAT(filesIn(cache), ElementsAre("b.m4a B"));
    notices.posted.back().action();
    settle();
    EXPECT_EQ(cloud.files["a.m4a"], "A");
    act("1", "b.m4a", [this] {
        library.actions.kReNameAudio();
        presenter.alerts.back().actions[0].textHandler(QStringLiteral("talk"));
    });
    EXPECT_EQ(cloud.files["talk.m4a"], "B");
    EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A", "talk.m4a B"));
    library.actions.aim(QStringLiteral("1"), library.table.rowOf(1, "a.m4a"), {});
    cloud.files["0.m4a"] = "0";
    appear();
    EXPECT_EQ(library.actions.Buttontag(), library.table.rowOf(1, "a.m4a"));
    EXPECT_EQ(library.actions.Buttontag(), 1) << "another row of the cloud has come before it";
}

TEST_F(CloudSectionTest, WhatTheCloudRefusesToDoIsToldAndShownAsItIs) {
    const Texts texts{{{"delete_failed", QStringLiteral("%1 stays: %2")}, {"rename_failed", QStringLiteral("%1: %2")}}};
    appear();
    cloud.error = CloudError{QStringLiteral("no"), 1};
    for (const bool isDeleted : {true, false}) {
        ASSERT_GE(library.table.rowOf(1, "a.m4a"), 0);
        library.actions.aim(QStringLiteral("1"), library.table.rowOf(1, "a.m4a"), {});
        if (isDeleted) {
            library.actions.deleteAudio();
        } else {
            library.actions.kReNameAudio();
            presenter.alerts.back().actions[0].textHandler(QStringLiteral("talk"));
        }
        settle();
        EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A", "b.m4a B"));
        EXPECT_EQ(notices.posted.back().text,
                  isDeleted ? QStringLiteral("a.m4a stays: no") : QStringLiteral("a.m4a: no"));
    }
}

TEST_F(CloudSectionTest, WhatCannotBeReadHoldsUpNothingAndIsFetchedByATap) {
    cloud.files = {{"1", "?"}, {"2", "?"}, {"3", "?"}, {"4", "?"}, {"5", "5"}};
    appear();
    EXPECT_THAT(filesIn(cache), ElementsAre("5 5"));
    cloud.files["1"] = "1";
    tell({{"1", {State::There}}});
    EXPECT_THAT(filesIn(cache), ElementsAre("5 5"));
    library.section.askFor("1");
    settle();
    EXPECT_THAT(filesIn(cache), UnorderedElementsAre("1 1", "5 5"));
}

TEST_F(CloudSectionTest, AFolderThatComesBackIsFetchedWhileTheLibraryIsOpen) {
    for (const bool isPulled : {false, true}) {
        cloud.hasAccount = false;
        std::filesystem::remove_all(cache);
        tell({});
        appear();
        cloud.delegate()->iCloudAvailabilityDidChangeToState(false, {}, {});
        const int setups = cloud.setups;
        tell({});
        EXPECT_EQ(cloud.setups, setups) << "it is asked again when something is there, not for nothing";
        cloud.hasAccount = true;
        isPulled ? library.section.refresh() : tell({{"a.m4a", {State::There}}, {"b.m4a", {State::There}}});
        settle();
        EXPECT_THAT(filesIn(cache), UnorderedElementsAre("a.m4a A", "b.m4a B"));
    }
}

TEST_F(CloudSectionTest, ARefreshLooksForTheNetworkFirst) {
    library.connection.place = CloudAccount::server(QStringLiteral("https://c.example/"), {});
    appear();
    for (const bool hasNetwork : {false, true}) {
        library.reachability.flags = ReachabilityFlags{.reachable = hasNetwork};
        library.section.refresh();
        EXPECT_EQ(library.section.isRefreshing(), hasNetwork);
        EXPECT_EQ(library.connection.asked.size(), hasNetwork ? 1U : 0U);
        EXPECT_EQ(presenter.alerts.size(), 1U);
    }
    cloud.delegate()->iCloudAvailabilityDidChangeToState(false, {}, {});
    EXPECT_EQ(presenter.alerts.back().title, qtTrId("iCloud not available"));
    EXPECT_FALSE(library.section.isRefreshing());
}

}  // namespace
}  // namespace tavi::test
