#include <sys/stat.h>
#include <unistd.h>

#include <QtEndian>
#include <filesystem>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "support/ClientBuffers.h"
#include "support/ManualRunLoop.h"
#include "support/WavFile.h"

namespace tavi::test {

namespace {

/// Files that FFmpeg's program makes of a WAV file: what others bring in.
struct Foreign {
    const char* name;
    const char* arguments;
    /// How far a sample after a seek may be from what one pass gives.
    float tolerance;
    /// Frames at 44,100 Hz more than what went in: 0 where the file knows about padding.
    int more;
    /// Frames that the container's clock, which ticks once a millisecond, may be wrong by.
    int slack;
};

constexpr std::array<Foreign, 18> kForeign{{
    {"cbr.mp3", "-c:a libmp3lame -b:a 96k", 1e-6F, 0, 0},
    {"vbr.mp3", "-c:a libmp3lame -q:a 3", 1e-6F, 0, 0},
    {"bare.mp3", "-c:a libmp3lame -b:a 96k -write_xing 0 -id3v2_version 0", 1e-6F, 1261, 0},
    {"a.flac", "-c:a flac", 0, 0, 0},
    {"vorbis.ogg", "-c:a libvorbis", 1e-6F, 0, 0},
    {"opus.ogg", "-c:a libopus", 0.02F, 0, 0},
    {"a.aiff", "-c:a pcm_s16be", 0, 0, 0},
    {"s24.wav", "-c:a pcm_s24le", 0, 0, 0},
    {"f32.wav", "-c:a pcm_f32le", 0, 0, 0},
    {"rf64.wav", "-c:a pcm_s32le -rf64 always", 0, 0, 0},
    {"adpcm.wav", "-c:a adpcm_ima_wav", 0, 856, 0},
    {"plain.m4a", "-c:a aac -b:a 128k", 0.01F, 0, 0},
    {"faststart.m4a", "-c:a aac -b:a 128k -movflags +faststart", 0.01F, 0, 0},
    {"alac.m4a", "-c:a alac", 0, 0, 0},
    {"fragments.m4a", "-c:a alac -movflags empty_moov -frag_duration 500000", 0, 0, 0},
    {"late-fragments.m4a", "-c:a alac -movflags frag_keyframe -frag_duration 500000", 0, 0, 0},
    {"alac.caf", "-c:a alac", 0, 0, 0},
    {"pcm.mka", "-c:a pcm_s16le", 0, 0, 45},
}};

class ReadingTest : public RecordingFixture {
protected:
    static constexpr std::size_t kFrames = 3 * 48000 + 77;

    struct Opened {
        AudioStatus status = kAudioNoError;
        std::unique_ptr<ExtAudioFile> file;
        AudioStreamBasicDescription format;
        std::int64_t length = 0;
    };
    Opened open(const std::filesystem::path& path) {
        Opened opened;
        opened.status = m_files.open(path, opened.file);
        EXPECT_EQ(opened.file != nullptr, opened.status == kAudioNoError);
        if (opened.file) {
            opened.file->fileDataFormat(opened.format);
            EXPECT_EQ(opened.file->fileLengthFrames(opened.length), kAudioNoError);
        }
        return opened;
    }

    /// All samples, as many channels as the program shows.
    static std::vector<std::vector<float>> readAll(const Opened& opened) {
        const auto client = clientFormat(opened.format.sampleRate, 2);
        EXPECT_EQ(opened.file->setClientDataFormat(client), kAudioNoError);
        return readPlanes(*opened.file, client);
    }

    /// A WAV file whose samples are all a quarter of full scale.
    static QByteArray wav(int channels, int rate, int frames) {
        return wavFile(channels, rate, 32, QByteArray("\0\0\x80\x3e", 4).repeated(channels * frames));
    }

