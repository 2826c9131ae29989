#include "trimming/AudioTrimmerViewController.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QEvent>
#include <map>

#include "library/utility/Notifications.h"
#include "support/FakeServices.h"
#include "support/Files.h"
#include "support/Printers.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

const char* const kOutput = "Trim_2024_Mar_05_14_03_59.wav";
const char* const kBeside = "Trim_2024_Mar_05_14_03_59_2.wav";

struct AudioTrimmerTest : ::testing::Test, FakeServices {
    AudioTrimmerTest() {
        path = container.addDocument("talk.wav", "original");
        assets.files["talk.wav"] = {{60 * 44100, 44100}, 1, {}};
        assets.files["originalRecording.wav"] = {{5 * 11025, 11025}, 1, {}};
        players.seconds["talk.wav"] = 60.0;
        const auto sound = std::make_shared<FakeSound>();
        sound->planes = {std::vector<float>(10'240, 0.5F)};
        files.sounds[path] = sound;
        QObject::connect(&notifications, &NotificationCenter::posted,
                         [this](const QString& name) { dataUpdated += name == kDataUpdatedNotification ? 1 : 0; });
    }

    /// 300 points are 60 seconds.
    AudioTrimmerViewController& open(const char* name = "talk.wav") {
        AudioTrimmerViewController::presentAudioTrimmerController(
            trimmers, nullptr, "file://" + (container.documentsPath() / name).native(),
            {{QStringLiteral("duration"), QStringLiteral("an hour")}}, name,
            [this](bool success, const std::filesystem::path& result) {
                closings.push_back((success ? "1 " : "0 ") + result.filename().native());
            });
        EXPECT_EQ(trimmers.screen()->lblTotalDuration().text, QStringLiteral("an hour")) << "until it is read";
        runLoop.drain();
        trimmers.screen()->selection()->setContainerWidth(300.0);
        return *trimmers.screen();
    }
    static void drag(AudioTrimmerViewController& screen, bool isLeft, double movement) {
        screen.selection()->beginDrag(isLeft);
        screen.selection()->drag(isLeft, movement);
        screen.selection()->endDrag(isLeft);
    }
    /// Ends the export that runs, and nothing that follows from it.
    void endExport(AssetExportStatus status = AssetExportStatus::Completed, const char* contents = "first") {
        assets.sessions.back()->contents = contents;
        status == AssetExportStatus::Completed ? assets.sessions.back()->finish()
                                               : assets.sessions.back()->end(status, {QStringLiteral("no")});
        runLoop.drain();
    }
    /// What lies beside the recording, by name.
    std::map<std::string, std::string> documents() const {
        std::map<std::string, std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(container.documentsPath())) {
            result[entry.path().filename()] = contentsOf(entry.path());
        }
        EXPECT_EQ(result["talk.wav"], "original");
        result.erase("talk.wav");
        return result;
    }
    /// Records again, for as long as the scratch file will be.
    void reRecord(AudioTrimmerViewController& screen, std::int64_t seconds) {
        assets.files["originalRecording.wav"] = {{seconds * 11025, 11025}, 1, {}};
        screen.btnResetAudioTapped();
        recorders.last()->capture(100, -20.0F);
        screen.btnStopRecordingTapped();
        runLoop.drain();
    }
    bool isGone() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return trimmers.findChildren<AudioTrimmerViewController*>().isEmpty();
    }

    std::filesystem::path path;
    std::vector<std::string> closings;
    int dataUpdated = 0;
};

