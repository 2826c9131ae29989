#include <sys/stat.h>

#include <random>

#include "adapters/ffmpeg/Mp4Finalizer.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

class DurationTest : public RecordingFixture {
protected:
    QString file(const char* name, const QByteArray& bytes) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    QByteArray recording(const Type& type, bool isFinished) {
        const auto writer = begin(pathFor(type), settingsFor(type, kQualities[1]));
        EXPECT_TRUE(writer && writeBlocks(*writer, tone(kStereo, 120000), 2) && (!isFinished || writer->finish()));
        QFile file(pathFor(type));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        file.remove();
        return bytes;
    }
};

TEST_F(DurationTest, WhatIsNoSoundHasNoDuration) {
    QByteArray text;
    for (int i = 0; i < 5000; ++i) {
        text += "a line of text\n";
    }
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.wav"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(m_durations.durationOfFile(pipe), 0);
    EXPECT_EQ(m_durations.durationOfFile(m_folder.path()), 0);
    EXPECT_EQ(m_durations.durationOfFile(m_folder.filePath(QStringLiteral("missing.m4a"))), 0);
    EXPECT_EQ(m_durations.durationOfFile(QStringLiteral("http://localhost/sound.m4a")), 0);
    for (const char* name : {"a.m4a", "a.wav", "a.caf", "a.mp4", "a.aac", "a.txt", "a.mp3", "a.m3u8"}) {
        EXPECT_EQ(m_durations.durationOfFile(file(name, {})), 0) << name;
        EXPECT_EQ(m_durations.durationOfFile(file(name, text)), 0) << name;
        EXPECT_EQ(m_durations.durationOfFile(file(name, QByteArray(5000, '\0'))), 0) << name;
        EXPECT_EQ(m_durations.durationOfFile(file(name, QByteArray(5000, '\xff'))), 0) << name;
    }
}

TEST_F(DurationTest, FilesOfOtherProgramsAreRead) {
    // An AIFF file: one channel, 8 bits, 8000 Hz (as an 80-bit number), 12,000 frames.
    const QByteArray aiff = QByteArray(
                                "FORM\0\0\x2f\x0e"
                                "AIFFCOMM\0\0\0\x12\0\1\0\0\x2e\xe0\0\x08\x40\x0b\xfa\0\0\0\0\0\0\0"
                                "SSND\0\0\x2e\xe8\0\0\0\0\0\0\0\0",
                                54) +
                            QByteArray(12000, '\1');
    EXPECT_NEAR(m_durations.durationOfFile(file("other.aiff", aiff)), 1.5, 1e-6);
    // A WAV file of more than 4 GiB, mono, 16 bits, 8000 Hz; only its end is really there.
    QByteArray header(
        "RF64\xff\xff\xff\xffWAVEds64\x1c\0\0\0\0\0\0\0\1\0\0\0\0\0\0\0\2\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "fmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x80\x3e\0\0\2\0\x10\0"
        "data\xff\xff\xff\xff",
        80);
    const QString path = file("long.wav", header);
    ASSERT_TRUE(QFile::resize(path, 80 + (qint64{2} << 32)));
    EXPECT_NEAR(m_durations.durationOfFile(path), 536870.912 * 1.0, 1e-6);
}

TEST_F(DurationTest, DamagedRecordingsAreNeitherBelievedNorACrash) {
    std::mt19937 random(7);
    for (const Type& type : kTypes) {
        for (const bool isFinished : {true, false}) {
            SCOPED_TRACE(testing::Message() << type.extension << (isFinished ? "" : " interrupted"));
            const QByteArray whole = recording(type, isFinished);
            for (const int size : {1, 7, 11, 20, 33, 43, 100}) {
                const double seconds = m_durations.durationOfFile(file("cut", whole.left(size)));
                EXPECT_LT(seconds, type.priming > 0 || size > 43 ? 0.1 : 1e-9) << size;
            }
            for (int round = 0; round < 120; ++round) {
                QByteArray damaged = whole.left(static_cast<int>(random() % 4 == 0 ? random() % 9000 : 1000000U));
                for (auto count = random() % 8; count > 0 && !damaged.isEmpty(); --count) {
                    // Headers stand at both ends.
                    const auto at = static_cast<int>(random() % std::min(damaged.size(), qsizetype{900}));
                    damaged[random() % 2 == 0 ? at : static_cast<int>(damaged.size()) - 1 - at] =
                        static_cast<char>(random() % 3 == 0 ? 0xff : random());
                }
                const QString path = file("damaged", damaged);
                const double seconds = m_durations.durationOfFile(path);
                EXPECT_TRUE(seconds >= 0 && std::isfinite(seconds)) << round;
                // Either it can be made whole, or it is left as it is.
                if (!Mp4Finalizer::finalize(path)) {
                    EXPECT_EQ(QFile(path).size(), damaged.size());
                }
            }
        }
    }
}

}  // namespace

}  // namespace tavi::test