    /// Reads a file from start to end and from many places, in its own rate and another.
    void expectExactSeeks(const std::filesystem::path& path, float tolerance, int slack = 0) {
        const auto [status, file, format, length] = open(path);
        ASSERT_TRUE(file);
        for (const double rate : {format.sampleRate, format.sampleRate == 44100 ? 16000.0 : 44100.0}) {
            const auto client = clientFormat(rate, format.channelsPerFrame);
            ASSERT_EQ(file->setClientDataFormat(client), kAudioNoError);
            ASSERT_EQ(file->seek(0), kAudioNoError);
            const auto all = readPlanes(*file, client);
            const auto at = [&](std::int64_t frame) {
                return static_cast<std::size_t>(std::ceil(static_cast<double>(frame) * rate / format.sampleRate));
            };
            EXPECT_NEAR(static_cast<double>(all[0].size()), static_cast<double>(at(length)), slack) << rate;
            for (const std::int64_t frame : {length / 2, std::int64_t{1}, length - 5, std::int64_t{1024}, length / 3,
                                             length / 3 + 7, std::int64_t{0}, length * 9 / 10, length}) {
                ASSERT_EQ(file->seek(frame), kAudioNoError);
                const auto part = readPlanes(*file, client, 3000);
                ASSERT_EQ(part[0].size(),
                          std::min<std::size_t>(3000, all[0].size() - std::min(at(frame), all[0].size())))
                    << rate << " from " << frame;
                float worst = 0;
                for (std::size_t channel = 0; channel < all.size(); ++channel) {
                    for (std::size_t i = 0; i < part[channel].size(); ++i) {
                        worst = std::max(worst, std::abs(part[channel][i] - all[channel][at(frame) + i]));
                    }
                }
                EXPECT_LE(worst, tolerance) << rate << " from " << frame;
            }
        }
    }

    /// How far, in dB below it, a file is from the tone of 1000 Hz that starts at a frame.
    double errorOf(const std::filesystem::path& path, std::int64_t start) {
        const auto [status, file, format, length] = open(path);
        const auto client = clientFormat(format.sampleRate, 1);
        file->setClientDataFormat(client);
        file->seek(start + 4096);
        auto samples = readPlanes(*file, client, 4096)[0];
        const auto wanted = tone({static_cast<int>(format.sampleRate), 1}, 8192);
        std::transform(samples.begin(), samples.end(), wanted.begin() + 4096, samples.begin(), std::minus());
        return levelOf(samples) + 9.03;
    }

    FfmpegExtAudioFiles m_files;
};

TEST_F(ReadingTest, RecordingsAreReadToTheFrameAndFromAnyFrame) {
    for (const Type& type : kTypes) {
        for (const Quality& quality : kQualities) {
            for (const bool isFinished : {true, false}) {
                SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate << " " << isFinished);
                const auto path = record(type, quality, tone(kStereo, kFrames), kStereo, isFinished);
                const auto [status, file, format, length] = open(path);
                ASSERT_TRUE(file);
                EXPECT_EQ(format.formatID, type.formatID);
                EXPECT_EQ(length, std::llround(m_durations.durationOfFile(path) * quality.rate));
                const bool isAac = type.formatID == kAudioFormatMPEG4AAC;
                expectExactSeeks(path, isAac ? 0.01F : 0);
                if (isFinished) {
                    EXPECT_LT(errorOf(path, type.priming), isAac || type.formatID == kAudioFormatLinearPCM ? -25 : -20);
                }
                // Some of what is interrupted has not been written yet.
                const std::int64_t written = storedFrames(type, quality, std::llround(kFrames * quality.rate / 48000));
                EXPECT_GE(length, isFinished ? written + type.priming : written / 3);
                const int tail = type.packet == 1024 && type.priming == 0 ? 1 : type.packet;
                EXPECT_LT(length, written + type.priming + tail);
            }
        }
    }
}

TEST_F(ReadingTest, EveryRecordableTypeShowsTheLevelOfItsSound) {
    // A tenth of full scale on the right.
    std::vector<float> samples = tone(kStereo, std::size_t{48000} * 10);
    for (std::size_t i = 1; i < samples.size(); i += 2) {
        samples[i] *= 0.2F;
    }
    FfmpegAudioConverters converters;
    ManualRunLoop runLoop;
    for (const Type& type : kTypes) {
        for (const Quality& quality : kQualities) {
            SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate);
            const auto path = record(type, quality, samples);
            const auto reader =
                EZAudioFile::audioFileWithURL(path, {.files = m_files, .converters = converters, .queues = runLoop});
            ASSERT_TRUE(reader);
            if (type.packet == 1 && quality.rate == 44100) {
                EXPECT_EQ(reader->totalClientFrames() / 1024, 430);
            }
            reader->seekToFrame(777);
            const auto data = reader->getWaveformDataWithNumberOfPoints(40);
            ASSERT_TRUE(data);
            EXPECT_EQ(reader->frameIndex(), 777);
            ASSERT_EQ(data->numberOfChannels(), 2);
            const double allowed = type.formatID == kAudioFormatAppleLossless ? 0.1 : 1;
            for (int channel = 0; channel < 2; ++channel) {
                const double amplitude = quality.channels == 1 ? 0.3 : channel == 0 ? 0.5 : 0.1;
                const double level = 20 * std::log10(amplitude) - 3.0103;
                for (std::uint32_t point = 1; point < 39; ++point) {
                    const auto shown = static_cast<double>(data->bufferForChannel(channel)[point]);
                    EXPECT_NEAR(20 * std::log10(shown), level, allowed) << point;
                }
            }
        }
    }
}

