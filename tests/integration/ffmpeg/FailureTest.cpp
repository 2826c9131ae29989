#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <fstream>
#include <mutex>
#include <random>
#include <semaphore>

#include "files/PositionedIo.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "sound/SoundRepair.h"

namespace tavi::test {

namespace {

/// Whether a recording in an MP4 file still has its first movie header, that of the fragments, behind the file type
/// box.
bool isFragmented(const std::filesystem::path& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(36).endsWith("moov");
}

struct FailureTest : RecordingFixture {
    /// Records until a write fails and ends the file, which then holds what was written before, but for some seconds.
    void recordUntilItFails(const Type& type, const char* text, double lost = 0,
                            const PwriteFunction& pwrite = systemPwrite()) {
        SCOPED_TRACE(type.extension);
        std::filesystem::remove(pathFor(type));
        const auto writer = begin(pathFor(type), settingsFor(type, kQualities[2]), kStereo, pwrite);
        ASSERT_TRUE(writer);
        const std::vector<float> second = tone(kStereo, 48000);
        int written = 0;
        Result<void> result;
        for (; result && written < 3000; ++written) {
            result = writer->write(second.data(), 48000);
        }
        ASSERT_FALSE(result);
        EXPECT_TRUE(result.error().text.startsWith(QLatin1String(text))) << qPrintable(result.error().text);
        EXPECT_FALSE(writer->write(second.data(), 48000));
        EXPECT_TRUE(writer->finish());
        // The block that met the failure may have been taken in part.
        expectTone(pathFor(type), written - 1 - lost, written + 0.05);
        EXPECT_FALSE(isFragmented(pathFor(type)));
        EXPECT_FALSE(contents(pathFor(type)).contains(QByteArray(512, '\0'))) << "a hole";
        EXPECT_TRUE(type.formatID != kAudioFormatLinearPCM || QFile(pathFor(type)).size() % 2 == 0) << "half a frame";
    }

    /// Whether it holds sound.
    static bool repaired(const std::filesystem::path& path, const PwriteFunction& pwrite = systemPwrite()) {
        return repairSound(FileDescriptor::open(path, O_RDWR).get(), pwrite).value_or(false);
    }

    void expectTone(const std::filesystem::path& path, double atLeast, double atMost) {
        const auto sound = decodeSound(path);
        ASSERT_TRUE(sound);
        const double seconds = static_cast<double>(sound->frames()) / sound->rate;
        EXPECT_GE(seconds, atLeast);
        EXPECT_LE(seconds, atMost);
        EXPECT_NEAR(m_durations.durationOfFile(path), seconds, 0.05);
        EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 1000, 1);
        EXPECT_NEAR(levelOf(middleOf(sound->planes[0])), -9.03, 1);
    }
};

TEST_F(FailureTest, AFileThatMayNotGrowKeepsWhatFitted) {
    constexpr off_t kMuch = off_t{1} << 30;
    struct Failure {
        int error;
        off_t room;
        /// What the reserve of a full disk still gives.
        off_t more;
        /// Seconds that may be missing: the packets of a fragment.
        double lost;
        const char* text;
    };
    for (const Failure& failure : {Failure{EFBIG, 200001, 0, 1, "The recording could not be written: "},
                                   {ENOSPC, 200001, 1000, 1, "The disk is full."},
                                   {ENOSPC, 60001, kMuch, 0, "The disk is full."}}) {
        for (const Type& type : kTypes) {
            int calls = 0;
            off_t end = failure.room;
            int failures = 0;
            // An interruption and a short write before; after the failure there is room again, too late.
            const auto pwrite = [&](int fd, const void* data, std::size_t size, off_t offset) -> ssize_t {
                ++calls;
                if (calls == 2 || offset >= end) {
                    errno = calls == 2 ? EINTR : failure.error;
                    failures += calls == 2 ? 0 : 1;
                    end = calls == 2                              ? end
                          : failures < (failure.more > 0 ? 2 : 1) ? failure.room + failure.more
                                                                  : kMuch;
                    return -1;
                }
                return ::pwrite(fd, data, calls == 3 ? 1 : std::min(size, static_cast<std::size_t>(end - offset)),
                                offset);
            };
            recordUntilItFails(type, failure.text, failure.lost, pwrite);
            EXPECT_TRUE(type.formatID != kAudioFormatLinearPCM || failure.lost == 0 ||
                        QFile(pathFor(type)).size() == 200000 + failure.more);
        }
    }
}

TEST_F(FailureTest, ARealFullDiskLeavesAWholeFile) {
    // Only this process sees it.
    const QByteArray disk = QFile::encodeName(m_folder.path());
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tavi", disk.constData(), "tmpfs", 0, "size=5m") != 0) {
        GTEST_SKIP() << "mounting is not allowed here; the test before this one does it without";
    }
    for (const Type& type : kTypes) {
        recordUntilItFails(type, "The disk is full.");
        EXPECT_TRUE(std::filesystem::remove(pathFor(type)));
    }
    // Others can fill it in a pause, too.
    const auto writer = begin(pathFor(kTypes[0]), settingsFor(kTypes[0], kQualities[0]), {8000, 1});
    ASSERT_TRUE(writer->write(tone({8000, 1}, 480000).data(), 480000) && writer->pause());
    std::ofstream(folder() / "other") << std::string(std::size_t{8} << 20, 'x');
    EXPECT_TRUE(writer->finish());
    EXPECT_FALSE(isFragmented(pathFor(kTypes[0])));
    ::umount2(disk.constData(), MNT_DETACH);
}

