#include <sys/stat.h>
#include <unistd.h>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "adapters/ffmpeg/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/FfmpegExtAudioFiles.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "support/ManualRunLoop.h"
#include "support/WavFile.h"

namespace tavi::test {

namespace {

class WaveformTest : public RecordingFixture {
protected:
    WaveformTest() { EZAudioUtilities::setShouldExitOnCheckResultFail(false); }
    ~WaveformTest() override { EZAudioUtilities::setShouldExitOnCheckResultFail(true); }

    static std::string bytesOf(const QString& path) { return QFile::encodeName(path).toStdString(); }

    std::shared_ptr<EZAudioFile> open(const QString& path) {
        return EZAudioFile::audioFileWithURL(bytesOf(path), {m_files, m_converters, m_runLoop});
    }

    /// Records 1000 Hz at half of full scale on the left and at a tenth on the right.
    QString recorded(const Type& type, const Quality& quality, double seconds) {
        std::vector<float> samples = tone(kStereo, static_cast<std::size_t>(seconds * 48000));
        for (std::size_t i = 1; i < samples.size(); i += 2) {
            samples[i] *= 0.2F;
        }
        return record(type, quality, samples);
    }

    /// A WAV file whose samples are all a quarter of full scale.
    static QByteArray wav(int channels, int rate, int frames) {
        return wavFile(channels, rate, 32, QByteArray("\0\0\x80\x3e", 4).repeated(channels * frames));
    }

    FfmpegExtAudioFiles m_files;
    FfmpegAudioConverters m_converters;
    ManualRunLoop m_runLoop;
};

double decibels(float value) {
    return 20 * std::log10(static_cast<double>(value));
}

TEST_F(WaveformTest, EveryRecordableTypeShowsTheLevelOfItsSound) {
    for (const Type& type : kTypes) {
        for (const Quality& quality : kQualities) {
            SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate);
            // So long that two readers share it.
            const auto data = open(recorded(type, quality, 33))->getWaveformDataWithNumberOfPoints(40);
            ASSERT_TRUE(data);
            ASSERT_EQ(data->numberOfChannels(), 2);
            const double allowed = type.formatID == kAudioFormatAppleLossless ? 0.1 : 1;
            for (int channel = 0; channel < 2; ++channel) {
                const double amplitude = quality.channels == 1 ? 0.3 : channel == 0 ? 0.5 : 0.1;
                const double level = 20 * std::log10(amplitude) - 3.0103;
                for (std::uint32_t point = 1; point < 39; ++point) {
                    EXPECT_NEAR(decibels(data->bufferForChannel(channel)[point]), level, allowed) << point;
                }
            }
        }
    }
}

TEST_F(WaveformTest, WhatIsNoSoundIsSaidSo) {
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.wav"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    struct Case {
        QString path;
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
        {file(QStringLiteral("channels.caf"), channels), kAudioFileUnsupportedDataFormatError},
        {m_folder.filePath(QStringLiteral("missing.m4a")), kAudioFileFileNotFoundError},
        {QStringLiteral("http://localhost/a.m4a"), kAudioFileFileNotFoundError},
        {QString(), kAudioFileFileNotFoundError},
        {m_folder.path(), kAudioFileUnsupportedFileTypeError},
        {pipe, kAudioFileUnsupportedFileTypeError},
        {QStringLiteral("/dev/zero"), kAudioFileUnsupportedFileTypeError},
        {file(QStringLiteral("list.m3u8"), "#EXTM3U\n#EXTINF:1,\nfile:///etc/passwd\n"),
         kAudioFileUnsupportedFileTypeError},
    };
    for (const char* extension : {"m4a", "wav", "caf", "aac", "mp3", "m3u8"}) {
        for (const QByteArray& bytes : {QByteArray(), QByteArray("a line of text\n").repeated(3000),
                                        QByteArray(5000, '\0'), QByteArray(5000, '\xff')}) {
            const QString name = QStringLiteral("%1.%2").arg(cases.size()).arg(QLatin1String(extension));
            cases.push_back({file(name, bytes), kAudioFileUnsupportedFileTypeError});
        }
    }
    for (const Case& sound : cases) {
        std::unique_ptr<ExtAudioFile> opened;
        EXPECT_EQ(m_files.open(bytesOf(sound.path), opened), sound.status) << qPrintable(sound.path);
        EXPECT_FALSE(opened);
        // A file may tell its length and yet not be fit to be read.
        EXPECT_LE(m_durations.durationOfFile(sound.path), sound.status == kAudioFileUnsupportedDataFormatError ? 1 : 0)
            << qPrintable(sound.path);
    }
    const QString secret = file(QStringLiteral("secret.wav"), wav(1, 8000, 10));
    ASSERT_EQ(::chmod(QFile::encodeName(secret).constData(), 0), 0);
    std::unique_ptr<ExtAudioFile> opened;
    EXPECT_EQ(m_files.open(bytesOf(secret), opened), ::geteuid() == 0 ? kAudioNoError : kAudioFilePermissionsError);
    // A sound file without sound, of which nothing can be read.
    for (const QByteArray& bytes : {wav(1, 8000, 0), wav(1, 8000, 0).left(40), wav(0, 8000, 10), wav(2, 0, 10)}) {
        const auto reader = open(file(QStringLiteral("none.wav"), bytes));
        ASSERT_TRUE(reader);
        EXPECT_EQ(reader->totalFrames(), 0);
        const auto data = reader->getWaveformData();
        EXPECT_TRUE(!data || std::isnan(data->bufferForChannel(0)[0]));
    }
}

