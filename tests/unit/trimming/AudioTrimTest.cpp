#include "trimming/AudioTrim.h"

#include <gmock/gmock.h>

#include "support/FakeServices.h"
#include "support/Printers.h"

namespace tavi::test {
namespace {

using Names = std::vector<std::filesystem::path>;
const Names kOutput{"Trim_2024_Mar_05_14_03_59.wav"};

struct AudioTrimTest : ::testing::Test, FakeServices {
    AudioTrimTest() {
        assets.files["talk.wav"] = {{20 * 44100, 44100}, 1, {}};
        players.seconds["talk.wav"] = 20.0;
        settings.setCloudSyncOn(true);
    }

    std::unique_ptr<AudioTrim> open(const char* section, const char* name = "talk.wav") {
        const AudioTrim::Services services{assets,    assets,  players, settings, container,
                                           presenter, notices, runLoop, cloud};
        auto screen = std::make_unique<AudioTrim>(services, container.documentsPath() / name, QLatin1String(section));
        screen->setTrimDelegate([this] { ++reloads; });
        QObject::connect(screen.get(), &AudioTrim::closed, screen.get(), [this] { ++closings; });
        screen->viewDidLoad();
        // 10 points a second.
        screen->rangeSlider()->setFrame({0.0, 0.0, 240.0, 120.0});
        for (const auto& [from, to] : {std::pair{40.0, 47.0}, {200.0, 119.0}}) {
            screen->rangeSlider()->press(from, 60.0);
            screen->rangeSlider()->drag(to, 60.0);
            screen->rangeSlider()->release();
        }
        return screen;
    }

