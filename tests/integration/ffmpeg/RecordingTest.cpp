#include <malloc.h>

#include <random>

#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

struct Input {
    const char* name;
    AudioInputFormat format;
    bool leftOnly;
};

constexpr std::array<Input, 3> kInputs{
    {{"stereo", {48000, 2}, false}, {"left", {48000, 2}, true}, {"mono", {44100, 1}, false}}};

class RecordingTest : public RecordingFixture {
protected:
    void record(const QString& path, const Type& type, const Quality& quality, const Input& input, std::size_t frames) {
        auto writer = FfmpegAudioFileWriters().create(path, settingsFor(type, quality));
        ASSERT_TRUE(writer) << qPrintable(writer.error().text);
        ASSERT_TRUE((*writer)->setInputFormat(input.format));
        ASSERT_TRUE(writeBlocks(**writer, tone(input.format, frames, input.leftOnly), input.format.channels));
        ASSERT_TRUE((*writer)->finish());
    }

    void expectTone(const Sound& sound, const Type& type, const Input& input) {
        const bool isHalved = input.leftOnly && sound.channels == 1;
        const double level = 20 * std::log10(0.5 / std::sqrt(2.0)) - (isHalved ? 6.02 : 0);
        EXPECT_NEAR(levelOf(middleOf(sound.planes[0])), level, type.decibels);
        EXPECT_NEAR(frequencyOf(middleOf(sound.planes[0]), sound.rate), 1000, 1);
        if (sound.channels == 2 && input.leftOnly) {
            EXPECT_LT(levelOf(middleOf(sound.planes[1])), -60);
        } else if (sound.channels == 2) {
            EXPECT_NEAR(levelOf(middleOf(sound.planes[1])), level, type.decibels);
        }
    }
};

TEST_F(RecordingTest, EveryTypeAndQualityKeepsLengthPitchLevelAndSides) {
    for (const Type& type : kTypes) {
        for (const Quality& quality : kQualities) {
            for (const Input& input : kInputs) {
                SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate << " " << input.name);
                const QString path = pathFor(type);
                const auto frames = static_cast<std::size_t>(input.format.sampleRate * 33 / 10 + 17);
                record(path, type, quality, input, frames);
                const auto sound = decodeSound(path);
                ASSERT_TRUE(sound);
                EXPECT_EQ(sound->codec, type.codec);
                EXPECT_EQ(sound->container, type.container);
                EXPECT_EQ(sound->rate, quality.rate);
                EXPECT_EQ(sound->channels, quality.channels);
                const double written = static_cast<double>(frames) * quality.rate / input.format.sampleRate;
                const double decoded = static_cast<double>(sound->frames()) - type.priming;
                EXPECT_GT(decoded, written - 1);
                EXPECT_LT(decoded, written + type.packet + 1);
                const bool isExact = type.priming == 0 && type.packet != 64;
                const double told = isExact ? std::round(written) : static_cast<double>(sound->frames());
                EXPECT_NEAR(m_durations.durationOfFile(path) * quality.rate, told, 0.01);
                expectTone(*sound, type, input);
                QFile::remove(path);
            }
        }
    }
}

TEST_F(RecordingTest, SixteenBitPcmIsRecordedAtElevenKilohertz) {
    const Type type{"wav", kAudioFormatLinearPCM, "pcm_s16le", "wav", 1, 0, 0.1};
    AudioRecordSettings settings = settingsFor(type, {11025, 1, 127});
    settings.linearPCMBitDepth = 16;
    const auto writer = begin(pathFor(type), settings);
    ASSERT_TRUE(writer && writeBlocks(*writer, tone(kStereo, 96000, false, 440), 2) && writer->finish());
    const auto sound = decodeSound(pathFor(type));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->codec, type.codec);
    EXPECT_EQ(sound->rate, 11025);
    EXPECT_NEAR(static_cast<double>(sound->frames()), 22050, 1);
    EXPECT_NEAR(levelOf(middleOf(sound->planes[0])), 20 * std::log10(0.5 / std::sqrt(2.0)), type.decibels);
    EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 440, 1);
}

