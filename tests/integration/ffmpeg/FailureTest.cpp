#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <csignal>

#include "adapters/ffmpeg/Mp4Finalizer.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

bool isMp4(const Type& type) {
    return std::string_view(type.container).starts_with("mov");
}

/// Whether a recording in an MP4 file still has its first movie header, that of the fragments, behind the file type
/// box.
bool isFragmented(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(36).endsWith("moov");
}

class FailureTest : public RecordingFixture {
protected:
    void TearDown() override {
        setFileSizeLimit(RLIM_INFINITY);
        if (m_mounted) {
            ::umount2(QFile::encodeName(smallDisk()).constData(), MNT_DETACH);
        }
    }

    static void setFileSizeLimit(rlim_t bytes) {
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = std::min(bytes, limit.rlim_max);
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }

    QString smallDisk() const { return m_folder.filePath(QStringLiteral("disk")); }

    /// Mounts a file system of 5 MiB that only this process sees.
    bool mountSmallDisk() {
        QDir().mkpath(smallDisk());
        const QByteArray at = QFile::encodeName(smallDisk());
        m_mounted = ::unshare(CLONE_NEWNS) == 0 && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                    ::mount("tavi", at.constData(), "tmpfs", 0, "size=5m") == 0;
        return m_mounted;
    }

    /// Records seconds of tone and closes the file as a killed program would.
    void recordInterrupted(const QString& path, const Type& type, std::size_t seconds) {
        const auto writer = begin(path, settingsFor(type, kQualities[2]));
        ASSERT_TRUE(writer && writeBlocks(*writer, tone(kStereo, 48000 * seconds), 2));
    }

    void expectTone(const QString& path, double atLeast, double atMost) {
        const auto sound = decodeSound(path);
        ASSERT_TRUE(sound);
        const double seconds = static_cast<double>(sound->frames()) / sound->rate;
        EXPECT_GE(seconds, atLeast);
        EXPECT_LE(seconds, atMost);
        EXPECT_NEAR(m_durations.durationOfFile(path), seconds, 0.05);
        EXPECT_NEAR(frequencyOf(middleOf(sound->planes[0]), sound->rate), 1000, 1);
        EXPECT_NEAR(levelOf(middleOf(sound->planes[0])), -9.03, 1);
    }

    bool m_mounted = false;
};

TEST_F(FailureTest, AFullDiskLosesNothingThatWasWrittenBefore) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        int calls = 0;
        bool wasFull = false;
        const auto writer = begin(pathFor(type), settingsFor(type, kQualities[2]),
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
        ASSERT_TRUE(writer);
        const std::vector<float> second = tone(kStereo, 48000);
        int written = 0;
        Result<void> result;
        while (result && written < 60) {
            result = writer->write(second.data(), 48000);
            ++written;
        }
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().text, QStringLiteral("The disk is full."));
        EXPECT_FALSE(writer->write(second.data(), 48000));
        EXPECT_TRUE(writer->finish());
        // The block that met the full disk may have been taken in part.
        expectTone(pathFor(type), written - 1, written + 0.05);
        EXPECT_FALSE(isMp4(type) && isFragmented(pathFor(type)));
    }
}

TEST_F(FailureTest, ARealFullDiskLeavesAWholeFile) {
    if (!mountSmallDisk()) {
        GTEST_SKIP() << "mounting is not allowed here; the test before this one does it without";
    }
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        const QString path = smallDisk() + QLatin1String("/recording.") + QString::fromLatin1(type.extension);
        const auto writer = begin(path, settingsFor(type, kQualities[2]));
        ASSERT_TRUE(writer);
        const std::vector<float> second = tone(kStereo, 48000);
        Result<void> result;
        int written = 0;
        for (; result && written < 3000; ++written) {
            result = writer->write(second.data(), 48000);
        }
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().text, QStringLiteral("The disk is full."));
        EXPECT_TRUE(writer->finish());
        expectTone(path, written - 1, written + 0.05);
        EXPECT_FALSE(isMp4(type) && isFragmented(path));
        ASSERT_TRUE(QFile::remove(path));
    }
}

