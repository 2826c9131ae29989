#include <sys/stat.h>
#include <unistd.h>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "adapters/ffmpeg/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/FfmpegExtAudioFiles.h"
#include "integration/ffmpeg/RecordingFixture.h"
#include "support/ClientBuffers.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {

namespace {

/// Opens one file and no more.
class OneFile : public ExtAudioFiles {
public:
    AudioStatus open(const std::string& path, std::unique_ptr<ExtAudioFile>& file) override {
        return m_opened++ == 0 ? m_files.open(path, file) : kAudioFilePermissionsError;
    }

private:
    FfmpegExtAudioFiles m_files;
    int m_opened = 0;
};

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
        const QString path = pathFor(type);
        QFile::remove(path);
        const auto writer = begin(path, settingsFor(type, quality));
        std::vector<float> samples = tone(kStereo, static_cast<std::size_t>(seconds * 48000));
        for (std::size_t i = 1; i < samples.size(); i += 2) {
            samples[i] *= 0.2F;
        }
        EXPECT_TRUE(writer && writeBlocks(*writer, samples, 2) && writer->finish());
        return path;
    }

    QString file(const QString& name, const QByteArray& bytes) const {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    /// A WAV file of 32-bit floats.
    static QByteArray wav(int channels, int rate, int frames) {
        QByteArray bytes("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\3\0\0\0\0\0\0\0\0\0\0\0\0\0\x20\0data\0\0\0\0", 44);
        const auto put = [&](int at, int value, int size) {
            std::memcpy(bytes.data() + at, &value, static_cast<std::size_t>(size));
        };
        put(22, channels, 2);
        put(24, rate, 4);
        put(28, rate * channels * 4, 4);
        put(32, channels * 4, 2);
        put(40, frames * channels * 4, 4);
        for (int i = 0; i < frames * channels; ++i) {
            const float value = 0.25F;
            bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        }
        return bytes;
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
            const auto reader = open(recorded(type, quality, 10));
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
                    EXPECT_NEAR(decibels(data->bufferForChannel(channel)[point]), level, allowed) << point;
                }
            }
        }
    }
}

TEST_F(WaveformTest, TwoReadersGiveWhatOneGives) {
    for (const Type& type : kTypes) {
        for (const Quality& quality : {kQualities[0], kQualities[2]}) {
            SCOPED_TRACE(testing::Message() << type.extension << " " << quality.rate);
            const QString path = recorded(type, quality, 33);
            const auto shared = open(path)->getWaveformData();
            OneFile one;
            const auto alone =
                EZAudioFile::audioFileWithURL(bytesOf(path), {one, m_converters, m_runLoop})->getWaveformData();
            ASSERT_TRUE(shared && alone);
            const double allowed = type.formatID == kAudioFormatMPEG4AAC ? 1e-5 : 1e-6;
            for (std::uint32_t point = 0; point < 1024; ++point) {
                const double expected = static_cast<double>(alone->bufferForChannel(1)[point]);
                ASSERT_NEAR(static_cast<double>(shared->bufferForChannel(1)[point]), expected, expected * allowed)
                    << point;
            }
        }
    }
}

TEST_F(WaveformTest, WhatIsNoSoundIsSaidSo) {
    QByteArray text;
    for (int i = 0; i < 3000; ++i) {
        text += "a line of text\n";
    }
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
    const Case cases[] = {
        {file(QStringLiteral("channels.caf"), channels), kAudioFileUnsupportedDataFormatError},
        {m_folder.filePath(QStringLiteral("missing.m4a")), kAudioFileFileNotFoundError},
        {m_folder.filePath(QStringLiteral("missing/a.m4a")), kAudioFileFileNotFoundError},
        {QStringLiteral("http://localhost/a.m4a"), kAudioFileFileNotFoundError},
        {QString(), kAudioFileFileNotFoundError},
        {m_folder.path(), kAudioFileUnsupportedFileTypeError},
        {pipe, kAudioFileUnsupportedFileTypeError},
        {QStringLiteral("/dev/zero"), kAudioFileUnsupportedFileTypeError},
        {file(QStringLiteral("empty.m4a"), {}), kAudioFileUnsupportedFileTypeError},
        {file(QStringLiteral("text.wav"), text), kAudioFileUnsupportedFileTypeError},
        {file(QStringLiteral("list.m3u8"), "#EXTM3U\n#EXTINF:1,\nfile:///etc/passwd\n"),
         kAudioFileUnsupportedFileTypeError},
        {file(QStringLiteral("zeros.caf"), QByteArray(5000, '\0')), kAudioFileUnsupportedFileTypeError},
    };
    for (const Case& sound : cases) {
        std::unique_ptr<ExtAudioFile> opened;
        EXPECT_EQ(m_files.open(bytesOf(sound.path), opened), sound.status) << qPrintable(sound.path);
        EXPECT_FALSE(opened);
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
        const QByteArray bytes = wav(2, 8000, 4000);
        ASSERT_TRUE(out != nullptr && std::fwrite(bytes.constData(), 1, 32044, out) == 32044) << name;
        std::fclose(out);
        const auto reader = EZAudioFile::audioFileWithURL(path, {m_files, m_converters, m_runLoop});
        ASSERT_TRUE(reader) << name;
        EXPECT_EQ(reader->totalFrames(), 4000) << name;
        EXPECT_TRUE(reader->metadata().empty());
        // Qt would not find it by this name.
        EXPECT_EQ(std::remove(path.c_str()), 0);
    }
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
        }
    }
}

TEST_F(WaveformTest, WhatAFileSaysAboutItselfIsHandedOn) {
    const QString path = file(QStringLiteral("named.wav"),
                              wav(1, 8000, 100) + QByteArray("LIST\x14\0\0\0INFOINAM\x08\0\0\0Meeting\0", 28));
    EXPECT_EQ(open(path)->metadata()["title"], "Meeting");
    EXPECT_EQ(open(path)->totalFrames(), 100);
}

}  // namespace

}  // namespace tavi::test
