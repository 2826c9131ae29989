#include <malloc.h>

#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

using RecordingTest = RecordingFixture;

TEST_F(RecordingTest, EveryTypeAndQualityKeepsLengthPitchLevelAndSides) {
    auto all = allKinds();
    all.push_back({{"wav", kAudioFormatLinearPCM, "pcm_s16le", "wav", 1, 0, 0.1, 16}, {11025, 1, 127}});
    for (const auto& [type, quality] : all) {
        for (const auto& [input, leftOnly] : {std::pair(kStereo, false), {kStereo, true}, {{44100, 1}, false}}) {
            SCOPED_TRACE(testing::Message()
                         << type.extension << " " << quality.rate << " " << input.channels << leftOnly);
            const auto frames = static_cast<std::size_t>(input.sampleRate * 33 / 10 + 17);
            const auto path = record(type, quality, tone(input, frames, leftOnly), input);
            const auto sound = decodeSound(path);
            ASSERT_TRUE(sound);
            EXPECT_EQ(sound->codec, type.codec);
            EXPECT_EQ(sound->container, type.container);
            EXPECT_EQ(sound->rate, quality.rate);
            EXPECT_EQ(sound->channels, quality.channels);
            const double written = static_cast<double>(frames) * quality.rate / input.sampleRate;
            const double decoded = static_cast<double>(sound->frames()) - type.priming;
            EXPECT_GT(decoded, written - 1);
            EXPECT_LT(decoded, written + type.packet + 1);
            const bool isExact = type.priming == 0 && type.packet != 64;
            const auto stored = static_cast<double>(storedFrames(type, quality, std::llround(written)));
            const double told = isExact ? stored : static_cast<double>(sound->frames());
            EXPECT_NEAR(m_durations.durationOfFile(path) * quality.rate, told, 0.01);

            // What fills the last packet is silent.
            const auto heard = static_cast<std::size_t>(std::ceil(written));
            EXPECT_TRUE(type.packet != 64 || levelOf(std::span(sound->planes[0]).subspan(heard + 16)) < -30);

            const double level = -9.03 - (leftOnly && sound->channels == 1 ? 6.02 : 0);
            EXPECT_NEAR(levelOf(middleOf(sound->planes[0])), level, type.decibels);
            EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 1000, 1);
            if (sound->channels == 2 && leftOnly) {
                EXPECT_LT(levelOf(middleOf(sound->planes[1])), -60);
            } else if (sound->channels == 2) {
                EXPECT_NEAR(levelOf(middleOf(sound->planes[1])), level, type.decibels);
            }
        }
    }
}

TEST_F(RecordingTest, TonesAboveTheNewBandDoNotFoldIntoIt) {
    for (const Quality& quality : {kQualities[0], kQualities[1]}) {
        const auto path = record(kTypes[0], quality, tone(kStereo, 96000, false, 0.65 * quality.rate));
        EXPECT_LT(levelOf(middleOf(decodeSound(path)->planes[0])), -60) << quality.rate;
    }
}

TEST_F(RecordingTest, ARecordingWithoutSoundIsStillAFileOfItsKind) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        auto writer = FfmpegAudioFileWriters().create(pathFor(type), settingsFor(type, kQualities[1]));
        ASSERT_TRUE(writer);
        EXPECT_TRUE((*writer)->finish());
        EXPECT_EQ(m_durations.durationOfFile(pathFor(type)), 0);
        // A stream without frames is an empty file.
        if (type.priming == 0) {
            const auto sound = decodeSound(pathFor(type));
            ASSERT_TRUE(sound);
            EXPECT_EQ(sound->codec, type.codec);
            EXPECT_EQ(sound->frames(), 0U);
        }
    }
}

TEST_F(RecordingTest, NothingIsReplacedAndNothingIsLeftWhereRecordingCannotStart) {
    const auto mine = file("recording.m4a", "mine");
    const Type pcm24{"wav", kAudioFormatLinearPCM, "", "", 1, 0, 0, 24};
    EXPECT_FALSE(FfmpegAudioFileWriters().create(mine, settingsFor(kTypes[0], kQualities[0])));
    EXPECT_FALSE(FfmpegAudioFileWriters().create(pathFor(pcm24), settingsFor(pcm24, kQualities[0])));
    EXPECT_FALSE(FfmpegAudioFileWriters().create(pathFor(kTypes[3]), settingsFor(kTypes[3], {9999, 1, 0})));
    EXPECT_EQ(contents(mine), "mine");
    EXPECT_FALSE(std::filesystem::exists(pathFor(pcm24)) || std::filesystem::exists(pathFor(kTypes[3])));
}

TEST_F(RecordingTest, ContainerFollowsTheFormatWhateverTheExtensionAndBadSamplesAreSilence) {
    std::vector<float> samples = tone(kStereo, 48000);
    samples[300] = NAN;
    samples[3001] = INFINITY;
    const Type odd{"xyz", kAudioFormatMPEG4AAC, "aac", "", 1024, 0, 0.5};
    const auto sound = decodeSound(record(odd, kQualities[2], samples));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->container, kTypes[3].container);
    EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 1000, 1);
}

TEST_F(RecordingTest, MemoryDoesNotGrowWithTheLengthOfARecording) {
    for (const Type& type : kTypes) {
        const auto writer = begin(pathFor(type), settingsFor(type, kQualities[0]));
        const std::vector<float> second = tone(kStereo, 48000);
        std::size_t early = 0;
        for (int i = 0; i < 240; ++i) {
            ASSERT_TRUE(writer->write(second.data(), 48000));
            early = i == 40 ? mallinfo2().uordblks : early;
        }
        EXPECT_LT(mallinfo2().uordblks, early + 16384) << type.extension;
        ASSERT_TRUE(writer->finish());
        EXPECT_NEAR(m_durations.durationOfFile(pathFor(type)), 240, 0.3) << type.extension;
    }
}

}  // namespace

}  // namespace tavi::test
