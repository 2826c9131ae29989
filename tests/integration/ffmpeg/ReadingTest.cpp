#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "support/ClientBuffers.h"
#include "support/WavFile.h"

namespace tavi::test {

namespace {

/// Files that FFmpeg's program makes of a recording: what others bring in.
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

constexpr std::array<Foreign, 15> kForeign{{
    {"cbr.mp3", "-c:a libmp3lame -b:a 96k", 1e-6F, 0, 0},
    {"bare.mp3", "-c:a libmp3lame -b:a 96k -write_xing 0 -id3v2_version 0", 1e-6F, 1261, 0},
    {"a.flac", "-c:a flac", 0, 0, 0},
    {"vorbis.ogg", "-c:a libvorbis", 1e-6F, 0, 0},
    {"opus.ogg", "-c:a libopus", 0.02F, 0, 0},
    {"a.aiff", "-c:a pcm_s16be", 0, 0, 0},
    {"rf64.wav", "-c:a pcm_s32le -rf64 always", 0, 0, 0},
    // FFmpeg 7 does not count what fills the last packet up.
    {"adpcm.wav", "-c:a adpcm_ima_wav", 0, 856, 856},
    {"plain.m4a", "-c:a aac -b:a 128k", 0.01F, 0, 0},
    {"faststart.m4a", "-c:a aac -b:a 128k -movflags +faststart", 0.01F, 0, 0},
    {"alac.m4a", "-c:a alac", 0, 0, 0},
    {"fragments.m4a", "-c:a alac -movflags empty_moov -frag_duration 500000", 0, 0, 0},
    {"late-fragments.m4a", "-c:a alac -movflags frag_keyframe -frag_duration 500000", 0, 0, 0},
    {"alac.caf", "-c:a alac", 0, 0, 0},
    {"pcm.mka", "-c:a pcm_s16le", 0, 0, 45},
}};

struct ReadingTest : RecordingFixture {
    using Planes = std::vector<std::vector<float>>;
    static constexpr std::size_t kFrames = 3 * 48000 + 77;

    struct Opened {
        AudioStatus status = kAudioNoError;
        std::unique_ptr<ExtAudioFile> file;
        AudioStreamBasicDescription format;
        std::int64_t length = 0;
    };
    static Opened open(const std::filesystem::path& path) {
        Opened opened;
        opened.status = FfmpegExtAudioFiles().open(path, opened.file);
        EXPECT_EQ(opened.file != nullptr, opened.status == kAudioNoError);
        if (opened.file) {
            opened.file->fileDataFormat(opened.format);
            EXPECT_EQ(opened.file->fileLengthFrames(opened.length), kAudioNoError);
        }
        return opened;
    }

    /// What is left to read, in the file's own rate and channels.
    static Planes readOn(const Opened& opened) {
        const auto client = clientFormat(opened.format.sampleRate, opened.format.channelsPerFrame);
        return opened.file->setClientDataFormat(client) == kAudioNoError ? readPlanes(*opened.file, client)
                                                                         : Planes(client.channelsPerFrame);
    }

    /// Reads a file from start to end and from many places, in its own rate and another.
    static void expectExactSeeks(const std::filesystem::path& path, float tolerance, int slack = 0) {
        const auto [status, file, format, length] = open(path);
        ASSERT_TRUE(file);
        const double own = format.sampleRate;
        for (const double rate : {own, own == 44100 ? 16000.0 : 44100.0}) {
            const auto client = clientFormat(rate, format.channelsPerFrame);
            ASSERT_EQ(file->setClientDataFormat(client), kAudioNoError);
            ASSERT_EQ(file->seek(0), kAudioNoError);
            const auto all = readPlanes(*file, client);
            const auto at = [&](std::int64_t frame) {
                return static_cast<std::size_t>(std::ceil(static_cast<double>(frame) * rate / own));
            };
            EXPECT_NEAR(static_cast<double>(all[0].size()), static_cast<double>(at(length)), slack) << rate;
            for (const std::int64_t frame : {length / 2, std::int64_t{1}, length - 5, std::int64_t{1024}, length / 3,
                                             length / 3 + 7, std::int64_t{0}, length * 9 / 10, length}) {
                SCOPED_TRACE(testing::Message() << rate << " from " << frame);
                ASSERT_EQ(file->seek(frame), kAudioNoError);
                const auto part = readPlanes(*file, client, 3000);
                const std::size_t from = std::min(at(frame), all[0].size());
                ASSERT_EQ(part[0].size(), std::min<std::size_t>(3000, all[0].size() - from));
                for (std::size_t channel = 0; channel < all.size(); ++channel) {
                    EXPECT_LE(difference(all[channel], from, part[channel], 0), tolerance);
                }
            }
        }
    }