TEST_F(AudioTrimmerTest, ThumbsLagBehindTheirTimesAndKeepASecond) {
    TrimSelection& selection = *open().selection();
    selection.beginDrag(true);
    selection.drag(true, 50.0);
    EXPECT_EQ(selection.leftThumbX(), 50.0);
    EXPECT_EQ(selection.times().start, 0.0) << "one step behind";
    selection.drag(true, 27.5);
    EXPECT_EQ(selection.times().start, 10.0);
    selection.endDrag(true);
    EXPECT_EQ(selection.lblEndTime().text, QStringLiteral("00.00")) << "minutes are dropped";
    EXPECT_EQ(selection.spokenEnd(), QStringLiteral("01:00.00"));
    // However fast the finger is, the thumbs do not pass each other; it has to come back before the thumb moves again.
    selection.beginDrag(true);
    for (const auto& [movement, x] : {std::pair{400.0, 295.005}, {-100.0, 295.005}, {-90.0, 287.5}}) {
        selection.drag(true, movement);
        EXPECT_NEAR(selection.leftThumbX(), x, 1e-9);
    }
    selection.endDrag(true);
    selection.nudge(false, 5.0);
    EXPECT_EQ(selection.rightThumbX(), 300.0);
    selection.nudge(false, -1.0);
    selection.setContainerWidth(600.0);
    EXPECT_EQ(selection.spokenEnd(), QStringLiteral("00:59.00")) << "a new width keeps the stretch";
    // A step as a fast platform may deliver it: judged by the times before it, and beyond the other thumb. After it
    // only widening moves are applied.
    PanGesture pan;
    for (const auto& [movement, x] : {std::pair{-590.0, 0.0}, {-5.0, 0.0}, {7.0, 7.0}}) {
        pan = {PanGesture::State::Changed, movement};
        selection.handlePan(TrimThumb::Right, pan);
        EXPECT_NEAR(selection.rightThumbX(), x, 1e-5) << movement;
        EXPECT_EQ(pan.translation, movement == -5.0 ? movement : 0.0);
    }
}

TEST_F(AudioTrimmerTest, PlaysTheStretchAndShowsWhere) {
    AudioTrimmerViewController& screen = open();
    TrimPlayer& player = *screen.player();
    const auto play = [&] {
        screen.btnPlayPauseTapped();
        runLoop.drain();
        EXPECT_TRUE(player.isPlaying());
    };
    drag(screen, true, 50.0);
    drag(screen, false, -245.0);
    play();
    runLoop.advance(0.1);
    EXPECT_NEAR(player.indicatorX(), 50.5, 1e-6);
    EXPECT_FALSE(player.indicatorHidden());
    screen.btnPlayPauseTapped();
    EXPECT_TRUE(player.indicatorHidden());
    EXPECT_FALSE(players.last()->isPlaying());
    play();
    runLoop.advance(0.1);
    EXPECT_NEAR(player.indicatorX(), 50.5, 1e-6) << "from the start again";
    runLoop.advance(0.95);
    EXPECT_FALSE(player.isPlaying()) << "the end of the stretch";
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    play();
    screen.selection()->beginDrag(false);
    EXPECT_FALSE(player.isPlaying());
    screen.selection()->putThumbsAtTheEnds();
    play();
    runLoop.advance(60.1);
    EXPECT_FALSE(player.isPlaying()) << "the end of the recording";
    play();
    players.last()->fail({QStringLiteral("gone")});
    EXPECT_FALSE(player.isPlaying());
    EXPECT_EQ(notices.posted.at(0).text, QStringLiteral("gone"));
    EXPECT_EQ(notices.posted.size(), 1U);
}

TEST_F(AudioTrimmerTest, DoneExportsTwiceAndClosesEachTimeAndKeepsTheFirstCutWhereTheSecondFails) {
    assets.areExportsHeldBack = true;
    for (const auto how : {AssetExportStatus::Completed, AssetExportStatus::Failed}) {
        const bool isWhole = how == AssetExportStatus::Completed;
        runLoop.manualClock().set(QDateTime(QDate(2024, 3, 5), QTime(14, 3, 59)));
        closings.clear();
        assets.sessions.clear();
        dataUpdated = 0;
        for (const auto& [name, contents] : documents()) {
            std::filesystem::remove(container.documentsPath() / name);
        }
        // A file of another making that has the name stays, beside.
        container.addDocument(kOutput, "another's");
        AudioTrimmerViewController& screen = open();
        drag(screen, true, 50.0);
        drag(screen, false, -100.0);
        screen.btnUploadTapped();
        screen.btnUploadTapped();
        ASSERT_EQ(assets.sessions.size(), 1U) << "a second tap waits";
        const auto& first = *assets.sessions[0];
        EXPECT_EQ(first.preset, AssetExportPreset::Passthrough);
        EXPECT_EQ(first.outputFileType, AssetFileType::Wave);
        int changes = 0;
        QObject::connect(screen.exporter(), &TrimExport::changed, [&changes] { ++changes; });
        assets.sessions[0]->progress = 0.25F;
        runLoop.advance(0.5);
        EXPECT_TRUE(screen.exporter()->progress() == 0.25 && changes == 5);
        EXPECT_EQ(first.timeRange, (AssetTimeRange{{10 * 44100, 44100}, {30 * 44100, 44100}}));
        runLoop.advance(8.5);
        endExport();
        ASSERT_EQ(assets.sessions.size(), 2U);
        EXPECT_EQ(assets.sessions[1]->outputURL, first.outputURL);
        EXPECT_EQ(trimmers.screen(), nullptr);
        EXPECT_FALSE(isGone()) << "its second export runs";
        EXPECT_EQ(documents().size(), 2U) << "nothing is lost meanwhile";
        EXPECT_EQ(dataUpdated, 1);
        endExport(how, "second");
        EXPECT_EQ(closings, std::vector<std::string>(isWhole ? 3 : 1, std::string("1 ") + kOutput));
        EXPECT_EQ(dataUpdated, isWhole ? 3 : 2) << "the first cut has its name again";
        EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, isWhole ? "second" : "first"), Pair(kBeside, "another's")));
        EXPECT_TRUE(isGone());
    }
}