TEST_F(FailureTest, AKillLosesWhatTheCodecHoldsAndNothingElse) {
    const std::vector<float> tenth = tone(kStereo, 4801);
    for (const auto& [type, quality] : allKinds()) {
        SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate);
        std::filesystem::remove(pathFor(type));
        const auto writer = begin(pathFor(type), settingsFor(type, quality));
        const double packet = type.packet / quality.rate;
        for (int written = 1; written <= 27; ++written) {
            ASSERT_TRUE(writer->write(tenth.data(), 4801));
            if (written % 4 == 3) {
                const bool isPaused = written % 8 == 7;
                ASSERT_TRUE(isPaused ? writer->pause() : writer->flush());
                const auto kept = decodeSound(file("killed", contents(pathFor(type))));
                const double seconds = kept ? (static_cast<double>(kept->frames()) - type.priming) / kept->rate : 0;
                EXPECT_LE(writer->secondsHeld(), type.packet == 1024 ? 3 * packet : 0.1);
                const double held = (isPaused && type.packet != 1024 ? packet : writer->secondsHeld()) + 0.003;
                EXPECT_GE(seconds, written / 10.0 - held) << written;
                const bool isOdd =
                    kept && type.formatID == kAudioFormatLinearPCM && kept->frames() * quality.channels % 2 != 0;
                EXPECT_FALSE(isOdd) << "some players give up at the byte that pads";
            }
        }
        ASSERT_TRUE(writer->finish());
        EXPECT_NEAR(m_durations.durationOfFile(pathFor(type)), 27 * 4801 / 48000.0,
                    (type.packet == 1 ? 1.6 : 2) * packet);
        const auto sound = decodeSound(pathFor(type));
        EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 1000, 1);
        EXPECT_NEAR(levelOf(middleOf(sound->planes[0])), -9.03, type.decibels);
    }
}

TEST_F(FailureTest, APowerCutTakesLessThanFiveSecondsWhateverPagesItLeaves) {
    constexpr qsizetype kPage = 4096;
    const std::vector<float> sound = tone(kStereo, 19200);
    std::minstd_rand random(1);
    for (const Type& type : kTypes) {
        QByteArray written;
        QByteArray onDisk;
        std::counting_semaphore<> synced(0);
        const auto pwrite = [&](int fd, const void* data, std::size_t size, off_t offset) {
            written.resize(std::max<qsizetype>(written.size(), offset + static_cast<qsizetype>(size)), '\0');
            std::copy_n(static_cast<const char*>(data), size, written.begin() + offset);
            return ::pwrite(fd, data, size, offset);
        };
        const auto sync = [&](int) {
            synced.release();
            return 0;
        };
        auto writer = FfmpegAudioFileWriters(pwrite, sync).create(pathFor(type), settingsFor(type, kQualities[1]));
        ASSERT_TRUE(writer && (*writer)->setInputFormat(kStereo));
        for (int flushes = 1; flushes <= 40; ++flushes) {
            ASSERT_TRUE((*writer)->write(sound.data(), 19200) && (*writer)->flush());
            onDisk.resize(written.size(), '\0');
            for (int cuts = 0; cuts < (flushes % 4 == 0 ? 3 : 0); ++cuts) {
                QByteArray left = written;
                for (qsizetype page = 0; page < left.size(); page += kPage) {
                    left.replace(page, kPage, (random() % 2 == 0 ? onDisk : written).mid(page, kPage));
                }
                const auto path = file("left", left);
                EXPECT_TRUE(repaired(path) || flushes < 12) << type.extension << flushes;
                EXPECT_GT(m_durations.durationOfFile(path), 0.4 * flushes - 5) << type.extension << flushes;
            }
            if (flushes % 9 == 0) {
                // It is asked for now.
                ASSERT_TRUE(synced.try_acquire_for(std::chrono::seconds(20)));
                onDisk = written;
            }
        }
        writer->reset();
        EXPECT_FALSE(synced.try_acquire()) << "the disk is asked more often than need be";
    }
}

TEST_F(FailureTest, ASlowDiskStallsNothingAndItsErrorIsToldAtTheEnd) {
    std::mutex disk;
    std::uintmax_t size = 0;
    const auto path = pathFor(kTypes[1]);
    const auto sync = [&](int) {
        const std::lock_guard lock(disk);
        size = std::filesystem::file_size(path);
        errno = EIO;
        return -1;
    };
    const auto writer =
        FfmpegAudioFileWriters(systemPwrite(), sync).create(path, settingsFor(kTypes[1], kQualities[0]));
    ASSERT_TRUE(writer && (*writer)->setInputFormat(kStereo));
    const std::vector<float> second = tone(kStereo, 48000);
    {
        const std::lock_guard slow(disk);
        for (int i = 0; i < 30; ++i) {
            ASSERT_TRUE((*writer)->write(second.data(), 48000) && (*writer)->flush());
        }
    }
    EXPECT_TRUE((*writer)->sync());
    EXPECT_GE(size, 30U * 8000);
    EXPECT_FALSE((*writer)->finish());
}

