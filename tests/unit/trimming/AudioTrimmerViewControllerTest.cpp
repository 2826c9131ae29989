#include "trimming/AudioTrimmerViewController.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QEvent>
#include <fstream>
#include <map>

#include "library/utility/Notifications.h"
#include "support/FakeServices.h"
#include "support/Printers.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

const char* const kOutput = "Trim_2024_Mar_05_14_03_59.wav";
const char* const kBeside = "Trim_2024_Mar_05_14_03_59_2.wav";

class AudioTrimmerTest : public ::testing::Test, protected FakeServices {
protected:
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
    void endExport(AssetExportStatus status = AssetExportStatus::Completed) {
        status == AssetExportStatus::Completed ? assets.sessions.back()->finish()
                                               : assets.sessions.back()->end(status, {QStringLiteral("no")});
        runLoop.drain();
    }
    bool exists(const char* name) const { return documents().contains(name); }
    /// What lies beside the recording, by name.
    std::map<std::string, std::string> documents() const {
        std::map<std::string, std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(container.documentsPath())) {
            std::ifstream file(entry.path());
            result[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
        }
        EXPECT_EQ(result["talk.wav"], "original");
        result.erase("talk.wav");
        return result;
    }
    /// Records again, for as long as the scratch file will be.
    void reRecord(AudioTrimmerViewController& screen, std::int64_t seconds) {
        assets.files["originalRecording.wav"] = {{seconds * 11025, 11025}, 1, {}};
        screen.btnResetAudioTapped();
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

    // A step as a fast platform may deliver it: judged by the times before it, and beyond the other thumb.
    PanGesture pan{PanGesture::State::Changed, -590.0};
    selection.handlePan(TrimThumb::Right, pan);
    EXPECT_NEAR(selection.rightThumbX(), 0.0, 1e-5);
    pan.translation = -5.0;
    selection.handlePan(TrimThumb::Right, pan);
    EXPECT_EQ(pan.translation, -5.0) << "only widening moves are applied";
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

TEST_F(AudioTrimmerTest, DoneExportsTwiceAndClosesEachTime) {
    assets.areExportsHeldBack = true;
    AudioTrimmerViewController& screen = open();
    drag(screen, true, 50.0);
    drag(screen, false, -100.0);
    screen.btnUploadTapped();
    screen.btnUploadTapped();
    ASSERT_EQ(assets.sessions.size(), 1U) << "a second tap waits";
    EXPECT_TRUE(screen.exporter()->isRunning());
    const auto& first = *assets.sessions[0];
    EXPECT_EQ(first.preset, AssetExportPreset::Passthrough);
    EXPECT_EQ(first.timeRange, (AssetTimeRange{{10 * 44100, 44100}, {30 * 44100, 44100}}));
    runLoop.manualClock().advance(9.0);

    endExport();
    ASSERT_EQ(assets.sessions.size(), 2U);
    EXPECT_EQ(assets.sessions[1]->outputURL, first.outputURL);
    EXPECT_THAT(closings, ElementsAre(std::string("1 ") + kOutput));
    EXPECT_EQ(trimmers.screen(), nullptr);
    EXPECT_FALSE(isGone()) << "its second export runs";

    endExport();
    EXPECT_EQ(assets.sessions.size(), 2U);
    EXPECT_EQ(closings, std::vector<std::string>(3, std::string("1 ") + kOutput));
    EXPECT_EQ(dataUpdated, 3);
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "sound")));
    EXPECT_TRUE(isGone());
}

TEST_F(AudioTrimmerTest, ASecondExportThatFailsLeavesTheFirstCut) {
    assets.areExportsHeldBack = true;
    // A file of another making that has the name stays, beside.
    container.addDocument(kOutput, "another's");
    open().btnUploadTapped();
    assets.sessions[0]->contents = "first";
    endExport();
    EXPECT_EQ(documents().size(), 2U) << "nothing is lost while the second one runs";
    EXPECT_EQ(dataUpdated, 1);
    endExport(AssetExportStatus::Failed);
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "first"), Pair(kBeside, "another's")));
    EXPECT_EQ(dataUpdated, 2) << "the first one has its name again";
    EXPECT_TRUE(isGone());
}

TEST_F(AudioTrimmerTest, TheLastExportIsWaitedForWhenTheProgramEnds) {
    assets.areExportsHeldBack = true;
    for (const bool isDone : {true, false}) {
        auto ending = std::make_unique<AudioTrimmerStage>(trimmers.services());
        AudioTrimmerViewController::pushAudioTrimmerController(*ending, path, {});
        runLoop.drain();
        AudioTrimmerViewController& screen = *ending->screen();
        isDone ? screen.btnUploadTapped() : screen.btnTrimFinalAudio();
        assets.sessions.back()->contents = "first";
        endExport();
        EXPECT_EQ(dataUpdated, 0) << "a pushed screen is popped";
        EXPECT_FALSE(exists(kOutput));
        ending.reset();
        // A caller that has been told waits for its file; anyone else has the first one back.
        EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, isDone ? "sound" : "first")));
        runLoop.drain();
        EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, isDone ? "sound" : "first")));
        std::filesystem::remove(container.documentsPath() / kOutput);
    }
}