TEST_F(FailureTest, AFileThatMayNotGrowKeepsWhatFitted) {
    std::signal(SIGXFSZ, SIG_IGN);
    for (const Type& type : kTypes) {
        const auto writer = begin(pathFor(type), settingsFor(type, kQualities[2]));
        ASSERT_TRUE(writer);
        const std::vector<float> second = tone(kStereo, 48000);
        Result<void> result;
        setFileSizeLimit(200001);
        for (int i = 0; i < 100 && result; ++i) {
            result = writer->write(second.data(), 48000);
        }
        const Result<void> finished = writer->finish();
        setFileSizeLimit(RLIM_INFINITY);
        SCOPED_TRACE(type.extension);
        ASSERT_FALSE(result);
        EXPECT_TRUE(result.error().text.startsWith(QLatin1String("The recording could not be written: ")));
        EXPECT_TRUE(finished);
        EXPECT_LE(QFile(pathFor(type)).size(), 200001);
        expectTone(pathFor(type), 0.9, 100);
    }
}

TEST_F(FailureTest, AnInterruptedRecordingCanBeReadAndMadeWhole) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        const QString path = pathFor(type);
        recordInterrupted(path, type, 6);
        expectTone(path, 4.5, 6);
        if (!isMp4(type)) {
            continue;
        }
        EXPECT_TRUE(isFragmented(path));
        // The last fragment is cut off in the middle.
        ASSERT_TRUE(QFile::resize(path, QFile(path).size() - 99));
        ASSERT_TRUE(Mp4Finalizer::finalize(path));
        EXPECT_FALSE(isFragmented(path));
        expectTone(path, 3.5, 5.1);
        const auto sound = decodeSound(path);
        EXPECT_NEAR(sound->start, 0, 1e-9);
        EXPECT_NEAR(sound->duration, m_durations.durationOfFile(path), 1e-5);
        EXPECT_NEAR(decodeSound(path, 2.5)->start, 2.5, 0.1);
        const qint64 size = QFile(path).size();
        EXPECT_TRUE(Mp4Finalizer::finalize(path));
        EXPECT_EQ(QFile(path).size(), size);
    }
}

TEST_F(FailureTest, FinalizingCanFailAtAnyWriteAndBeDoneAgain) {
    const Type& type = kTypes[3];
    recordInterrupted(pathFor(type), type, 6);
    const QString path = pathFor(type, "copy");
    for (int failing = 0;; ++failing) {
        SCOPED_TRACE(failing);
        QFile::remove(path);
        ASSERT_TRUE(QFile::copy(pathFor(type), path));
        const FileDescriptor file = FileDescriptor::open(path, O_RDWR);
        int calls = 0;
        const Result<void> result = Mp4Finalizer::finalize(
            file.get(), [&](int fd, const void* data, std::size_t size, off_t offset) -> ssize_t {
                if (calls++ == failing) {
                    errno = ENOSPC;
                    return -1;
                }
                return ::pwrite(fd, data, size, offset);
            });
        EXPECT_EQ(result.has_value(), failing >= calls);
        EXPECT_EQ(isFragmented(path), !result);
        expectTone(path, 4.5, 6);
        if (result) {
            EXPECT_GE(calls, 3);
            break;
        }
        EXPECT_TRUE(Mp4Finalizer::finalize(path));
        EXPECT_FALSE(isFragmented(path));
        expectTone(path, 4.5, 6);
    }
}

TEST_F(FailureTest, RecordingsBeyondFourGigabytesAreMadeWhole) {
    const Type& type = kTypes[0];
    recordInterrupted(pathFor(type), type, 6);
    QFile original(pathFor(type));
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const QByteArray bytes = original.readAll();
    // A hole of 5 GiB, as a box to be skipped, between the first fragment and the others.
    const auto second = bytes.indexOf("moof", bytes.indexOf("moof") + 4) - 4;
    const qint64 hole = qint64{5} << 30;
    const QByteArray skipped("\0\0\0\1free\0\0\0\1\x40\0\0\0", 16);
    QFile file(pathFor(type, "long"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.left(second) + skipped);
    file.seek(second + hole);
    file.write(bytes.mid(second));
    file.close();
    ASSERT_TRUE(Mp4Finalizer::finalize(file.fileName()));
    EXPECT_FALSE(isFragmented(file.fileName()));
    expectTone(file.fileName(), 4.5, 6);
    EXPECT_EQ(decodeSound(file.fileName())->planes, decodeSound(pathFor(type))->planes);
}

}  // namespace

}  // namespace tavi::test
