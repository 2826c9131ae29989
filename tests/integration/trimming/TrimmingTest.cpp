#include <gtest/gtest.h>

#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/exporting/FfmpegAssets.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "adapters/qt/QtRunLoop.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "support/EventLoop.h"
#include "support/FakeAudioPlayer.h"
#include "support/FakeAudioRecorder.h"
#include "support/FakeDisplayRefresh.h"
#include "support/Fakes.h"
#include "support/TemporaryContainer.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi::test {
namespace {

class TrimmingTest : public RecordingFixture {
protected:
    QtRunLoop runLoop;
    TemporaryContainer container;
    NotificationCenter notifications;
    FfmpegAssets assets;
    FfmpegExtAudioFiles files;
    FfmpegAudioConverters converters;
    FakeAudioPlayers players{runLoop};
    FakeAudioRecorders recorders{runLoop};
    FakeAudioSession session;
    FakeDisplayRefreshes refreshes;
};

/// A recording of four seconds of every type is opened, cut down to the stretch from 1 s to 2.5 s, and left alone.
TEST_F(TrimmingTest, CutsRecordingsOfEveryType) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        const QByteArray path = QFile::encodeName(pathFor(type));
        const auto writer = begin(pathFor(type), settingsFor(type, {44100, 2, 127}));
        ASSERT_TRUE(writer && writeBlocks(*writer, tone(kStereo, 4 * 48000, false, 1000), 2) && writer->finish());
        QFile recording(pathFor(type));
        ASSERT_TRUE(recording.open(QIODevice::ReadOnly));
        const QByteArray before = recording.readAll();

        WaveformLoader waveforms({.files = files, .converters = converters, .queues = runLoop});
        AudioTrimmerStage stage({.exports = assets,
                                 .players = players,
                                 .recorder = {.recorders = recorders, .audioSession = session},
                                 .waveforms = waveforms,
                                 .refreshes = refreshes,
                                 .container = container,
                                 .notifications = notifications,
                                 .runLoop = runLoop});
        QByteArray trimmed;
        AudioTrimmerViewController::presentAudioTrimmerController(
            stage, nullptr, path, {}, path.mid(path.lastIndexOf('/') + 1),
            [&trimmed](bool, const QByteArray& result) { trimmed = result; });
        ASSERT_TRUE(spinUntil([&stage] { return !stage.screen()->isLoading(); }));
        EXPECT_EQ(stage.screen()->audioPlot()->pointCount(), 1024U);
        EXPECT_NEAR(stage.screen()->selection()->endTime(), 4.0, 0.05);
        stage.screen()->selection()->nudge(true, 1.0);
        stage.screen()->selection()->nudge(false, 2.5 - stage.screen()->selection()->endTime());
        stage.screen()->btnUploadTapped();
        ASSERT_TRUE(spinUntil(
            [&] { return !trimmed.isEmpty() && stage.findChildren<AudioTrimmerViewController*>().isEmpty(); }));

        // Packets are kept whole: a compressed stretch may be longer by what they hold.
        const Asset result = assets.assetWithURL(trimmed);
        EXPECT_NEAR(result.duration.seconds(), 1.5, 0.06);
        const auto sound = decodeSound(QFile::decodeName(trimmed));
        ASSERT_TRUE(sound);
        EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 1000, 2);
        ASSERT_TRUE(recording.seek(0));
        EXPECT_TRUE(recording.readAll() == before);
        QFile::remove(QFile::decodeName(trimmed));
    }
}

}  // namespace
}  // namespace tavi::test
