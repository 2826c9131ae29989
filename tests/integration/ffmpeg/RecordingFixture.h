#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <numbers>
#include <vector>

#include "adapters/ffmpeg/exporting/FfmpegAssets.h"
#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileRepair.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "integration/SoundProbe.h"
#include "sound/mp4/Mp4Finalizer.h"

namespace tavi::test {

struct Type {
    const char* extension;
    std::uint32_t formatID;
    const char* codec;
    const char* container;
    /// Frames in a packet: how much a file may be longer than what was written.
    int packet;
    /// Frames that stand before the first one written.
    int priming;
    double decibels;
    int bits = 8;
};

inline constexpr std::array<Type, 5> kTypes{{
    {"m4a", kAudioFormatAppleLossless, "alac", "mov,mp4,m4a,3gp,3g2,mj2", 1, 0, 0.5},
    {"wav", kAudioFormatLinearPCM, "pcm_u8", "wav", 1, 0, 1.5},
    {"caf", kAudioFormatAppleIMA4, "adpcm_ima_qt", "caf", 64, 0, 1.5},
    {"mp4", kAudioFormatMPEG4AAC, "aac", "mov,mp4,m4a,3gp,3g2,mj2", 1024, 0, 0.5},
    {"AAC", kAudioFormatMPEG4AAC, "aac", "aac", 1024, 1024, 0.5},
}};

struct Quality {
    double rate;
    int channels;
    int value;
};

inline constexpr std::array<Quality, 3> kQualities{{{8000, 1, 0}, {16000, 2, 64}, {44100, 2, 127}}};

inline std::vector<std::pair<Type, Quality>> allKinds() {
    std::vector<std::pair<Type, Quality>> all;
    for (const Type& type : kTypes) {
        for (const Quality& quality : kQualities) {
            all.emplace_back(type, quality);
        }
    }
    return all;
}

/// The largest difference between a stretch of a and all of b, as far as both go.
template <class T>
double difference(const std::vector<T>& a, std::size_t from, const std::vector<T>& b, std::size_t bFrom) {
    double largest = 0;
    for (std::size_t i = 0; bFrom + i < b.size() && from + i < a.size(); ++i) {
        largest = std::max(largest, std::abs(static_cast<double>(a[from + i]) - static_cast<double>(b[bFrom + i])));
    }
    return std::is_integral_v<T> ? largest / 32768 : largest;
}

/// How many frames a file has to which so many are written: a WAV file gets an even number of bytes.
inline std::int64_t storedFrames(const Type& type, const Quality& quality, std::int64_t frames) {
    const bool isOdd = type.formatID == kAudioFormatLinearPCM && type.bits / 8 * quality.channels * frames % 2 != 0;
    return frames + (isOdd ? 1 : 0);
}

inline AudioRecordSettings settingsFor(const Type& type, const Quality& quality) {
    AudioRecordSettings settings;
    settings.formatID = type.formatID;
    settings.sampleRate = quality.rate;
    settings.numberOfChannels = quality.channels;
    settings.linearPCMBitDepth = type.bits;
    settings.encoderAudioQuality = quality.value;
    settings.sampleRateConverterAudioQuality = quality.value;
    return settings;
}

/// Makes recordings in a folder of its own.
struct RecordingFixture : ::testing::Test {
    std::filesystem::path folder() const { return m_folder.path().toStdString(); }
    std::filesystem::path pathFor(const Type& type, const std::string& name = "recording") const {
        return folder() / (name + '.' + type.extension);
    }

    /// Interleaved frames of a tone that peaks at one half; only on the left where leftOnly.
    static std::vector<float> tone(const AudioInputFormat& format, std::size_t frames, bool leftOnly = false,
                                   double hertz = 1000) {
        std::vector<float> samples;
        samples.reserve(frames * static_cast<std::size_t>(format.channels));
        for (std::size_t i = 0; i < frames; ++i) {
            const double phase = 2 * std::numbers::pi * hertz * static_cast<double>(i) / format.sampleRate;
            const auto value = static_cast<float>(0.5 * std::sin(phase));
            samples.push_back(value);
            if (format.channels == 2) {
                samples.push_back(leftOnly ? 0.0F : value);
            }
        }
        return samples;
    }

    static std::unique_ptr<AudioFileWriter> begin(const std::filesystem::path& path,
                                                  const AudioRecordSettings& settings,
                                                  const AudioInputFormat& input = kStereo,
                                                  PwriteFunction pwrite = systemPwrite()) {
        auto writer = FfmpegAudioFileWriters(std::move(pwrite)).create(path, settings);
        const bool isReady = writer && (*writer)->setInputFormat(input);
        EXPECT_TRUE(isReady) << path;
        return isReady ? std::move(*writer) : nullptr;
    }

    /// Records samples over what is there, in blocks of odd sizes; as a killed program would leave it where it is not
    /// finished.
    std::filesystem::path record(const Type& type, const Quality& quality, const std::vector<float>& samples,
                                 const AudioInputFormat& input = kStereo, bool isFinished = true) {
        constexpr std::array<std::size_t, 6> kBlocks = {1, 479, 4801, 7, 1024, 9999};
        auto path = pathFor(type);
        std::filesystem::remove(path);
        const auto writer = begin(path, settingsFor(type, quality), input);
        const auto channels = static_cast<std::size_t>(input.channels);
        for (std::size_t at = 0, block = 0; writer && at < samples.size(); ++block) {
            const std::size_t count =
                std::min(kBlocks[block % kBlocks.size()], samples.size() / channels - at / channels);
            EXPECT_TRUE(writer->write(samples.data() + at, count) && (isFinished || writer->flush()));
            at += count * channels;
        }
        EXPECT_TRUE(!isFinished || writer->finish());
        return path;
    }

    std::filesystem::path file(const std::string& name, const QByteArray& bytes) const {
        QFile file(folder() / name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.filesystemFileName();
    }

    /// Turns what a killed program left into an ordinary file.
    static bool finalize(const std::filesystem::path& path) {
        const FileDescriptor file = FileDescriptor::open(path, O_RDWR);
        return finalizeMp4(file.get()).has_value();
    }

    static QByteArray contents(const std::filesystem::path& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// What FFmpeg's program makes of a file: what others bring in. Not by QProcess, whose way of forking hides the
    /// main thread's locks from ThreadSanitizer.
    std::filesystem::path converted(const std::filesystem::path& from, const char* name, const char* arguments) const {
        std::filesystem::path target = folder() / name;
        const std::string command =
            "ffmpeg -v error -nostdin -y -i '" + from.native() + "' " + arguments + " '" + target.native() + "'";
        EXPECT_EQ(std::system(command.c_str()), 0) << arguments;
        return target;
    }

    std::unique_ptr<AssetExportSession> session(const std::filesystem::path& from, const std::filesystem::path& to,
                                                AssetFileType type,
                                                AssetExportPreset preset = AssetExportPreset::Passthrough) {
        auto session = m_assets.exportSession(m_assets.assetWithURL(from), preset);
        if (session) {
            (*session)->setOutputURL(to);
            (*session)->setOutputFileType(type);
        }
        return session ? std::move(*session) : nullptr;
    }

    static AssetExportStatus run(AssetExportSession& session) {
        session.exportAsynchronously([] {});
        session.waitUntilFinished();
        return session.status();
    }

    static constexpr AudioInputFormat kStereo{48000, 2};

    QTemporaryDir m_folder;
    FfmpegAudioDuration m_durations;
    FfmpegAssets m_assets;
};

}  // namespace tavi::test