    int reloads = 0;
    int closings = 0;
};

TEST_F(AudioTrimTest, ExportsWholeSecondsAsM4aAndClosesOrSavesToTheCloud) {
    // The setting is on where nothing goes to the cloud; only a recording of the cloud's is saved there.
    for (const auto& [isCloudOn, section, saves] :
         {std::tuple{true, "1", true}, {true, "0", false}, {false, "1", false}}) {
        SCOPED_TRACE(::testing::Message() << isCloudOn << section);
        settings.setCloudSyncOn(isCloudOn);
        closings = reloads = 0;
        cloud.saves.clear();
        const auto screen = open(section);
        EXPECT_NEAR(screen->leftValue(), 2.7, 1e-5);
        EXPECT_NEAR(screen->rightValue(), 9.9, 1e-5);
        screen->trimAudio();
        EXPECT_EQ(closings, saves ? 0 : 1);
        EXPECT_EQ(assets.sessions.back()->preset, AssetExportPreset::AppleM4A);
        EXPECT_EQ(assets.sessions.back()->outputFileType, AssetFileType::AppleM4A) << "whatever the name";
        EXPECT_EQ(assets.sessions.back()->timeRange, (AssetTimeRange{{2, 1}, {7, 1}}));
        runLoop.advance(0.6);
        EXPECT_EQ(reloads, 2) << "when it is exported, and half a second after the start";
        EXPECT_TRUE(cloud.saves.empty());
        runLoop.advance(1.5);
        EXPECT_EQ(cloud.saves, saves ? kOutput : Names());
    }
}

TEST_F(AudioTrimTest, OneTrimAtATimeAndEachGoesToTheCloud) {
    assets.areExportsHeldBack = true;
    auto screen = open("1");
    EXPECT_TRUE(screen->btnTrim().enabled);
    screen->trimAudio();
    EXPECT_FALSE(screen->btnTrim().enabled);
    screen->trimAudio();
    ASSERT_EQ(assets.sessions.size(), 1U);
    assets.sessions[0]->end(AssetExportStatus::Failed, {});
    runLoop.drain();
    EXPECT_TRUE(screen->indicatorText().isEmpty() && screen->btnTrim().enabled);
    screen->backButtonpressed();
    EXPECT_EQ(closings, 1) << "nothing to be asked about";

    runLoop.manualClock().advance(1.0);
    screen->trimAudio();
    ASSERT_EQ(assets.sessions.size(), 2U);
    screen.reset();
    runLoop.advance(2.5);
    EXPECT_TRUE(cloud.saves.empty()) << "not before it is complete";
    assets.sessions[1]->finish();
    runLoop.drain();
    EXPECT_EQ(cloud.saves, Names{"Trim_2024_Mar_05_14_04_00.wav"}) << "what failed has no file";
}

TEST_F(AudioTrimTest, PlaysTheRecordingAndWhatWasCutFromIt) {
    const auto screen = open("1");
    const auto shows = [&](bool isRecordingPlaying, bool isPlaying, const char* time, const char* duration) {
        EXPECT_EQ(screen->btnPlay().selected, isRecordingPlaying);
        EXPECT_EQ(screen->btnStop().enabled, isPlaying);
        EXPECT_EQ(runLoop.activeTimers(), isPlaying ? 2U : 0U) << "the display's and the player's";
        EXPECT_EQ(screen->lblCurrentTime(), QLatin1String(time));
        EXPECT_EQ(screen->lblDuration(), QLatin1String(duration));
    };
    screen->playTrimmedAudio();
    runLoop.advance(1.0);
    shows(true, true, "00:01", "00:20");  // The recording, as nothing is cut.
    screen->playOriginalAudio();
    screen->playerSliderMoved(5.0);
    shows(false, false, "00:05", "00:20");
    screen->trimAudio();
    runLoop.advance(3.0);
    screen->playTrimmedAudio();
    shows(false, false, "00:05", "00:20");  // No such file.

    players.seconds[screen->outputPath().filename()] = 7.0;
    screen->playOriginalAudio();
    screen->playTrimmedAudio();
    runLoop.advance(2.0);
    shows(false, true, "00:02", "00:07");
    runLoop.advance(5.5);
    shows(false, false, "00:05", "00:20");  // The cut's end.
    screen->playTrimmedAudio();
    screen->playOriginalAudio();
    runLoop.advance(1.0);
    shows(true, true, "00:06", "00:20");
    runLoop.advance(15.0);
    shows(false, false, "00:20", "00:20");
    screen->playTrimmedAudio();
    players.last()->fail({QStringLiteral("gone")});
    shows(false, false, "00:20", "00:20");
    EXPECT_EQ(notices.posted.at(0).text, QStringLiteral("gone"));
    screen->playTrimmedAudio();
    screen->closeButtonpressed();
    shows(false, false, "00:20", "00:20");
}

TEST_F(AudioTrimTest, AsksBeforeItLeavesACutAndMovesAndRemovesFiles) {
    const auto screen = open("1");
    container.addDocument(kOutput[0], "another's");
    screen->trimAudio();
    runLoop.drain();
    reloads = 0;
    screen->backButtonpressed();
    EXPECT_EQ(closings, 0);
    presenter.alerts.at(0).actions[0].handler();
    EXPECT_EQ(closings, 1);
    const std::filesystem::path folder = container.documentsPath();
    screen->addTrimFileWithFilePath(container.cachesPath());
    EXPECT_TRUE(std::filesystem::exists(container.cachesPath() / kOutput[0]));
    EXPECT_FALSE(std::filesystem::exists(folder / kOutput[0]));
    EXPECT_EQ(std::filesystem::file_size(folder / "Trim_2024_Mar_05_14_03_59_2.wav"), 9U) << "another's is still there";
    EXPECT_EQ(reloads, 1);
    container.addDocument("old.wav", "old");
    for (int i = 0; i < 2; ++i) {
        screen->removeFile("old.wav");
        EXPECT_FALSE(std::filesystem::exists(folder / "old.wav"));
    }
    EXPECT_EQ(closings, 4);
}

TEST_F(AudioTrimTest, WithoutSoundExportsNothingAndClosesAsAfterATrim) {
    const auto screen = open("0", "text.txt");
    EXPECT_FALSE(screen->btnPlay().enabled);
    screen->playOriginalAudio();
    screen->trimAudio();
    EXPECT_TRUE(assets.sessions.empty());
    EXPECT_TRUE(screen->indicatorText().isEmpty());
    EXPECT_EQ(closings, 1);
}

}  // namespace
}  // namespace tavi::test