TEST_F(ReadingTest, FilesOfOtherProgramsAreReadFromAnyFrame) {
    const auto wav = record(kTypes[0], kQualities[2], tone(kStereo, kFrames));
    for (const Foreign& foreign : kForeign) {
        SCOPED_TRACE(foreign.name);
        const auto path = converted(wav, foreign.name, foreign.arguments);
        expectExactSeeks(path, foreign.tolerance, foreign.slack);
        const auto [status, file, format, length] = open(path);
        const double frames = static_cast<double>(length) * 44100 / format.sampleRate;
        EXPECT_NEAR(m_durations.durationOfFile(path), static_cast<double>(length) / format.sampleRate, 0.1);
        EXPECT_NEAR(frames, kFrames * 44100.0 / 48000 + foreign.more, 1 + foreign.slack);
        if (std::strcmp(foreign.name, "bare.mp3") != 0) {
            EXPECT_LT(errorOf(path, 0), -20);
        }
    }
}

TEST_F(ReadingTest, MoviesBeginAndEndWhereTheirEditsSay) {
    for (const Type& type : {kTypes[0], kTypes[3]}) {
        const QByteArray recording = contents(record(type, kQualities[2], tone(kStereo, kFrames)));
        const qsizetype edit = recording.indexOf("elst") + 12;
        for (const std::uint32_t start : {0U, 1U, 1024U, 2112U, 20000U}) {
            for (const bool isShort : {false, true}) {
                SCOPED_TRACE(testing::Message() << type.extension << " from " << start << " " << isShort);
                QByteArray edited = recording;
                qToBigEndian(start, edited.data() + edit + 4);
                qToBigEndian(isShort ? 700U : qFromBigEndian<std::uint32_t>(edited.data() + edit),
                             edited.data() + edit);
                const auto path = file("edited", edited);
                expectExactSeeks(path, type.packet == 1 ? 0 : 0.01F);
                const auto own = readAll(open(path));
                const auto other = decodeSound(path)->planes;
                // Another decoder may play the last packet to its end.
                ASSERT_LE(own[0].size(), other[0].size());
                EXPECT_LT(other[0].size() - own[0].size(), static_cast<std::size_t>(type.packet));
                for (std::size_t i = 0; i < own[0].size(); ++i) {
                    ASSERT_NEAR(own[0][i], other[0][i], 0.02) << i;
                }
            }
        }
    }
}

