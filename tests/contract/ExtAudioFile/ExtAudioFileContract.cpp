#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "support/ClientBuffers.h"
#include "support/FakeExtAudioFile.h"
#include "support/WavFile.h"

namespace tavi::test {
namespace {

constexpr int kRate = 8000;

using Planes = std::vector<std::vector<float>>;

struct FakeFilesWorld {
    std::string add(const Planes& planes) {
        auto sound = std::make_shared<FakeSound>();
        sound->rate = kRate;
        sound->planes = planes;
        files.sounds["sound"] = sound;
        return "sound";
    }

    FakeExtAudioFiles files;
};

/// WAV files of 32-bit floats, which hold samples as they are.
struct FfmpegFilesWorld {
    std::string add(const Planes& planes) {
        QByteArray data;
        for (std::size_t i = 0; !planes.empty() && i < planes.front().size(); ++i) {
            for (const auto& plane : planes) {
                data.append(reinterpret_cast<const char*>(&plane[i]), sizeof(float));
            }
        }
        QFile file(folder.filePath(QStringLiteral("sound")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(planes.empty() ? "text" : wavFile(static_cast<int>(planes.size()), kRate, 32, data));
        return file.fileName().toStdString();
    }

    QTemporaryDir folder;
    FfmpegExtAudioFiles files;
};

template <class World>
struct ExtAudioFileContract : ::testing::Test {
    static constexpr std::size_t kFrames = 5003;

    static Planes planes(std::size_t channels) {
        Planes result(channels);
        for (std::size_t i = 0; i < channels * kFrames; ++i) {
            result[i % channels].push_back(0.5F * std::sin(0.01F * static_cast<float>(i * (i % channels + 1))));
        }
        return result;
    }
    std::unique_ptr<ExtAudioFile> opened(std::size_t channels) {
        std::unique_ptr<ExtAudioFile> file;
        EXPECT_EQ(m_world.files.open(m_world.add(planes(channels)), file), kAudioNoError);
        return file;
    }
    static std::int64_t position(const ExtAudioFile& file) {
        std::int64_t frame = -1;
        EXPECT_EQ(file.tell(frame), kAudioNoError);
        return frame;
    }

    World m_world;
};

using Worlds = ::testing::Types<FakeFilesWorld, FfmpegFilesWorld>;
TYPED_TEST_SUITE(ExtAudioFileContract, Worlds);

TYPED_TEST(ExtAudioFileContract, ReadsEverythingOnceAndThenNothing) {
    auto file = this->opened(2);
    AudioStreamBasicDescription format;
    std::int64_t length = 0;
    file->fileDataFormat(format);
    file->fileLengthFrames(length);
    EXPECT_EQ(std::tuple(format.sampleRate, format.channelsPerFrame, length), std::tuple(kRate, 2, this->kFrames));

    auto client = clientFormat(kRate, 2);
    ClientBuffers buffers(client, 1000);
    std::uint32_t count = 1000;
    EXPECT_NE(file->read(count, buffers.list()), kAudioNoError) << "no format yet";
    EXPECT_EQ(count, 0U);
    ASSERT_EQ(file->setClientDataFormat(client), kAudioNoError);
    EXPECT_EQ(readPlanes(*file, client), this->planes(2));
    count = 1000;
    EXPECT_EQ(file->read(count, buffers.list()), kAudioNoError);
    EXPECT_EQ(count + buffers.list().buffers[1].dataByteSize, 0U);
    client.formatID = kAudioFormatMPEG4AAC;
    EXPECT_EQ(file->setClientDataFormat(client), kAudioFileUnsupportedDataFormatError);

    EXPECT_EQ(this->m_world.files.open("missing", file), kAudioFileFileNotFoundError);
    EXPECT_FALSE(file);
    EXPECT_EQ(this->m_world.files.open(this->m_world.add({}), file), kAudioFileUnsupportedFileTypeError);
}

TYPED_TEST(ExtAudioFileContract, SeeksToAFrameAtAnyRateAndNoFurtherThanTheEnd) {
    for (const double rate : {double{kRate}, 44100.0, 3000.0, 8001.0}) {
        const auto file = this->opened(1);
        const auto client = clientFormat(rate, 2);
        ASSERT_EQ(file->setClientDataFormat(client), kAudioNoError);
        const auto all = readPlanes(*file, client).front();
        const auto at = [&](std::int64_t frame) {
            return static_cast<std::int64_t>(std::ceil(static_cast<double>(frame) * rate / kRate));
        };
        EXPECT_EQ(all.size(), at(static_cast<std::int64_t>(this->kFrames))) << rate;
        EXPECT_NEAR(all[all.size() / 2], this->planes(1)[0][this->kFrames / 2], 0.02);
        for (const std::int64_t frame : {3001, 1, 2049, 5002, 5003, 0}) {
            ASSERT_EQ(file->seek(frame), kAudioNoError);
            EXPECT_EQ(this->position(*file), frame);
            const auto read = readPlanes(*file, client, 777).back();
            const auto last = std::min(all.end(), all.begin() + at(frame) + 777);
            EXPECT_EQ(read, std::vector<float>(all.begin() + at(frame), last)) << rate << " from " << frame;
            const auto end = static_cast<std::int64_t>(static_cast<double>(last - all.begin()) * kRate / rate);
            EXPECT_NEAR(static_cast<double>(this->position(*file) - end), 0, 3) << rate << " from " << frame;
        }
        EXPECT_EQ(file->seek(-1), kAudioParameterError);
        EXPECT_EQ(file->seek(1000000), kAudioNoError);
        EXPECT_EQ(this->position(*file), 5003);
    }
}

TYPED_TEST(ExtAudioFileContract, MakesAsManyChannelsAsTheClientWantsAndKeepsItsPlace) {
    const auto file = this->opened(2);
    const auto both = this->planes(2);
    const auto one = clientFormat(kRate, 1);
    ASSERT_EQ(file->setClientDataFormat(one), kAudioNoError);
    EXPECT_NEAR(readPlanes(*file, one, 1000)[0][777], (both[0][777] + both[1][777]) / 2, 1e-6);
    const auto interleaved = clientFormat(kRate, 2, true);
    ASSERT_EQ(file->setClientDataFormat(interleaved), kAudioNoError);
    EXPECT_EQ(this->position(*file), 1000);
    ClientBuffers buffers(interleaved, 2);
    std::uint32_t count = 2;
    ASSERT_EQ(file->read(count, buffers.list()), kAudioNoError);
    EXPECT_EQ(buffers.template samples<float>(0),
              (std::vector{both[0][1000], both[1][1000], both[0][1001], both[1][1001]}));
}

}  // namespace
}  // namespace tavi::test
