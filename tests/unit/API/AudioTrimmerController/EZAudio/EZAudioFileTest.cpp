#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "support/ClientBuffers.h"
#include "support/FakeAudioConverter.h"
#include "support/FakeExtAudioFile.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pointwise;

struct Listener : EZAudioFileDelegate {
    void audioFileUpdatedPosition(EZAudioFile& file) override { positions.push_back(-file.frameIndex()); }
    void audioFile(EZAudioFile&, std::int64_t position) override { positions.push_back(position); }
    bool wantsAudio() const override { return wants; }
    void audioFile(EZAudioFile&, float** audio, std::uint32_t size, std::uint32_t channels) override {
        for (std::uint32_t channel = 0; channel < channels; ++channel) {
            heard.insert(heard.end(), audio[channel], audio[channel] + size);
        }
    }

    bool wants = false;
    std::vector<std::int64_t> positions;
    std::vector<float> heard;
};

struct EZAudioFileTest : ::testing::Test {
    EZAudioFileTest() { EZAudioUtilities::setShouldExitOnCheckResultFail(false); }
    ~EZAudioFileTest() override { EZAudioUtilities::setShouldExitOnCheckResultFail(true); }

    /// A file whose channels hold a slow swell and, at half its level, a saw.
    std::shared_ptr<FakeSound> add(double rate, std::size_t frames, std::size_t channels = 2) {
        auto sound = std::make_shared<FakeSound>();
        sound->rate = rate;
        sound->planes.resize(channels);
        for (std::size_t i = 0; i < frames; ++i) {
            const float swell = 0.1F + static_cast<float>(i) / static_cast<float>(frames);
            for (std::size_t channel = 0; channel < channels; ++channel) {
                sound->planes[channel].push_back(channel == 0 ? swell : 0.5F * static_cast<float>(i % 100) / 100);
            }
        }
        m_files.sounds["a"] = sound;
        return sound;
    }
    std::shared_ptr<EZAudioFile> open(const std::shared_ptr<Listener>& listener = {},
                                      const AudioStreamBasicDescription& format = EZAudioFile::defaultClientFormat()) {
        return EZAudioFile::audioFileWithURL("a", m_services, listener, format);
    }
    std::vector<std::vector<float>> waveform(EZAudioFile& file, std::uint32_t points) {
        const auto data = file.getWaveformDataWithNumberOfPoints(points);
        std::vector<std::vector<float>> result;
        for (int channel = 0; data && channel < data->numberOfChannels(); ++channel) {
            const float* values = data->bufferForChannel(channel);
            result.emplace_back(values, values + data->bufferSize());
        }
        return result;
    }

    ManualRunLoop m_runLoop;
    FakeExtAudioFiles m_files;
    FakeAudioConverters m_converters;
    EZAudioFile::Services m_services{.files = m_files, .converters = m_converters, .queues = m_runLoop};
};

TEST_F(EZAudioFileTest, OpensWhatIsThereAndTellsItsLength) {
    EXPECT_EQ(EZAudioFile::audioFileWithURL("missing", m_services), nullptr);
    add(8000, 12000, 1);
    const auto file = open();
    ASSERT_TRUE(file);
    EXPECT_EQ(file->duration(), 1.5);
    EXPECT_EQ(file->totalClientFrames(), 66150);
    EXPECT_EQ(file->formattedDuration(), "00:02");
    file->setCurrentTime(0.75);
    EXPECT_EQ(file->frameIndex(), 6000);
    EXPECT_EQ(file->currentTime(), 0.75);
    EXPECT_EQ(file->formattedCurrentTime(), "00:01");
    EXPECT_EQ(file->copy()->frameIndex(), 0) << "of the same file, with a place of its own";
    const std::string description = file->description();
    EXPECT_EQ(description.find("EZAudioFile {\n    url: a,\n    duration: 1.500000,\n    totalFrames: 12000,\n"), 0U);
    EXPECT_LT(description.find("fileFormat: { \nSample Rate:             8000"),
              description.find("clientFormat: { \nSample Rate:            44100"));
    // What is no sound file gives a reader of nothing.
    m_files.sounds["a"] = std::make_shared<FakeSound>();
    const auto text = open();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->duration(), 0);
    EXPECT_EQ(text->getWaveformData(), nullptr);
}

TEST_F(EZAudioFileTest, ReadsAndTellsItsDelegate) {
    const auto sound = add(44100, 3000);
    const auto listener = std::make_shared<Listener>();
    const auto file = open(listener, clientFormat(44100, 2, true));
    ClientBuffers buffers(file->clientFormat(), 1024);
    const auto read = [&](std::uint32_t wanted) {
        std::uint32_t count = 99;
        bool isEnd = false;
        file->readFrames(wanted, &buffers.list(), &count, &isEnd);
        return std::pair(count, isEnd);
    };
    EXPECT_EQ(read(700), std::pair(700U, false));
    EXPECT_TRUE(listener->heard.empty());
    listener->wants = true;
    file->seekToFrame(1900);
    read(1024);
    ASSERT_EQ(listener->heard.size(), 2048U);
    EXPECT_EQ(listener->heard[1000], sound->planes[0][2900]) << "more frames than the converter's buffer has";
    EXPECT_EQ(listener->heard[2047], sound->planes[1][2923]);
    // In another format the arrays are others, too.
    file->setClientFormat(clientFormat(44100, 1));
    file->seekToFrame(1000);
    listener->heard.clear();
    read(3);
    const auto mean = [&sound](std::size_t frame) { return (sound->planes[0][frame] + sound->planes[1][frame]) / 2; };
    EXPECT_THAT(listener->heard, ElementsAre(mean(1000), mean(1001), mean(1002)));
    file->seekToFrame(3000);
    EXPECT_EQ(read(10), std::pair(0U, true));
    EXPECT_THAT(listener->positions,
                ElementsAre(-700, 700, -1900, 1900, -2924, 2924, -1000, 1000, -1003, 1003, -3000, 3000, -3000, 3000));
}