TEST_F(FailureTest, WhatWasInterruptedAnywhereIsMadeWholeOnce) {
    for (const auto& [type, quality] : allKinds()) {
        const auto path = record(type, quality, tone(kStereo, std::size_t{48000} * 2), kStereo, false);
        const QByteArray all = contents(path);
        for (int step = 0; step <= 13; ++step) {
            SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate << " " << step);
            const auto after = file("after", all.first(all.size() * step / 13));
            const double whole = m_durations.durationOfFile(after);
            const bool hasSound = repaired(after);
            const double seconds = m_durations.durationOfFile(after);
            const double packet = (type.packet + 1.0) / quality.rate;
            EXPECT_EQ(hasSound, seconds * quality.rate > type.priming);
            EXPECT_NEAR(seconds, whole, packet);
            // FFmpeg wants a few packets to know what it is.
            if (seconds > 0.3) {
                const auto sound = decodeSound(after);
                ASSERT_TRUE(sound);
                EXPECT_NEAR(static_cast<double>(sound->frames()) / quality.rate, seconds, packet);
                EXPECT_FALSE(isFragmented(after));
                EXPECT_TRUE(type.formatID != kAudioFormatLinearPCM || QFile(after).size() % 2 == 0);
            }
            const QByteArray once = contents(after);
            EXPECT_EQ(repaired(after), hasSound);
            EXPECT_EQ(contents(after), once) << "a whole file is changed";
        }
    }
    EXPECT_FALSE(FfmpegAudioFileRepair().repair(folder() / "none.wav"));
    EXPECT_FALSE(FfmpegAudioFileRepair().repair(file("strange", QByteArray(100'000, 'x'))));
}

TEST_F(FailureTest, ADiskThatIsFullAtAnyWriteLosesNothingThatWasOnIt) {
    const std::vector<float> sound = tone(kStereo, 19200);
    int calls = 0;
    int room = 0;
    const PwriteFunction pwrite = [&](int fd, const void* data, std::size_t size, off_t offset) {
        errno = ENOSPC;
        return calls++ < room ? ::pwrite(fd, data, size, offset) : -1;
    };
    for (const Type& type : kTypes) {
        const AudioRecordSettings settings = settingsFor(type, kQualities[2]);
        bool isWhole = false;
        for (room = 0; !isWhole; ++room) {
            SCOPED_TRACE(testing::Message() << type.extension << " " << room);
            calls = 0;
            int blocks = 0;
            std::filesystem::remove(pathFor(type));
            auto writer = FfmpegAudioFileWriters(pwrite).create(pathFor(type), settings);
            if (!writer) {
                continue;
            }
            ASSERT_TRUE((*writer)->setInputFormat(kStereo));
            while (blocks < 8 && (*writer)->write(sound.data(), 19200) && (*writer)->flush()) {
                ++blocks;
            }
            isWhole = (*writer)->finish() && blocks == 8;
            EXPECT_TRUE(!isWhole || calls <= room) << "nothing was said";
            EXPECT_TRUE(repaired(pathFor(type)) || blocks == 0);
            EXPECT_GE(m_durations.durationOfFile(pathFor(type)), 0.4 * blocks - 0.1);
        }
        const auto left = record(type, kQualities[2], tone(kStereo, 96000), kStereo, false);
        const double whole = m_durations.durationOfFile(left);
        calls = 1;
        for (room = 0; calls > room; ++room) {
            SCOPED_TRACE(testing::Message() << type.extension << " repaired " << room);
            calls = 0;
            const auto copy = file("copy", contents(left));
            repaired(copy, pwrite);
            EXPECT_NEAR(m_durations.durationOfFile(copy), whole, 0.001);
            EXPECT_TRUE(repaired(copy) && !isFragmented(copy));
            EXPECT_NEAR(m_durations.durationOfFile(copy), whole, 0.001);
        }
    }
}

TEST_F(FailureTest, AWavFileOfMoreThanFourGigabytesIsCompletedAsRf64) {
    const auto path = record(kTypes[1], kQualities[0], tone(kStereo, 48000), kStereo, false);
    const auto header = static_cast<std::uintmax_t>(contents(path).indexOf("data") + 8);
    std::filesystem::resize_file(path, header + (5ULL << 30));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::Append) && file.write("sound") == 5);
    file.close();
    EXPECT_EQ(FfmpegAudioFileRepair().repair(path), true);
    EXPECT_EQ(std::filesystem::file_size(path), header + (5ULL << 30) + 4);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.read(4) == "RF64");
    EXPECT_EQ(m_durations.durationOfFile(path) * 8000, (5ULL << 30) + 4);
}

}  // namespace

}  // namespace tavi::test