TEST_F(RecordingTest, SeekingInAFinishedFileLeadsToTheSoundThatBelongsThere) {
    std::vector<float> noise(200000);
    std::mt19937 random(5);
    std::generate(noise.begin(), noise.end(),
                  [&] { return std::uniform_real_distribution<float>(-0.5F, 0.5F)(random); });
    for (const Type& type : {kTypes[0], kTypes[3]}) {
        const QString path = pathFor(type);
        auto writer = FfmpegAudioFileWriters().create(path, settingsFor(type, kQualities[0]));
        ASSERT_TRUE(writer && (*writer)->setInputFormat({8000, 1}) && writeBlocks(**writer, noise, 1));
        ASSERT_TRUE((*writer)->finish());
        const auto whole = decodeSound(path);
        const auto part = decodeSound(path, 17);
        ASSERT_TRUE(whole && part);
        EXPECT_NEAR(whole->start, 0, 1e-9);
        EXPECT_NEAR(part->start, 17, 0.6) << type.extension;
        // The packet after the seek decodes without the one before it.
        const std::size_t skipped = type.packet == 1 ? 0 : 2048;
        const auto at = static_cast<std::size_t>(std::llround(part->start * 8000)) + skipped;
        double difference = 0;
        ASSERT_EQ(part->frames() - skipped, whole->frames() - at);
        for (std::size_t i = 0; i + at < whole->frames(); ++i) {
            difference =
                std::max(difference, std::abs(double{whole->planes[0][at + i]} - double{part->planes[0][skipped + i]}));
        }
        EXPECT_LT(difference, type.packet == 1 ? 1e-9 : 0.02);
        // A lossless format at the input's own rate gives back what went in.
        if (type.packet == 1) {
            EXPECT_NEAR(double{whole->planes[0][777]}, double{noise[777]}, 1.0 / 32768);
        }
    }
}

TEST_F(RecordingTest, TonesAboveTheNewBandDoNotFoldIntoIt) {
    for (const Quality& quality : {kQualities[0], kQualities[1]}) {
        const auto writer = begin(pathFor(kTypes[0]), settingsFor(kTypes[0], quality));
        ASSERT_TRUE(writer && writeBlocks(*writer, tone(kStereo, 96000, false, 0.65 * quality.rate), 2));
        ASSERT_TRUE(writer->finish());
        EXPECT_LT(levelOf(middleOf(decodeSound(pathFor(kTypes[0]))->planes[0])), -60) << quality.rate;
        QFile::remove(pathFor(kTypes[0]));
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
    const QString path = pathFor(kTypes[0]);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    file.close();
    EXPECT_FALSE(FfmpegAudioFileWriters().create(path, settingsFor(kTypes[0], kQualities[0])));
    EXPECT_EQ(file.size(), 4);

    AudioRecordSettings wrong = settingsFor(kTypes[1], kQualities[0]);
    wrong.linearPCMBitDepth = 24;
    EXPECT_FALSE(FfmpegAudioFileWriters().create(pathFor(kTypes[1]), wrong));
    wrong = settingsFor(kTypes[3], {9999, 1, 0});
    EXPECT_FALSE(FfmpegAudioFileWriters().create(pathFor(kTypes[3]), wrong));
    EXPECT_FALSE(QFile::exists(pathFor(kTypes[1])) || QFile::exists(pathFor(kTypes[3])));
}

TEST_F(RecordingTest, ContainerFollowsTheFormatWhateverTheExtensionAndBadSamplesAreSilence) {
    const Type odd{"xyz", kAudioFormatMPEG4AAC, "aac", "", 1024, 0, 0.5};
    const auto writer = begin(pathFor(odd), settingsFor(odd, kQualities[2]));
    ASSERT_TRUE(writer);
    std::vector<float> samples = tone(kStereo, 48000);
    samples[300] = NAN;
    samples[3001] = INFINITY;
    EXPECT_TRUE(writer->write(samples.data(), 48000));
    EXPECT_TRUE(writer->finish());
    const auto sound = decodeSound(pathFor(odd));
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