TEST_F(AudioTrimmerTest, FailedAndCancelledExportsLeaveTheScreenAsItWas) {
    assets.areExportsHeldBack = true;
    AudioTrimmerViewController& screen = open();
    screen.btnEditTrimmedVideoTapped();
    endExport(AssetExportStatus::Failed);
    screen.btnTrimFinalAudio();
    screen.cancelExport();
    runLoop.drain();
    EXPECT_FALSE(screen.isAudioTrimmed() || screen.areEditingControlsHidden() || screen.exporter()->isRunning());
    EXPECT_TRUE(closings.empty());

    // Given up after the first export, whose file is back at once.
    screen.btnTrimFinalAudio();
    assets.sessions.back()->contents = "first";
    endExport();
    EXPECT_TRUE(screen.isAudioTrimmed() && screen.btnEditTrimmedVideo().selected);
    screen.cancelExport();
    runLoop.drain();
    EXPECT_TRUE(screen.isAudioTrimmed());
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "first")));

    // Another stretch, cancelled with the screen, but over before it could be.
    screen.btnEditTrimmedVideoTapped();
    EXPECT_FALSE(screen.isAudioTrimmed() || screen.areEditingControlsHidden());
    screen.btnUploadTapped();
    screen.btnPlayPauseTapped();
    runLoop.drain();
    screen.btnCancelTapped();
    endExport();
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "first")));
    EXPECT_THAT(closings, ElementsAre("0 "));
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    EXPECT_TRUE(isGone());
}

TEST_F(AudioTrimmerTest, AnotherStretchReplacesTheFirst) {
    AudioTrimmerViewController& screen = open();
    screen.btnTrimFinalAudio();
    runLoop.drain();
    runLoop.manualClock().advance(9.0);
    screen.btnEditTrimmedVideoTapped();
    drag(screen, true, 50.0);
    screen.btnPlayPauseTapped();
    screen.btnUploadTapped();
    runLoop.drain();
    ASSERT_EQ(assets.sessions.size(), 4U);
    EXPECT_EQ(assets.sessions[3]->timeRange->start.seconds(), 10.0);
    EXPECT_THAT(documents(), ElementsAre(Pair(kOutput, "sound")));
    EXPECT_EQ(runLoop.activeTimers(), 0U) << "nothing plays on";
}

TEST_F(AudioTrimmerTest, WhatCannotBeReadIsNotTrimmed) {
    container.addDocument("text.txt", "text");
    AudioTrimmerViewController& screen = open("text.txt");
    EXPECT_FALSE(screen.problem().isEmpty());
    screen.btnPlayPauseTapped();
    screen.selection()->nudge(true, 1.0);
    screen.btnUploadTapped();
    screen.btnTrimFinalAudio();
    EXPECT_TRUE(assets.sessions.empty());
    EXPECT_TRUE(closings.empty());
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
    const auto nothing = [] {};
    const struct {
        const char* what;
        std::function<void()> prepare, record;
    } cases[] = {
        {"no sound system", [this] { session.categoryResult = failure(QStringLiteral("no server")); }, nothing},
        {"no recorder", [this] { recorders.creation = failure(QStringLiteral("no microphone")); }, nothing},
        {"nothing is heard", nothing, [&screen] { screen.btnStopRecordingTapped(); }},
        {"it breaks down", nothing, [this] { recorders.last()->fail({QStringLiteral("gone")}); }},
    };
    for (const auto& [what, prepare, record] : cases) {
        SCOPED_TRACE(what);
        session.categoryResult = recorders.creation = {};
        prepare();
        screen.btnStartRecordingTapped();
        record();
        runLoop.drain();
        EXPECT_EQ(screen.selection()->times(), (TrimTimes{1.0, 5.0}));
        EXPECT_FALSE(screen.isDoneHidden() || screen.isEditingViewHidden());
        EXPECT_EQ(documents(), before);
    }
    // Sound that was captured, but cannot be read, is kept.
    session.categoryResult = recorders.creation = {};
    screen.btnStartRecordingTapped();
    recorders.last()->capture(100, -20.0F);
    recorders.last()->fail({QStringLiteral("gone")});
    runLoop.drain();
    EXPECT_EQ(documents().size(), before.size() + 1);
    EXPECT_TRUE(exists("originalRecording_3.wav"));
}

TEST_F(AudioTrimmerTest, CancelledWhileItRecordsItWaitsForTheWholeFile) {
    AudioTrimmerViewController& screen = open();
    screen.btnStartRecordingTapped();
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