TEST_F(EZAudioFileTest, ReducesAFileToPointsAndKeepsItsPlace) {
    auto sound = add(44100, 441000);
    const auto file = open();
    file->seekToFrame(777);
    auto points = waveform(*file, 1024);
    EXPECT_EQ(file->frameIndex(), 777);
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[1].size(), 1024U);
    EXPECT_EQ(*m_files.reads[0], std::vector<std::uint32_t>(1024, 430)) << "of ten seconds";
    EXPECT_FLOAT_EQ(points[0][5], EZAudioUtilities::RMS(sound->planes[0].data() + 5 * 430, 430));
    // Longer runs are read in pieces, and none reaches into the next.
    points = waveform(*file, 8);
    EXPECT_NEAR(points[0][3], EZAudioUtilities::RMS(sound->planes[0].data() + 3 * 55125, 55125), 1e-6);
    EXPECT_EQ(waveform(*file, 0).at(1).size(), 0U);
    // Interleaved sound counts in part.
    sound = add(44100, 1000);
    points = waveform(*open({}, clientFormat(44100, 2, true)), 10);
    EXPECT_FLOAT_EQ(points[0][3], EZAudioUtilities::RMS(sound->planes[0].data() + 300, 50));
    EXPECT_FLOAT_EQ(points[1][9], EZAudioUtilities::RMS(sound->planes[1].data() + 900, 50));
    // Points without samples are no numbers: of a file that ends early, and one that cannot be read.
    sound = add(44100, 10240);
    sound->readable = 5000;
    const auto ended = waveform(*open(), 1024);
    EXPECT_FALSE(std::isnan(ended[0][499]));
    EXPECT_TRUE(std::isnan(ended[0][500]));
    sound->readStatus = kAudioFileInvalidFileError;
    EXPECT_TRUE(std::isnan(waveform(*open(), 2)[0][1]));
}

TEST_F(EZAudioFileTest, TwoReadersGiveWhatOneGives) {
    for (const auto& [rate, seconds] : {std::pair(8000.0, 33), {44100.0, 33}}) {
        const auto sound = add(rate, static_cast<std::size_t>(rate) * static_cast<std::size_t>(seconds));
        sound->readable = static_cast<std::int64_t>(rate) * 31;
        sound->isRandomAccess = false;
        m_files.opened = 0;
        const auto one = waveform(*open(), 1001);
        EXPECT_EQ(m_files.opened, 1);
        sound->isRandomAccess = true;
        const auto file = open();
        const auto two = waveform(*file, 1001);
        EXPECT_EQ(m_files.opened, 3);
        m_files.failingOpens = 4;
        const auto alone = waveform(*file, 1001);
        m_files.failingOpens = 0;
        for (const auto channel : {0U, 1U}) {
            EXPECT_THAT(two[channel], Pointwise(::testing::NanSensitiveFloatEq(), one[channel])) << rate;
            EXPECT_THAT(alone[channel], Pointwise(::testing::NanSensitiveFloatEq(), one[channel])) << rate;
        }
        // Another file at the same path is not taken for its second half.
        add(rate, sound->planes[0].size() + 1);
        const std::size_t opened = m_files.reads.size();
        waveform(*file, 1001);
        ASSERT_EQ(m_files.reads.size(), opened + 1);
        EXPECT_TRUE(m_files.reads.back()->empty());
    }
}

TEST_F(EZAudioFileTest, NobodyWaitsForTheLock) {
    const auto sound = add(44100, 20000);
    const auto listener = std::make_shared<Listener>();
    const auto file = open(listener);
    ClientBuffers buffers(file->clientFormat(), 100);
    std::uint32_t count = 99;
    bool isEnd = true;
    int length = 5;
    file->seekToFrame(42);
    listener->positions.clear();
    sound->onRead = [&, isFirst = true]() mutable {
        if (std::exchange(isFirst, false)) {
            file->readFrames(100, &buffers.list(), &count, &isEnd);
            file->seekToFrame(7);
            EXPECT_EQ(file->frameIndex(), 42);
            EXPECT_EQ(file->getWaveformData(), nullptr);
            file->getWaveformDataWithCompletionBlock([&](float**, int points) { length = points; });
            m_runLoop.drain();
        }
    };
    EXPECT_NE(file->getWaveformData(), nullptr);
    EXPECT_TRUE(count == 99 && isEnd && length == 0 && listener->positions.empty());
    EXPECT_EQ(file->frameIndex(), 42);
}

TEST_F(EZAudioFileTest, CompletionsComeOnTheMainThreadOneByOneEvenWithoutTheReader) {
    add(44100, 20000);
    auto file = open();
    std::vector<int> lengths;
    const auto completion = [&](float** data, int length) { lengths.push_back(data != nullptr ? length : -length); };
    file->getWaveformDataWithNumberOfPoints(10, completion);
    file->getWaveformDataWithCompletionBlock(completion);
    EXPECT_TRUE(lengths.empty());
    m_runLoop.drain();
    EXPECT_THAT(lengths, ElementsAre(10, 1024));
    file->getWaveformDataWithCompletionBlock(completion);
    file.reset();
    m_runLoop.drain();
    EXPECT_THAT(lengths, ElementsAre(10, 1024, 0));
}

}  // namespace
}  // namespace tavi::test