TEST_F(ReadingTest, AppleLosslessAndIma4AreDecodedBitByBit) {
    // Silence, noise of all levels, full scale and steps: the shortest and the longest codes, and what is clipped.
    std::vector<float> samples;
    std::uint32_t state = 1;
    for (std::size_t i = 0; i < 2 * kFrames; ++i) {
        state = state * 1664525 + 1013904223;
        const float noise = static_cast<float>(static_cast<std::int32_t>(state)) / 2147483648.0F;
        const std::size_t part = i / 20000 % 7;
        const float level = part == 0 ? 0.0F : std::pow(10.0F, static_cast<float>(part) - 6);
        samples.push_back(part == 6 && i % 977 < 488 ? 1.0F : noise * level);
    }
    for (const Type& type : {kTypes[0], kTypes[2]}) {
        for (const Quality& quality : {kQualities[0], kQualities[1], kQualities[2], {48000, 2, 127}}) {
            const auto path = record(type, quality, samples);
            const auto file = open(path).file;
            const auto client = clientFormat(quality.rate, static_cast<std::uint32_t>(quality.channels));
            file->setClientDataFormat(client);
            const auto planes = readPlanes(*file, client);
            EXPECT_TRUE(planes == decodeSound(path)->planes) << type.extension << " " << quality.rate;
            const bool isExact = type.formatID == kAudioFormatAppleLossless && quality.rate == 48000;
            for (std::size_t i = 0; isExact && i < kFrames; ++i) {
                ASSERT_NEAR(planes[1][i], samples[2 * i + 1], 1.0 / 32768) << i;
            }
        }
    }
}

TEST_F(ReadingTest, WhatIsNoSoundIsSaidSo) {
    const auto pipe = folder() / "pipe.wav";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    struct Case {
        std::filesystem::path path;
        AudioStatus status;
    };
    // IMA4 of a million channels.
    const QByteArray channels =
        QByteArray(
            "caff\0\1\0\0desc\0\0\0\0\0\0\0\x20\x40\xbf\x40\0\0\0\0\0ima4\0\0\0\0\0\0\0\x44\0\0\0\x40\0\x10\0\1\0\0\0\0"
            "data\xff\xff\xff\xff\xff\xff\xff\xff\0\0\0\1",
            68) +
        QByteArray(1400, '\1');
    std::vector<Case> cases = {
        {file("channels.caf", channels), kAudioFileUnsupportedDataFormatError},
        {folder() / "missing.m4a", kAudioFileFileNotFoundError},
        {"http://localhost/a.m4a", kAudioFileFileNotFoundError},
        {{}, kAudioFileFileNotFoundError},
        {folder(), kAudioFileUnsupportedFileTypeError},
        {pipe, kAudioFileUnsupportedFileTypeError},
        {"/dev/zero", kAudioFileUnsupportedFileTypeError},
        {file("list.m3u8", "#EXTM3U\n#EXTINF:1,\nfile:///etc/passwd\n"), kAudioFileUnsupportedFileTypeError},
    };
    for (const char* extension : {"m4a", "wav", "caf", "aac", "mp3", "m3u8"}) {
        for (const QByteArray& bytes : {QByteArray(), QByteArray("a line of text\n").repeated(3000),
                                        QByteArray(5000, '\0'), QByteArray(5000, '\xff')}) {
            const std::string name = std::to_string(cases.size()) + '.' + extension;
            cases.push_back({file(name, bytes), kAudioFileUnsupportedFileTypeError});
        }
    }
    for (const auto& [path, status] : cases) {
        EXPECT_EQ(open(path).status, status) << path;
        // A file may tell its length and yet not be fit to be read.
        EXPECT_LE(m_durations.durationOfFile(path), status == kAudioFileUnsupportedDataFormatError ? 1 : 0) << path;
    }
    const auto secret = file("secret.wav", wav(1, 8000, 10));
    std::filesystem::permissions(secret, std::filesystem::perms::none);
    EXPECT_EQ(open(secret).status, ::geteuid() == 0 ? kAudioNoError : kAudioFilePermissionsError);
    for (const QByteArray& bytes : {wav(1, 8000, 0), wav(1, 8000, 0).left(40), wav(0, 8000, 10), wav(2, 0, 10)}) {
        EXPECT_EQ(open(file("none.wav", bytes)).length, 0);
    }
}

