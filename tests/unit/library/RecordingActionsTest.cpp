#include "library/RecordingActions.h"

#include <gmock/gmock.h>

#include <fstream>
#include <functional>

#include "support/FakeLibrary.h"
#include "support/Texts.h"

namespace tavi::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

/// A library of a.m4a, b.wav and c.aac in this order, of which nothing is selected.
struct RecordingActionsTest : ::testing::Test, FakeServices {
    RecordingActionsTest() {
        for (const char* name : {"a.m4a", "b.wav", "c.aac", "d.MP3"}) {
            container.addDocument(name, name);
            players.seconds[name] = 60.0;
        }
        defaults.setObject(2, settingskey::kSort);
        settings.setCloudSyncOn(true);
        library.vc.viewDidLoad();
        QObject::connect(&library.vc, &VoiceMemoVC::rowRevealed, [this](int row) { revealed = row; });
    }

    void aim(const char* name) {
        actions.aim(QStringLiteral("0"), library.table.rowOf(0, name), QRectF(0.0, 64.0, 390.0, 64.0));
    }
    /// Chooses in the alert or sheet that stands, which goes.
    void choose(std::vector<Alert>& standing, const char* title, const QString& typed = {}) {
        ASSERT_EQ(standing.size(), 1U);
        const Alert alert = standing.front();
        standing.clear();
        for (const AlertAction& action : alert.actions) {
            if (action.title == QLatin1String(title) && (action.handler || action.textHandler)) {
                action.textHandler ? action.textHandler(typed) : action.handler();
            }
        }
    }
    void confirm(const char* title, const QString& typed = {}) { choose(presenter.alerts, title, typed); }
    /// What is said since it was last asked, alerts before notices.
    std::string said() { return presenter.said() + notices.said(); }
    std::vector<std::string> listed() {
        std::vector<std::string> names;
        for (const RecordingEntry& entry : library.table.arrRecordings()) {
            names.push_back(entry.nativeName());
        }
        return names;
    }
    bool isThere(const fs::path& name) { return fs::exists(container.documentsPath() / name); }

    FakeLibrary library{*this};
    RecordingActions& actions = library.actions;
    int revealed = -1;
};

TEST_F(RecordingActionsTest, MenuAndSheetOfferTheSameAndTheMenuMore) {
    const std::vector<std::string> items{"Rename", "Delete", "open_in", "mail", "Trimming", "upload_drive"};
    for (const bool isMenu : {false, true}) {
        for (const std::string& item : items) {
            SCOPED_TRACE(item);
            library.vc.didSelectRowAtIndexPath(0, 2);
            aim("b.wav");
            isMenu ? actions.btnAccessoryViewClick({380.0, 90.0}) : actions.accessoryButtonTapped({380.0, 90.0});
            EXPECT_EQ(library.vc.isPlaying(), !isMenu) << "the menu stops what plays";
            std::vector<std::string> titles = items;
            const std::vector<std::string> own{"share_show", "trim_m4a", "menu_close"};
            titles.insert(titles.end(), own.begin(), isMenu ? own.end() : own.begin());
            titles.resize(isMenu ? 9 : 7, "alert_dismiss");
            ASSERT_EQ(presenter.sheets.size(), 1U);
            std::vector<std::string> offered;
            for (const AlertAction& action : presenter.sheets[0].actions) {
                offered.push_back(action.title.toStdString());
            }
            EXPECT_EQ(offered, titles);
            EXPECT_EQ(presenter.sheets[0].title, QStringLiteral("b.wav"));
            choose(presenter.sheets, item.c_str());
            EXPECT_EQ(trimmers.screen(), nullptr) << "not before the menu has gone";
            runLoop.advance(0.2);
            const std::string shown = item == "Rename"     ? "rename_audio|filename_msg"
                                      : item == "Delete"   ? "delete_audio|delete_msg"
                                      : item == "Trimming" ? "trimmer"
                                                           : "";
            const std::string alerts = said();
            EXPECT_EQ(trimmers.screen() != nullptr ? "trimmer" : alerts, shown);
            if (trimmers.screen() != nullptr) {
                trimmers.screen()->btnCancelTapped();
                runLoop.drain();
            }
            library.vc.stopAudio();
        }
    }
    const fs::path file = container.documentsPath() / "b.wav";
    EXPECT_THAT(library.documents.opened, ElementsAre(file, file));
    EXPECT_THAT(library.picker.asked, ElementsAre(file, file));
    EXPECT_EQ(library.mail.messages.size(), 2U);
    aim("b.wav");
    actions.btnAccessoryViewClick({});
    choose(presenter.sheets, "share_show");
    EXPECT_THAT(library.documents.shown, ElementsAre(file));
    actions.copyToClipboard();
    ASSERT_NE(library.pasteboard.data, nullptr);
    const QString list = QStringLiteral("text/uri-list");
    EXPECT_EQ(actions.dragged().value(list).toByteArray(), library.pasteboard.data->data(list));
    said();
    actions.btnAccessoryViewClick({});
    choose(presenter.sheets, "trim_m4a");
    ASSERT_NE(library.audioTrims.screen(), nullptr);
    EXPECT_EQ(library.audioTrims.screen()->lblFileName(), QStringLiteral("b"));
    library.audioTrims.screen()->closeButtonpressed();
    EXPECT_EQ(library.audioTrims.screen(), nullptr);
}