TEST_F(AudioTrimmerTest, TheLastExportIsWaitedForWhenTheProgramEnds) {
    assets.areExportsHeldBack = true;
    for (const bool isDone : {true, false}) {
        auto ending = std::make_unique<AudioTrimmerStage>(trimmers.services());
        AudioTrimmerViewController::pushAudioTrimmerController(*ending, path, {});
        runLoop.drain();
        isDone ? ending->screen()->btnUploadTapped() : ending->screen()->btnTrimFinalAudio();
        endExport();
        EXPECT_EQ(dataUpdated, 0) << "a pushed screen is popped";
        EXPECT_EQ(documents().count(kOutput), 0U);
        ending.reset();
        // A caller that has been told waits for its file; anyone else has the first one back.
        runLoop.drain();
        EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, isDone ? "sound" : "first")));
        std::filesystem::remove(container.documentsPath() / kOutput);
    }
}

TEST_F(AudioTrimmerTest, FailedAndCancelledExportsLeaveTheScreenAsItWasAndAnotherStretchReplacesTheFirst) {
    assets.areExportsHeldBack = true;
    AudioTrimmerViewController& screen = open();
    screen.btnEditTrimmedVideoTapped();
    endExport(AssetExportStatus::Failed);
    screen.btnTrimFinalAudio();
    screen.cancelExport();
    runLoop.drain();
    EXPECT_FALSE(screen.isAudioTrimmed() || screen.areEditingControlsHidden() || screen.exporter()->isRunning());
    // Given up after the first export, whose file is back at once.
    screen.btnTrimFinalAudio();
    endExport();
    EXPECT_TRUE(screen.isAudioTrimmed() && screen.btnEditTrimmedVideo().selected);
    screen.cancelExport();
    runLoop.drain();
    EXPECT_TRUE(screen.isAudioTrimmed());
    screen.btnResetTapped();
    EXPECT_FALSE(screen.isAudioTrimmed());
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "first")));
    // Another stretch takes its place, and a third one is cancelled with the screen, but over before it could be.
    runLoop.manualClock().advance(9.0);
    for (const double start : {10.0, 20.0}) {
        screen.btnEditTrimmedVideoTapped();
        EXPECT_FALSE(screen.isAudioTrimmed() || screen.areEditingControlsHidden());
        drag(screen, true, 5.0 * start);
        start < 20.0 ? screen.btnTrimFinalAudio() : screen.btnUploadTapped();
        EXPECT_EQ(assets.sessions.back()->timeRange->start.seconds(), start);
        screen.btnPlayPauseTapped();
        runLoop.drain();
        if (start < 20.0) {
            endExport(AssetExportStatus::Completed, "another");
            EXPECT_FALSE(screen.player()->isPlaying()) << "nothing plays on";
            screen.cancelExport();
            runLoop.drain();
        }
    }
    EXPECT_TRUE(closings.empty());
    screen.btnCancelTapped();
    endExport();
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "another")));
    EXPECT_THAT(closings, ElementsAre("0 "));
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    EXPECT_TRUE(isGone());
}

TEST_F(AudioTrimmerTest, WhatCannotBeReadIsNotTrimmed) {
    container.addDocument("text.txt", "text");
    AudioTrimmerViewController& screen = open("text.txt");
    EXPECT_FALSE(screen.source()->problem().isEmpty());
    screen.btnPlayPauseTapped();
    screen.selection()->nudge(true, 1.0);
    screen.btnUploadTapped();
    screen.btnTrimFinalAudio();
    drag(screen, true, 9.0);
    EXPECT_EQ(screen.selection()->leftThumbX(), 0.0);
    EXPECT_TRUE(assets.sessions.empty() && closings.empty());
}

