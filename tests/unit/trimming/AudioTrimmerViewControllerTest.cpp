#include "trimming/AudioTrimmerViewController.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QEvent>

#include "support/FakeServices.h"
#include "support/Printers.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;

const char* const kOutput = "Trim_2024_Mar_05_14_03_59.wav";

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
        QObject::connect(&notifications, &NotificationCenter::posted, [this] { ++dataUpdated; });
    }

    /// 300 points are 60 seconds.
    AudioTrimmerViewController& open(const char* name = "talk.wav") {
        AudioTrimmerViewController::presentAudioTrimmerController(
            trimmers, nullptr, "file://" + (container.documentsPath() / name).native(), {}, name,
            [this](bool success, const std::filesystem::path& result) {
                closings.push_back((success ? "1 " : "0 ") + result.filename().native());
            });
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
    bool exists(const char* name) const { return std::filesystem::exists(container.documentsPath() / name); }
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
    EXPECT_TRUE(exists(kOutput));
    QFile original(path);
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    EXPECT_EQ(original.readAll(), "original");
    EXPECT_TRUE(isGone());
}

TEST_F(AudioTrimmerTest, TheLastExportIsWaitedForWhenTheProgramEnds) {
    assets.areExportsHeldBack = true;
    auto ending = std::make_unique<AudioTrimmerStage>(trimmers.services());
    AudioTrimmerViewController::pushAudioTrimmerController(*ending, path, {});
    runLoop.drain();
    ending->screen()->btnUploadTapped();
    endExport();
    EXPECT_EQ(dataUpdated, 0) << "a pushed screen is popped";
    EXPECT_FALSE(exists(kOutput));
    ending.reset();
    EXPECT_TRUE(exists(kOutput));
    runLoop.drain();
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

    // Given up after the first export, whose file the second one has taken away.
    screen.btnTrimFinalAudio();
    endExport();
    EXPECT_TRUE(screen.isAudioTrimmed() && screen.btnEditTrimmedVideo().selected);
    screen.cancelExport();
    runLoop.drain();
    EXPECT_FALSE(screen.isAudioTrimmed());

    // Cancelled with the screen, but over before it could be.
    screen.btnUploadTapped();
    screen.btnCancelTapped();
    endExport();
    EXPECT_FALSE(exists(kOutput));
    EXPECT_THAT(closings, ElementsAre("0 "));
    EXPECT_EQ(runLoop.activeTimers(), 0U);
    EXPECT_TRUE(isGone());
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

TEST_F(AudioTrimmerTest, RecordsIntoItsScratchFiles) {
    container.addDocument("originalRecording.wav", "old");
    AudioTrimmerViewController& screen = open();
    session.categoryResult = failure(QStringLiteral("no server"));
    screen.btnStartRecordingTapped();
    EXPECT_TRUE(screen.isRecordingViewHidden());
    session.categoryResult = {};
    screen.btnResetAudioTapped();
    EXPECT_TRUE(recorders.last()->isRecording());
    EXPECT_EQ(recorders.lastSettings.sampleRate, 11025.0);
    screen.btnStopRecordingTapped();
    runLoop.drain();
    EXPECT_EQ(screen.selection()->times(), (TrimTimes{0.0, 5.0}));

    ASSERT_TRUE(std::filesystem::remove(container.documentsPath() / "recording.wav"));
    drag(screen, true, 30.0);
    screen.btnResetTapped();
    runLoop.drain();
    EXPECT_TRUE(exists("recording.wav")) << "made anew from the original";
    EXPECT_EQ(screen.selection()->leftThumbX(), 0.0);
}

}  // namespace
}  // namespace tavi::test