TEST_F(RecordingActionsTest, TheTargetIsTheFileWhateverComesToItsPlace) {
    aim("b.wav");
    container.addDocument("a0.m4a", "new");
    library.vc.reloadData();
    EXPECT_EQ(actions.Buttontag(), 2);
    actions.kReNameAudio();
    EXPECT_EQ(presenter.alerts.at(0).text, QStringLiteral("b"));
    // Between question and answer another file takes the name, or the file goes.
    const fs::path file = container.documentsPath() / "b.wav";
    fs::rename(container.addDocument("other", "other"), file);
    confirm("OK", QStringLiteral("x"));
    EXPECT_EQ(said(), "action_gone");
    EXPECT_TRUE(isThere("b.wav"));
    fs::remove(file);
    library.vc.reloadData();
    EXPECT_EQ(actions.Buttontag(), -1);
    const std::function<void(RecordingActions&)> acts[] = {
        &RecordingActions::kReNameAudio,   &RecordingActions::showDeletealert,
        &RecordingActions::deleteAudio,    &RecordingActions::trimAudio,
        &RecordingActions::trimToM4a,      &RecordingActions::openInButtonClicked,
        &RecordingActions::emailAudioFile, &RecordingActions::uploadToIcloudDocuments,
        &RecordingActions::showInFolder,   &RecordingActions::copyToClipboard};
    for (const auto& act : acts) {
        act(actions);
        EXPECT_EQ(said(), "action_gone");
    }
    actions.btnAccessoryViewClick({});
    actions.accessoryButtonTapped({});
    EXPECT_TRUE(presenter.sheets.empty());
    EXPECT_THAT(listed(), ElementsAre("a.m4a", "a0.m4a", "c.aac", "d.MP3"));
}

TEST_F(RecordingActionsTest, ANameIsCheckedAndTheRowStaysInSight) {
    const std::string longest(252, 'x');
    cloud.files["b.wav"] = "cloud";
    for (const auto& [typed, answer] :
         {std::pair<std::string, std::string>{"x/y", "error_rename|file_notContain \"/\"."},
          {"", "rename|audio_file_name"},
          {"b", "file_exist|audio_file_exist"},
          {"b.wav", ""},
          {longest, "rename_failed"}}) {
        aim("b.wav");
        actions.kReNameAudio();
        confirm("OK", QString::fromStdString(typed));
        EXPECT_EQ(said(), answer);
    }
    for (const bool isDeleted : {false, true}) {
        aim("b.wav");
        isDeleted ? actions.showDeletealert() : actions.kReNameAudio();
        aim("c.aac");
        confirm(isDeleted ? "Delete" : "OK", QStringLiteral("y"));
        runLoop.advance(0.2);
        EXPECT_EQ(listed().size(), 4U);
        EXPECT_TRUE(isThere("b.wav") && isThere("c.aac")) << "it was asked about one, and another is meant now";
    }
    aim("b.wav");
    library.vc.didSelectRowAtIndexPath(0, 1);
    settings.setCloudPending(container.documentsPath() / "b.wav", true);
    actions.kReNameAudio();
    confirm("OK", QStringLiteral("z"));
    EXPECT_FALSE(library.vc.isPlaying()) << "nothing plays on under a name that is no more";
    runLoop.drain();
    EXPECT_TRUE(cloud.files.contains("z.wav"));
    EXPECT_THAT(settings.cloudPending(), ElementsAre(container.documentsPath() / "z.wav"));
    EXPECT_THAT(listed(), ElementsAre("a.m4a", "b.wav", "c.aac", "d.MP3"));
    runLoop.advance(0.2);
    EXPECT_THAT(listed(), ElementsAre("a.m4a", "c.aac", "d.MP3", "z.wav"));
    EXPECT_EQ(revealed, 3);
    EXPECT_EQ(actions.Buttontag(), 3) << "the next action is about the same file";
    EXPECT_EQ(said(), "");
}