    /// How far, in dB below it, a file is from the tone of 1000 Hz that starts at a frame.
    static double errorOf(const std::filesystem::path& path, std::int64_t start) {
        const auto [status, file, format, length] = open(path);
        const auto client = clientFormat(format.sampleRate, 1);
        file->setClientDataFormat(client);
        file->seek(start + 4096);
        auto samples = readPlanes(*file, client, 4096)[0];
        const auto wanted = tone({static_cast<int>(format.sampleRate), 1}, 8192);
        std::transform(samples.begin(), samples.end(), wanted.begin() + 4096, samples.begin(), std::minus());
        return levelOf(samples) + 9.03;
    }
};

TEST_F(ReadingTest, RecordingsAreReadToTheFrameAndFromAnyFrame) {
    for (const auto& [type, quality] : allKinds()) {
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

TEST_F(ReadingTest, FilesOfOtherProgramsAreReadFromAnyFrame) {
    const auto wav = record(kTypes[0], kQualities[2], tone(kStereo, kFrames));
    std::stop_source stopped;
    stopped.request_stop();
    for (const Foreign& foreign : kForeign) {
        SCOPED_TRACE(foreign.name);
        const auto path = converted(wav, foreign.name, foreign.arguments);
        expectExactSeeks(path, foreign.tolerance, foreign.slack);
        const auto [status, file, format, length] = open(path);
        const double frames = static_cast<double>(length) * 44100 / format.sampleRate;
        EXPECT_NEAR(m_durations.durationOfFile(path), static_cast<double>(length) / format.sampleRate, 0.1);
        EXPECT_NEAR(frames, kFrames * 44100.0 / 48000 + foreign.more, 1 + foreign.slack);
        EXPECT_LT(errorOf(path, 0), foreign.more == 1261 ? 10 : -20);
        // What only libavformat knows is not asked for any more.
        EXPECT_TRUE(m_durations.durationOfFile(path, stopped.get_token()) == 0 || path.extension() != ".mp3");
    }
}

TEST_F(ReadingTest, WhatIsNotAacIsDecodedBitByBit) {
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
    for (const Type& type : {kTypes[0], kTypes[1], kTypes[2]}) {
        for (const Quality& quality : {kQualities[0], kQualities[1], kQualities[2], {48000, 2, 127}}) {
            const auto path = record(type, quality, samples);
            const auto planes = readOn(open(path));
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
    // A megabyte of one sample a second would be weeks of sound, and hours of work.
    QByteArray slow = contents(record(kTypes[0], kQualities[2], tone(kStereo, kFrames)));
    slow.replace(QByteArray("\0\0\xac\x44", 4), QByteArray("\0\0\0\1", 4));
    // IMA4 of a million channels.
    const QByteArray channels =
        QByteArray("caff\0\1\0\0desc\0\0\0\0\0\0\0\x20\x40\xbf\x40\0\0\0\0\0ima4\0\0\0\0\0\0\0\x44\0\0\0\x40\0\x10\0\1",
                   48) +
        QByteArray("\0\0\0\0data\xff\xff\xff\xff\xff\xff\xff\xff\0\0\0\1", 20) + QByteArray(1400, '\1');
    // Sound after so many empty chunks is none, as looking for it takes minutes.
    const auto late = file("late.caf", channels.left(52));
    std::filesystem::resize_file(late, 52 + 12 * 3'000'000);
    std::ofstream(late, std::ios::app) << channels.mid(52).toStdString();
    std::vector<std::pair<std::filesystem::path, AudioStatus>> cases = {
        {late, kAudioFileUnsupportedFileTypeError},
        {file("channels.caf", channels), kAudioFileUnsupportedDataFormatError},
        {file("slow.m4a", slow), kAudioFileUnsupportedDataFormatError},
        {file("slow.wav", wavFile(2, 1, 8, "sound")), kAudioFileUnsupportedDataFormatError},
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
            cases.emplace_back(file(name, bytes), kAudioFileUnsupportedFileTypeError);
        }
    }
    for (const auto& [path, status] : cases) {
        EXPECT_EQ(open(path).status, status) << path;
        // Of two the header alone tells a length.
        EXPECT_EQ(m_durations.durationOfFile(path) > 0, path.stem() == "channels" || path.filename() == "slow.m4a");
    }
    const QByteArray none = wavFile(1, 8000, 32, {});
    for (const QByteArray& bytes : {none, none.left(40), wavFile(0, 8000, 32, "sound"), wavFile(2, 0, 32, "sound")}) {
        EXPECT_EQ(open(file("none.wav", bytes)).length, 0);
    }
}

TEST_F(ReadingTest, OddFilesAndNamesAreRead) {
    const QByteArray quarter("\0\0\x80\x3e", 4);
    for (const auto& [channels, rate, frames] : {std::tuple(8, 8000, 4000), {1, 192000, 96000}, {1, 44100, 1}}) {
        const Opened odd = open(file("odd.m4a", wavFile(channels, rate, 32, quarter.repeated(channels * frames))));
        ASSERT_TRUE(odd.file);
        EXPECT_EQ(readOn(odd),
                  Planes(static_cast<std::size_t>(channels), std::vector(static_cast<std::size_t>(frames), 0.25F)));
    }
    const QByteArray named =
        wavFile(2, 8000, 32, quarter.repeated(8000)) + QByteArray("LIST\x14\0\0\0INFOINAM\x08\0\0\0Meeting\0", 28);
    for (const char* name : {"two words.wav", "'quoted' \"twice\".wav", "new\nline.wav", "latin \xe9\xff.wav",
                             "%20%s.wav", "file:a.wav", "-a.wav"}) {
        const std::filesystem::path path = folder() / name;
        std::filesystem::rename(file("named.wav", named), path);
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
        const bool isMovie = std::string_view(type.container).starts_with("mov");
        const auto path = record(type, kQualities[2], tone(kStereo, std::size_t{48000} * 12));
        const double size = static_cast<double>(std::filesystem::file_size(path));
        // One reader has it open while it shrinks; others open what is left.
        const Opened whole = open(path);
        for (const double share : {0.95, 0.8, 0.6, 0.4, 0.2, 700 / size, 100 / size, 44 / size, 12 / size, 1 / size}) {
            SCOPED_TRACE(testing::Message() << type.extension << ' ' << share);
            std::filesystem::resize_file(path, static_cast<std::uintmax_t>(size * share));
            const Opened cut = open(path);
            const double most = static_cast<double>(whole.length) * share * 1.03 + 3000;
            EXPECT_LE(static_cast<double>(cut.length), most);
            EXPECT_LE(m_durations.durationOfFile(path), most / 44100);
            // What is read already may come still.
            EXPECT_LE(static_cast<double>(readOn(whole)[0].size()), most + 110000);
            // A movie's tables stand at its end, and are gone.
            if (!isMovie && share >= 0.2) {
                EXPECT_GT(static_cast<double>(cut.length), most * 0.9);
                EXPECT_GT(levelOf(std::span(readOn(cut)[0]).last(20000)), -12);
            }
            whole.file->seek(0);
        }
    }
}

}  // namespace

}  // namespace tavi::test