TEST_F(AudioTrimmerTest, RecordsIntoItsScratchFilesAndLeavesTheUsersOwn) {
    container.addDocument("recording.wav", "mine");
    AudioTrimmerViewController& screen = open();
    drag(screen, true, 30.0);
    screen.btnResetTapped();
    runLoop.drain();
    EXPECT_THAT(documents(), ElementsAre(Pair("recording.wav", "mine"))) << "there is nothing to copy";
    EXPECT_EQ(screen.selection()->leftThumbX(), 0.0);
    container.addDocument("originalRecording.wav", "mine, too");

    reRecord(screen, 5);
    EXPECT_EQ(
        recorders.lastSettings,
        (AudioRecordSettings{
            .formatID = kAudioFormatLinearPCM, .sampleRate = 11025.0, .numberOfChannels = 1, .linearPCMBitDepth = 16}));
    EXPECT_EQ(session.lastCategory, AudioSession::Category::Playback);
    EXPECT_EQ(screen.selection()->times(), (TrimTimes{0.0, 5.0}));
    EXPECT_FALSE(screen.isDoneHidden() || screen.isEditingViewHidden());
    const std::map<std::string, std::string> whileOpen = {{"originalRecording.wav", "sound"},
                                                          {"originalRecording_2.wav", "mine, too"},
                                                          {"recording.wav", "sound"},
                                                          {"recording_2.wav", "mine"}};
    EXPECT_EQ(documents(), whileOpen);
    std::filesystem::remove(container.documentsPath() / "recording.wav");
    screen.btnResetTapped();
    runLoop.drain();
    reRecord(screen, 6);
    EXPECT_EQ(screen.selection()->endTime(), 6.0);
    EXPECT_EQ(documents(), whileOpen) << "a second time";
    screen.btnCancelTapped();
    EXPECT_THAT(documents(), ElementsAre(Pair("originalRecording_2.wav", "mine, too"),
                                         Pair("originalRecording_3.wav", "sound"), Pair("recording_2.wav", "mine")))
        << "the copy goes, the recording stays";
}

TEST_F(AudioTrimmerTest, ARecordingOfNothingLeavesAllAsItWas) {
    AudioTrimmerViewController& screen = open();
    reRecord(screen, 5);
    drag(screen, true, 60.0);
    assets.files["originalRecording.wav"] = {};
    const auto before = documents();
    for (const std::string_view what : {"no sound system", "no recorder", "nothing is heard", "it breaks down"}) {
        SCOPED_TRACE(what);
        if (what == "no sound system") {
            session.categoryResult = failure(QStringLiteral("no server"));
        } else if (what == "no recorder") {
            recorders.creation = failure(QStringLiteral("no microphone"));
        }
        screen.btnStartRecordingTapped();
        session.categoryResult = recorders.creation = {};
        if (what == "nothing is heard") {
            screen.btnStopRecordingTapped();
        } else if (what == "it breaks down") {
            recorders.last()->fail({QStringLiteral("gone")});
        }
        runLoop.drain();
        EXPECT_EQ(screen.selection()->times(), (TrimTimes{1.0, 5.0}));
        EXPECT_FALSE(screen.isDoneHidden() || screen.isEditingViewHidden());
        EXPECT_EQ(documents(), before);
    }
    // Sound that was captured, but cannot be read, is kept.
    screen.btnStartRecordingTapped();
    recorders.last()->capture(100, -20.0F);
    recorders.last()->fail({QStringLiteral("gone")});
    runLoop.drain();
    EXPECT_EQ(documents().size(), before.size() + 1);
    EXPECT_EQ(documents().count("originalRecording_3.wav"), 1U);
}

TEST_F(AudioTrimmerTest, CancelledWhileItRecordsItWaitsForTheWholeFile) {
    AudioTrimmerViewController& screen = open();
    screen.btnStartRecordingTapped();
    recorders.last()->capture(100, -20.0F);
    EXPECT_TRUE(screen.isDoneHidden() && screen.isEditingViewHidden());
    screen.btnCancelTapped();
    EXPECT_EQ(trimmers.screen(), nullptr);
    EXPECT_FALSE(isGone());
    runLoop.drain();
    EXPECT_THAT(documents(), ElementsAre(Pair("originalRecording_2.wav", "sound")));
    EXPECT_EQ(dataUpdated, 2) << "its name is another";
    EXPECT_TRUE(isGone());
}

}  // namespace
}  // namespace tavi::test
