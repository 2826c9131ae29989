#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <numeric>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudio.h"

namespace tavi::test {
namespace {

using Utilities = EZAudioUtilities;
using ::testing::ElementsAre;

/// Knows one codec.
class OneCodec : public AudioConverters {
public:
    AudioStatus create(const AudioStreamBasicDescription&, const AudioStreamBasicDescription&,
                       std::unique_ptr<AudioConverter>&) override {
        return kAudioFileUnsupportedDataFormatError;
    }
    AudioStatus formatInfo(AudioStreamBasicDescription& format) const override {
        format.framesPerPacket = 1024;
        return format.formatID == kAudioFormatMPEG4AAC ? kAudioNoError : kAudioFileUnsupportedDataFormatError;
    }
};

TEST(EZAudioUtilities, DescribesFormats) {
    AudioStreamBasicDescription interleaved{.sampleRate = 8000.0, .bitsPerChannel = 7, .reserved = 7};
    AudioStreamBasicDescription planar = interleaved;
    Utilities::setCanonicalAudioStreamBasicDescription(interleaved, 3, true);
    Utilities::setCanonicalAudioStreamBasicDescription(planar, 3, false);
    const struct {
        AudioStreamBasicDescription format;
        std::uint32_t flags;
        std::uint32_t bytes;
        std::uint32_t channels;
    } cases[] = {
        {Utilities::floatFormatWithNumberOfChannels(3, 8000.0), 0x21, 4, 3},
        {Utilities::monoFloatFormatWithSampleRate(8000.0), 0x9, 4, 1},
        {Utilities::monoCanonicalFormatWithSampleRate(8000.0), 0x29, 4, 1},
        {Utilities::stereoCanonicalNonInterleavedFormatWithSampleRate(8000.0), 0x29, 4, 2},
        {Utilities::stereoFloatInterleavedFormatWithSampleRate(8000.0), 0x1, 8, 2},
        {Utilities::stereoFloatNonInterleavedFormatWithSampleRate(8000.0), 0x21, 4, 2},
        {EZAudio::AIFFFormatWithNumberOfChannels(3, 8000.0), 0xE, 12, 3},
        {interleaved, 0x9, 12, 3},
        {planar, 0x29, 4, 3},
    };
    for (const auto& [format, flags, bytes, channels] : cases) {
        SCOPED_TRACE(Utilities::stringForAudioStreamBasicDescription(format));
        const AudioStreamBasicDescription wanted{8000.0, kAudioFormatLinearPCM, flags, bytes, 1, bytes, channels, 32,
                                                 0};
        EXPECT_EQ(format, wanted);
        EXPECT_TRUE(Utilities::isLinearPCM(format));
        EXPECT_EQ(Utilities::isFloatFormat(format), flags != 0xE);
        EXPECT_EQ(Utilities::isInterleaved(format), flags < 0x20);
    }

    const AudioStreamBasicDescription aac{44100.0, kAudioFormatMPEG4AAC, 0, 0, 1024, 0, 2, 0, 0};
    EXPECT_EQ(Utilities::M4AFormatWithNumberOfChannels(2, 44100.0, OneCodec()), aac);
    EXPECT_FALSE(Utilities::isLinearPCM(aac));
    EXPECT_EXIT(Utilities::iLBCFormatWithSampleRate(8000.0, OneCodec()), ::testing::ExitedWithCode(255),
                ::testing::Eq("Error: Failed to fill out the rest of the iLBC AudioStreamBasicDescription ('fmt?')\n"));
}

TEST(EZAudioUtilities, FailedChecksEndTheProcessUnlessToldNotTo) {
    Utilities::checkResult(kAudioNoError, "Failed");
    EXPECT_EXIT(Utilities::checkResult(kAudioFileUnsupportedDataFormatError, "Failed to open"),
                ::testing::ExitedWithCode(255), ::testing::Eq("Error: Failed to open ('fmt?')\n"));
    EXPECT_EXIT(
        {
            Utilities::setShouldExitOnCheckResultFail(false);
            Utilities::checkResult(kAudioParameterError, "Failed to seek");
            std::exit(Utilities::shouldExitOnCheckResultFail() ? 1 : 0);
        },
        ::testing::ExitedWithCode(0), ::testing::Eq("Error: Failed to seek (-50)\n"));
}

TEST(EZAudioUtilities, WritesTexts) {
    auto format = Utilities::stereoFloatInterleavedFormatWithSampleRate(44100.0);
    format.formatFlags = 0xAB;
    EXPECT_EQ(Utilities::stringForAudioStreamBasicDescription(format),
              "\nSample Rate:            44100,\nFormat ID:                 lpcm,\nFormat Flags:                AB,\n"
              "Bytes per Packet:             8,\nFrames per Packet:            1,\nBytes per Frame:              8,\n"
              "Channels per Frame:           2,\nBits per Channel:            32,\nIsInterleaved:       0,\n"
              "IsFloat:             1,");
    ::testing::internal::CaptureStderr();
    Utilities::printASBD(format);
    EXPECT_EQ(
        ::testing::internal::GetCapturedStderr(),
        "  Sample Rate:              44100\n  Format ID:                 lpcm\n  Format Flags:                AB\n"
        "  Bytes per Packet:             8\n  Frames per Packet:            1\n  Bytes per Frame:              8\n"
        "  Channels per Frame:           2\n  Bits per Channel:            32\n");
    EXPECT_EQ(Utilities::stringFromUInt32Code(0x61630A20), "1633880608");

    const struct {
        double seconds;
        const char* text;
    } times[] = {{0.0, "00:00"},    {59.0, "00:59"},   {59.2, "01:00"}, {3600.0, "00:00"},
                 {3661.0, "01:01"}, {359999, "59:59"}, {NAN, "00:00"}};
    for (const auto& [seconds, text] : times) {
        EXPECT_EQ(Utilities::displayTimeStringFromSeconds(seconds), text) << seconds;
    }
    const struct {
        double frequency;
        const char* note;
    } notes[] = {{440.0, "A4"}, {261.63, "C4"}, {246.94, "B3"}, {27.5, "A0"}, {16.35, "C0"}, {15.4, "B-1"}, {0.0, ""}};
    for (const auto& [frequency, note] : notes) {
        EXPECT_EQ(Utilities::noteNameStringForFrequency(frequency, true), note);
    }
    EXPECT_EQ(Utilities::noteNameStringForFrequency(452.0, false), "A");
}

TEST(EZAudioUtilities, AllocatesBuffersOfEitherLayout) {
    for (const bool interleaved : {true, false}) {
        AudioBufferList* list = Utilities::audioBufferListWithNumberOfFrames(512, 2, interleaved);
        ASSERT_EQ(list->numberBuffers, interleaved ? 1U : 2U);
        for (std::uint32_t i = 0; i < list->numberBuffers; ++i) {
            EXPECT_EQ(list->buffers[i].numberChannels, interleaved ? 2U : 1U);
            ASSERT_EQ(list->buffers[i].dataByteSize, interleaved ? 4096U : 2048U);
            const auto* bytes = static_cast<const char*>(list->buffers[i].data);
            EXPECT_EQ(std::accumulate(bytes, bytes + list->buffers[i].dataByteSize, 0), 0);
        }
        Utilities::freeBufferList(list);
    }
    Utilities::freeBufferList(nullptr);

    float** buffers = Utilities::floatBuffersWithNumberOfFrames(512, 2);
    buffers[0][511] = buffers[1][511] = 1.0F;
    // Half built: it is not touched.
    float* first = std::exchange(buffers[0], nullptr);
    Utilities::freeFloatBuffers(buffers, 2);
    EXPECT_EQ(buffers[1][511], 1.0F);
    buffers[0] = first;
    Utilities::freeFloatBuffers(buffers, 2);
    Utilities::freeFloatBuffers(nullptr, 2);
}

TEST(EZAudioUtilities, ComputesLevels) {
    // Samples whose squares round the same way each time are what a long sum in single precision goes wrong with.
    std::vector<float> samples(200'000, 0.3F);
    std::vector<float> loud(samples.size());
    for (std::size_t i = 0; i < loud.size(); ++i) {
        loud[i] = static_cast<float>(std::sin(0.01 * static_cast<double>(i)) * static_cast<double>(i % 997));
    }
    for (const auto* signal : {&samples, &loud}) {
        for (const std::size_t length : {std::size_t{1}, std::size_t{31}, std::size_t{1100}, samples.size()}) {
            double sum = 0.0;
            for (std::size_t i = 0; i < length; ++i) {
                sum += static_cast<double>((*signal)[i]) * static_cast<double>((*signal)[i]);
            }
            const double exact = std::sqrt(sum / static_cast<double>(length));
            const float level = Utilities::RMS(signal->data(), static_cast<std::int32_t>(length));
            EXPECT_NEAR(static_cast<double>(level), exact, 1e-6 * exact) << length;
        }
    }
    EXPECT_TRUE(std::isnan(Utilities::RMS(samples.data(), 0)));
    EXPECT_EQ(Utilities::RMS(samples.data(), -3), 0.0F);

    EXPECT_FLOAT_EQ(Utilities::MAP(2.0F, 1.0F, 5.0F, -1.0F, 1.0F), -0.5F);
    // One rounding at the end, not two: 1/3 x 3 - 1 leaves what the quotient was rounded by.
    EXPECT_EQ(Utilities::MAP(1.0F, 0.0F, 3.0F, -1.0F, 2.0F), std::fma(1.0F / 3.0F, 3.0F, -1.0F));
    EXPECT_NE(Utilities::MAP(1.0F, 0.0F, 3.0F, -1.0F, 2.0F), 0.0F);
    EXPECT_THAT((std::vector{Utilities::SGN(-0.5F), Utilities::SGN(0.0F), Utilities::SGN(7.0F)}),
                ElementsAre(-1, 0, 1));

    double colour[4] = {};
    const double components[] = {0.1, 0.2, 0.3, 0.4};
    for (const std::size_t count : {2U, 4U}) {
        Utilities::getColorComponentsFromCGColor({components, count}, colour[0], colour[1], colour[2], colour[3]);
        EXPECT_EQ(colour[3], count == 4 ? 0.4 : 0.0);
    }
}

TEST(EZAudioUtilities, ScrollsHistories) {
    std::vector<float> history = {1, 2, 3, 4};
    const float added[] = {5, 6, 7, 8, 9, 10};
    Utilities::appendBufferAndShift(added, 3, history.data(), 4);
    EXPECT_THAT(history, ElementsAre(4, 5, 6, 7));
    Utilities::appendValue(8, history.data(), 4);
    EXPECT_THAT(history, ElementsAre(5, 6, 7, 8));
    Utilities::appendBufferAndShift(added, 6, history.data(), 4);
    EXPECT_THAT(history, ElementsAre(7, 8, 9, 10));

    float* levels = nullptr;
    std::int32_t index = 0;
    for (int i = 0; i < 4; ++i) {
        Utilities::updateScrollHistory(&levels, 3, &index, added + i, 1, i == 1);
    }
    EXPECT_THAT(std::vector(levels, levels + 4), ElementsAre(5, 7, 8, 0));
    Utilities::updateScrollHistory(&levels, 3, &index, added + 4, 1, false);
    EXPECT_THAT(std::vector(levels, levels + 4), ElementsAre(7, 8, 9, 0));
    EXPECT_EQ(index, 3);
    EXPECT_EQ(levels[8191], 0.0F);
    std::free(levels);
}

TEST(EZAudioUtilities, KeepsAWindowOfRecentSamples) {
    const std::unique_ptr<PlotHistoryInfo, decltype(&Utilities::freeHistoryInfo)> info(
        Utilities::historyInfoWithDefaultLength(3, 8192), &Utilities::freeHistoryInfo);
    const auto window = [&info] { return std::vector(info->buffer, info->buffer + 4); };
    const float samples[] = {1, 2, 3, 4, 5};
    Utilities::appendBuffer(samples, 0, info.get());
    Utilities::appendBuffer(samples, 2, info.get());
    EXPECT_THAT(window(), ElementsAre(1, 2, 0, 0));
    Utilities::appendBuffer(samples + 2, 3, info.get());
    EXPECT_THAT(window(), ElementsAre(1, 2, 3, 0)) << "the window is taken before the excess goes";
    EXPECT_EQ(info->circularBuffer.fillCount, 12);

    // More than is free is dropped whole; the window still catches up.
    const std::vector<float> tooMany(static_cast<std::size_t>(info->circularBuffer.length) / 4 - 2, 9.0F);
    Utilities::appendBuffer(tooMany.data(), static_cast<std::uint32_t>(tooMany.size()), info.get());
    EXPECT_THAT(window(), ElementsAre(3, 4, 5, 0));

    const float steady[] = {2, -2};
    Utilities::appendBufferRMS(steady, 2, info.get());
    Utilities::appendBufferRMS(steady, 0, info.get());
    Utilities::appendBufferRMS(steady, 2, info.get());
    EXPECT_THAT(window(), ElementsAre(5, 2, 0, 0));
    info->buffer[3] = 8;
    Utilities::clearHistoryInfo(info.get());
    EXPECT_THAT(window(), ElementsAre(0, 0, 0, 8));
    EXPECT_EQ(info->circularBuffer.fillCount, 0);
    info->bufferSize = -1;
    Utilities::appendBuffer(samples, 2, info.get());
    EXPECT_EQ(info->circularBuffer.fillCount, 0);

    // Where the maximum fits into the ring's first page the history starts with that much silence.
    PlotHistoryInfo* small = Utilities::historyInfoWithDefaultLength(3, 100);
    EXPECT_EQ(small->circularBuffer.fillCount, 400);
    Utilities::freeHistoryInfo(small);
}

TEST(EZAudioUtilities, RingsTakeTheFirstBufferOfAList) {
    TPCircularBuffer ring;
    Utilities::circularBuffer(&ring, 1);
    AudioBufferList* list = Utilities::audioBufferListWithNumberOfFrames(300, 2, false);
    static_cast<float*>(list->buffers[0].data)[299] = 0.5F;
    for (int i = 0; i < 10; ++i) {
        Utilities::appendDataToCircularBuffer(&ring, list);
    }
    EXPECT_EQ(ring.fillCount, ring.length / 1200 * 1200) << "what does not fit is dropped whole";
    EXPECT_EQ(static_cast<float*>(ring.buffer)[299], 0.5F);
    Utilities::freeCircularBuffer(&ring);
    EXPECT_EQ(ring.buffer, nullptr);
    Utilities::freeBufferList(list);
}

}  // namespace
}  // namespace tavi::test