TEST_F(ReadingTest, RatesThatNoRecorderHasAreRefused) {
    // A megabyte of one sample a second would be weeks of sound, and hours of work.
    const std::pair<QByteArray, QByteArray> changes[] = {
        {QByteArray("\0\0\xac\x44", 4), QByteArray("\0\0\0\1", 4)},
        {QByteArray("\x44\xac\0\0", 4), QByteArray("\1\0\0\0", 4)},
        {QByteArray("\x40\xe5\x88\x80\0", 5), QByteArray("\x3f\xf0\0\0\0", 5)},
    };
    const auto pathOf = [this](const Type& type) { return record(type, kQualities[2], tone(kStereo, kFrames)); };
    const auto wav = pathOf(kTypes[1]);
    const auto au = converted(wav, "a.au", "-c:a pcm_s16be");
    for (const auto& path : {wav, pathOf(kTypes[0]), pathOf(kTypes[2]), au}) {
        QByteArray bytes = contents(path);
        for (const auto& [rate, one] : changes) {
            bytes.replace(rate, one);
        }
        const Opened slow = open(file("slow", bytes));
        EXPECT_EQ(slow.status, kAudioFileUnsupportedDataFormatError) << path;
    }
}

TEST_F(ReadingTest, OddFilesAndNamesAreRead) {
    for (const auto& [channels, rate, frames] : {std::tuple(8, 8000, 4000), {1, 192000, 96000}, {1, 44100, 1}}) {
        const Opened odd = open(file("odd.m4a", wav(channels, rate, frames)));
        ASSERT_TRUE(odd.file);
        EXPECT_EQ(odd.length, frames);
        EXPECT_EQ(odd.format.channelsPerFrame, static_cast<std::uint32_t>(channels));
        const auto samples = readAll(odd)[1];
        EXPECT_TRUE(samples.size() == static_cast<std::size_t>(frames) && samples[0] > 0.05F && samples[0] < 0.2501F);
    }
    const QByteArray bytes = wav(2, 8000, 4000) + QByteArray("LIST\x14\0\0\0INFOINAM\x08\0\0\0Meeting\0", 28);
    const auto original = file("original.wav", bytes);
    for (const char* name : {"two words.wav", "'quoted' \"twice\".wav", "new\nline.wav", "latin \xe9\xff.wav",
                             "%20%s.wav", "file:a.wav", "-a.wav"}) {
        const std::filesystem::path path = folder() / name;
        std::filesystem::copy_file(original, path);
        const Opened odd = open(path);
        std::filesystem::remove(path);
        ASSERT_TRUE(odd.file) << name;
        EXPECT_EQ(odd.length, 4000) << name;
        AudioFileInfo info;
        odd.file->infoDictionary(info);
        EXPECT_EQ(info["title"], "Meeting") << name;
    }
}

TEST_F(ReadingTest, FilesThatEndTooSoonAreReadAsFarAsTheyGo) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        const auto path = record(type, kQualities[2], tone(kStereo, std::size_t{48000} * 40));
        // While a reader has it open.
        const Opened whole = open(path);
        std::filesystem::resize_file(path, QFile(path).size() * 6 / 10);
        EXPECT_LT(readAll(whole)[0].size(), whole.length * 62 / 100);
        // And before one opens it. A movie's tables may stand at its end, and be gone.
        const Opened cut = open(path);
        EXPECT_LT(cut.length, whole.length * 62 / 100);
        if (!std::string_view(type.container).starts_with("mov")) {
            EXPECT_GT(cut.length, whole.length * 58 / 100);
            EXPECT_GT(levelOf(std::span(readAll(cut)[0]).last(20000)), -12);
        }
        for (const int bytes : {1, 12, 44, 100, 700}) {
            std::filesystem::resize_file(path, bytes);
            EXPECT_LT(open(path).length, 3000) << bytes;
            EXPECT_LT(m_durations.durationOfFile(path), 0.1) << bytes;
        }
    }
}

}  // namespace

}  // namespace tavi::test
