#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include "files/PositionedIo.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

bool isMp4(const Type& type) {
    return std::string_view(type.container).starts_with("mov");
}

/// Whether a recording in an MP4 file still has its first movie header, that of the fragments, behind the file type
/// box.
bool isFragmented(const std::filesystem::path& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(36).endsWith("moov");
}

/// What may not have been written yet: the packets of a fragment.
constexpr double kFragmentSeconds = 1;

class FailureTest : public RecordingFixture {
protected:
    /// Six seconds of tone in a file as a killed program would leave it.
    std::filesystem::path recordInterrupted(const Type& type) {
        return record(type, kQualities[2], tone(kStereo, std::size_t{48000} * 6), kStereo, false);
    }

    /// Records until a write fails and ends the file, which then holds what was written before, but for some seconds.
    void recordUntilItFails(const Type& type, const char* text, const PwriteFunction& pwrite = systemPwrite(),
                            double lost = 0) {
        SCOPED_TRACE(type.extension);
        const auto writer = begin(pathFor(type), settingsFor(type, kQualities[2]), pwrite);
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
        EXPECT_FALSE(isMp4(type) && isFragmented(pathFor(type)));
        EXPECT_TRUE(type.formatID != kAudioFormatLinearPCM || QFile(pathFor(type)).size() % 2 == 0) << "half a frame";
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

TEST_F(FailureTest, AFullDiskLosesNothingThatWasWrittenBefore) {
    for (const Type& type : kTypes) {
        int calls = 0;
        bool wasFull = false;
        recordUntilItFails(type, "The disk is full.",
                           [&](int fd, const void* data, std::size_t size, off_t offset) -> ssize_t {
                               // An interruption, a short write, and then, once, a full disk.
                               ++calls;
                               if (calls == 2 || (offset > 60000 && !wasFull)) {
                                   wasFull = offset > 60000;
                                   errno = wasFull ? ENOSPC : EINTR;
                                   return -1;
                               }
                               return ::pwrite(fd, data, calls == 3 ? 1 : size, offset);
                           });
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
    ::umount2(disk.constData(), MNT_DETACH);
}

TEST_F(FailureTest, AFileThatMayNotGrowKeepsWhatFitted) {
    for (const Type& type : kTypes) {
        recordUntilItFails(
            type, "The recording could not be written: ",
            [](int fd, const void* data, std::size_t size, off_t offset) -> ssize_t {
                errno = EFBIG;
                return offset >= 200001 ? -1 : ::pwrite(fd, data, std::min<std::size_t>(size, 200001 - offset), offset);
            },
            kFragmentSeconds);
    }
}

TEST_F(FailureTest, AnInterruptedRecordingCanBeReadAndMadeWhole) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        const auto path = recordInterrupted(type);
        expectTone(path, 4.5, 6);
        if (!isMp4(type)) {
            continue;
        }
        EXPECT_TRUE(isFragmented(path));
        // The last fragment is cut off in the middle.
        std::filesystem::resize_file(path, QFile(path).size() - 99);
        ASSERT_TRUE(finalize(path));
        EXPECT_FALSE(isFragmented(path));
        expectTone(path, 3.5, 5.1);
        const qint64 size = QFile(path).size();
        EXPECT_TRUE(finalize(path));
        EXPECT_EQ(QFile(path).size(), size);
    }
}

}  // namespace

}  // namespace tavi::test