TEST_F(WaveformTest, OddFilesAndNamesAreRead) {
    for (const auto& [channels, rate, frames] : {std::tuple(8, 8000, 4000), std::tuple(1, 192000, 96000),
                                                 std::tuple(1, 44100, 1), std::tuple(6, 22050, 11025)}) {
        const auto reader = open(file(QStringLiteral("odd.m4a"), wav(channels, rate, frames)));
        ASSERT_TRUE(reader);
        EXPECT_EQ(reader->totalFrames(), frames);
        EXPECT_EQ(reader->fileFormat().channelsPerFrame, static_cast<std::uint32_t>(channels));
        const auto data = reader->getWaveformDataWithNumberOfPoints(1);
        ASSERT_TRUE(data);
        EXPECT_GT(data->bufferForChannel(1)[0], 0.05F) << channels;
        EXPECT_LE(data->bufferForChannel(1)[0], 0.2501F) << channels;
    }
    for (const char* name : {"two words.wav", "'quoted' \"twice\".wav", "new\nline.wav", "latin \xe9\xff.wav",
                             "%20%s.wav", "file:a.wav", "-a.wav"}) {
        const std::string path = bytesOf(m_folder.path()) + "/" + name;
        FILE* out = std::fopen(path.c_str(), "wb");
        const QByteArray bytes = wav(2, 8000, 4000) + QByteArray("LIST\x14\0\0\0INFOINAM\x08\0\0\0Meeting\0", 28);
        ASSERT_TRUE(out != nullptr && std::fwrite(bytes.constData(), 1, 32072, out) == 32072) << name;
        std::fclose(out);
        const auto reader = EZAudioFile::audioFileWithURL(path, {m_files, m_converters, m_runLoop});
        ASSERT_TRUE(reader) << name;
        EXPECT_EQ(reader->totalFrames(), 4000) << name;
        EXPECT_EQ(reader->metadata()["title"], "Meeting") << name;
        // Qt would not find it by this name.
        EXPECT_EQ(std::remove(path.c_str()), 0);
    }
}

TEST_F(WaveformTest, FilesBeyondFourGigabytesHaveTheirWholeLength) {
    // Mono, 16 bits, 8000 Hz.
    const QByteArray header(
        "RF64\xff\xff\xff\xffWAVEds64\x1c\0\0\0\0\0\0\0\1\0\0\0\0\0\0\0\2\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "fmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x80\x3e\0\0\2\0\x10\0"
        "data\xff\xff\xff\xff",
        80);
    const QString path = file(QStringLiteral("long.wav"), header);
    ASSERT_TRUE(QFile::resize(path, 80 + (qint64{2} << 32)));
    EXPECT_NEAR(m_durations.durationOfFile(path), 536870.912, 1e-6);
    EXPECT_EQ(open(path)->totalFrames(), qint64{1} << 32);
}

TEST_F(WaveformTest, FilesThatEndTooSoonAreReadAsFarAsTheyGo) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.extension);
        const QString path = recorded(type, kQualities[2], 40);
        const std::int64_t whole = open(path)->totalFrames();
        const std::int64_t size = QFile(path).size();
        // While a reader has it open.
        const auto reader = open(path);
        ASSERT_TRUE(QFile::resize(path, size * 6 / 10));
        const auto data = reader->getWaveformDataWithNumberOfPoints(100);
        EXPECT_TRUE(!data || std::isnan(data->bufferForChannel(0)[99]));
        // And before one opens it. A movie's tables may stand at its end, and be gone.
        const auto cut = open(path);
        EXPECT_LT(cut->totalFrames(), whole * 62 / 100);
        if (!std::string_view(type.container).starts_with("mov")) {
            EXPECT_GT(cut->totalFrames(), whole * 58 / 100);
        }
        const auto rest = cut->getWaveformDataWithNumberOfPoints(100);
        EXPECT_TRUE(!rest || decibels(rest->bufferForChannel(0)[98]) > -12);
        for (const int bytes : {1, 12, 44, 100, 700}) {
            ASSERT_TRUE(QFile::resize(path, bytes));
            const auto header = open(path);
            ASSERT_TRUE(header);
            EXPECT_LT(header->totalFrames(), 3000) << bytes;
            EXPECT_LT(m_durations.durationOfFile(path), 0.1) << bytes;
        }
    }
}

}  // namespace

}  // namespace tavi::test