TEST_F(RecordingActionsTest, DeletesIntoTheTrashAndBringsBackUnderAFreeName) {
    cloud.files["b.wav"] = "cloud";
    const Texts texts{{{"delete_undone_beside", QStringLiteral("%1 is %2")}}};
    for (const bool isTaken : {false, true}) {
        library.vc.didSelectRowAtIndexPath(0, 1);
        aim("b.wav");
        actions.showDeletealert();
        confirm("Delete");
        EXPECT_FALSE(library.vc.isPlaying());
        runLoop.advance(0.2);
        EXPECT_THAT(listed(), ElementsAre("a.m4a", "c.aac", "d.MP3"));
        ASSERT_EQ(notices.posted.size(), 1U);
        EXPECT_EQ(notices.posted[0].actionTitle, QStringLiteral("delete_undo"));
        const auto undo = std::exchange(notices.posted, {})[0].action;
        if (isTaken) {
            container.addDocument("b.wav", "new");
        }
        undo();
        runLoop.drain();
        EXPECT_TRUE(isThere(isTaken ? "b_2.wav" : "b.wav"));
        EXPECT_EQ(revealed, isTaken ? 2 : 1);
        EXPECT_EQ(said(), isTaken ? "b.wav is b_2.wav" : "");
        undo();
        runLoop.drain();
        EXPECT_EQ(said(), "delete_undo_failed") << "it is no longer in the trash";
    }
    EXPECT_TRUE(cloud.files.contains("b.wav")) << "a local recording is no document of the cloud";
}

TEST_F(RecordingActionsTest, WhereThereIsNoTrashItAsksOnceMore) {
    library.trash.isThere = false;
    fs::create_directories(container.documentsPath() / "stray/deep");
    library.vc.reloadData();
    const auto ask = [this](const char* name) {
        aim(name);
        actions.deleteAudio();
        runLoop.drain();
        ASSERT_EQ(presenter.alerts.size(), 1U);
        EXPECT_EQ(presenter.alerts[0].message, QStringLiteral("delete_forever_msg"));
    };
    ask("a.m4a");
    confirm("No");
    EXPECT_TRUE(isThere("a.m4a"));
    ask("a.m4a");
    confirm("delete_forever");
    EXPECT_FALSE(isThere("a.m4a"));
    runLoop.advance(0.2);
    EXPECT_THAT(listed(), ElementsAre("b.wav", "c.aac", "d.MP3", "stray"));
    ask("stray");
    confirm("delete_forever");
    EXPECT_EQ(said(), "delete_failed");
    EXPECT_TRUE(isThere("stray/deep")) << "what a folder holds is never lost for good";
    ask("b.wav");
    fs::rename(container.addDocument("other", "other"), container.documentsPath() / "b.wav");
    confirm("delete_forever");
    EXPECT_EQ(said(), "action_gone");
    EXPECT_TRUE(isThere("b.wav")) << "another file by now";
}

TEST_F(RecordingActionsTest, SomeKindsAreNotTrimmed) {
    for (const auto& [name, alert, isShown] :
         {std::tuple{"a.m4a", "", true}, {"c.aac", "trim_no_aac|", true}, {"d.MP3", "trim_no_mp3|", false}}) {
        SCOPED_TRACE(name);
        aim(name);
        actions.trimAudio();
        EXPECT_EQ(said(), alert);
        ASSERT_EQ(trimmers.screen() != nullptr, isShown);
        if (isShown) {
            trimmers.screen()->btnCancelTapped();
            runLoop.drain();
        }
    }
}

}  // namespace
}  // namespace tavi::test
