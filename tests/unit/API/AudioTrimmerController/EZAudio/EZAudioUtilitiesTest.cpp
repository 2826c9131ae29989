#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudioMemory.h"

namespace tavi::test {
namespace {

using Utilities = EZAudioUtilities;
using ::testing::ElementsAre;

TEST(EZAudioUtilities, FailedChecksEndTheProcessUnlessToldNotTo) {
    Utilities::checkResult(kAudioNoError, "Failed");
    EXPECT_EXIT(Utilities::checkResult(kAudioFileUnsupportedDataFormatError, "Failed to open"),
                ::testing::ExitedWithCode(255), ::testing::Eq("Error: Failed to open ('fmt?')\n"));
    EXPECT_EXIT(
        {
            Utilities::setShouldExitOnCheckResultFail(false);
            Utilities::checkResult(kAudioParameterError, "Failed to seek");
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), ::testing::Eq("Error: Failed to seek (-50)\n"));
}

TEST(EZAudioUtilities, DescribesFormats) {
    AudioStreamBasicDescription planar{.sampleRate = 16000};
    Utilities::setCanonicalAudioStreamBasicDescription(planar, 3, false);
    AudioStreamBasicDescription interleaved{.sampleRate = 16000};
    Utilities::setCanonicalAudioStreamBasicDescription(interleaved, 3, true);
    const struct {
        AudioStreamBasicDescription format;
        std::uint32_t flags, bytes, channels;
    } cases[] = {
        {Utilities::floatFormatWithNumberOfChannels(3, 16000), 0x21, 4, 3},
        {Utilities::monoFloatFormatWithSampleRate(16000), 0x9, 4, 1},
        {Utilities::monoCanonicalFormatWithSampleRate(16000), 0x29, 4, 1},
        {Utilities::stereoCanonicalNonInterleavedFormatWithSampleRate(16000), 0x29, 4, 2},
        {Utilities::stereoFloatInterleavedFormatWithSampleRate(16000), 0x1, 8, 2},
        {Utilities::stereoFloatNonInterleavedFormatWithSampleRate(16000), 0x21, 4, 2},
        {Utilities::AIFFFormatWithNumberOfChannels(3, 16000), 0xE, 12, 3},
        {planar, 0x29, 4, 3},
        {interleaved, 0x9, 12, 3},
    };
    for (const auto& [format, flags, bytes, channels] : cases) {
        SCOPED_TRACE(Utilities::stringForAudioStreamBasicDescription(format));
        EXPECT_EQ(format,
                  (AudioStreamBasicDescription{16000, kAudioFormatLinearPCM, flags, bytes, 1, bytes, channels, 32}));
        EXPECT_EQ(Utilities::isInterleaved(format), bytes == 4 * channels && (flags & 0x20) == 0);
    }
    EXPECT_EQ(Utilities::stringForAudioStreamBasicDescription(interleaved),
              "\nSample Rate:            16000,\nFormat ID:                 lpcm,\nFormat Flags:                 9,\n"
              "Bytes per Packet:            12,\nFrames per Packet:            1,\nBytes per Frame:             12,\n"
              "Channels per Frame:           3,\nBits per Channel:            32,\nIsInterleaved:       1,\n"
              "IsFloat:             1,");
}

TEST(EZAudioUtilities, MakesBufferLists) {
    for (const bool isInterleaved : {true, false}) {
        const OwnedBufferList list(Utilities::audioBufferListWithNumberOfFrames(512, 2, isInterleaved));
        ASSERT_EQ(list->numberBuffers, isInterleaved ? 1U : 2U);
        const AudioBuffer& last = list->buffers[list->numberBuffers - 1];
        EXPECT_EQ(last.numberChannels, isInterleaved ? 2U : 1U);
        ASSERT_EQ(last.dataByteSize, isInterleaved ? 4096U : 2048U);
        EXPECT_EQ(static_cast<const float*>(last.data)[last.dataByteSize / 4 - 1], 0.0F);
        // Only a block that fits is taken, and all of it.
        TPCircularBuffer ring;
        Utilities::circularBuffer(&ring, 1);
        for (const std::int32_t fill : isInterleaved ? std::vector{4096, 4096} : std::vector{2048, 4096, 4096}) {
            Utilities::appendDataToCircularBuffer(&ring, list.get());
            EXPECT_EQ(ring.fillCount, fill);
        }
        Utilities::freeCircularBuffer(&ring);
        EXPECT_EQ(ring.buffer, nullptr);
    }
}

TEST(EZAudioUtilities, CountsAndNames) {
    EXPECT_FLOAT_EQ(Utilities::MAP(2.5F, 2.0F, 4.0F, 10.0F, 30.0F), 15.0F);
    EXPECT_THAT((std::vector{Utilities::SGN(-0.5F), Utilities::SGN(0.0F), Utilities::SGN(3.0F)}),
                ElementsAre(-1, 0, 1));
    for (const auto& [seconds, text] :
         {std::pair(59.0, "00:59"), {59.2, "01:00"}, {3661.0, "01:01"}, {359999.0, "59:59"}, {double{NAN}, "00:00"}}) {
        EXPECT_EQ(Utilities::displayTimeStringFromSeconds(seconds), text) << seconds;
    }
    double red = 9, green = 9, blue = 9, alpha = 9;
    Utilities::getColorComponentsFromCGColor(std::vector{0.5, 0.5}, red, green, blue, alpha);
    EXPECT_THAT((std::vector{red, green, blue, alpha}), ElementsAre(9, 9, 9, 9));
    Utilities::getColorComponentsFromCGColor(std::vector{0.1, 0.2, 0.3, 0.4}, red, green, blue, alpha);
    EXPECT_THAT((std::vector{red, green, blue, alpha}), ElementsAre(0.1, 0.2, 0.3, 0.4));
    for (const auto& [frequency, name] :
         {std::pair(440.0, "A4"), {261.6, "C4"}, {246.9, "B3"}, {27.5, "A0"}, {0.0, ""}}) {
        EXPECT_EQ(Utilities::noteNameStringForFrequency(frequency, true), name);
    }
    EXPECT_EQ(Utilities::noteNameStringForFrequency(830.6, false), "G#");
}

TEST(EZAudioUtilities, ComputesLevels) {
    const std::vector<float> ramp = {1, 2, 3, 4};
    EXPECT_FLOAT_EQ(Utilities::RMS(ramp.data(), 3), std::sqrt(14.0F / 3.0F));
    // Samples whose squares round the same way each time are what a long sum in single precision goes wrong with.
    const std::vector<float> samples(200'000, 0.3F);
    for (const std::int32_t length : {1, 31, 1100, 200'000}) {
        EXPECT_NEAR(Utilities::RMS(samples.data(), length), 0.3F, 3e-7) << length;
    }
    EXPECT_TRUE(std::isnan(Utilities::RMS(samples.data(), 0)));
    EXPECT_EQ(Utilities::RMS(samples.data(), -3), 0.0F);
}

TEST(EZAudioUtilities, ScrollsHistories) {
    const float added[] = {5, 6, 7, 8};
    float* levels = nullptr;
    std::int32_t index = 0;
    for (int i = 0; i < 4; ++i) {
        Utilities::updateScrollHistory(&levels, 3, &index, added + i, 1, i == 1);
    }
    EXPECT_THAT(std::vector(levels, levels + 4), ElementsAre(5, 7, 8, 0));
    Utilities::updateScrollHistory(&levels, 3, &index, added, 1, false);
    EXPECT_THAT(std::vector(levels, levels + 4), ElementsAre(7, 8, 5, 0));
    Utilities::appendBufferAndShift(added, 2, levels, 3);
    EXPECT_THAT(std::vector(levels, levels + 4), ElementsAre(5, 5, 6, 0));
    Utilities::appendBufferAndShift(added, 4, levels, 3);
    EXPECT_THAT(std::vector(levels, levels + 4), ElementsAre(6, 7, 8, 0)) << "the end of what is longer";
    std::free(levels);
}

TEST(EZAudioUtilities, KeepsAWindowOfRecentSamples) {
    const OwnedHistoryInfo info(Utilities::historyInfoWithDefaultLength(3, 8192));
    const auto window = [&info] { return std::vector(info->buffer, info->buffer + 4); };
    const float samples[] = {1, 2, 3, 4, 5};
    Utilities::appendBuffer(samples, 2, info.get());
    Utilities::appendBuffer(samples + 2, 3, info.get());
    EXPECT_THAT(window(), ElementsAre(1, 2, 3, 0)) << "the window is taken before the excess goes";

    // More than is free is dropped whole; the window still catches up.
    const std::vector<float> tooMany(static_cast<std::size_t>(info->circularBuffer.length) / 4 - 2, 9.0F);
    Utilities::appendBuffer(tooMany.data(), static_cast<std::uint32_t>(tooMany.size()), info.get());
    EXPECT_THAT(window(), ElementsAre(3, 4, 5, 0));

    Utilities::clearHistoryInfo(info.get());
    EXPECT_THAT(window(), ElementsAre(0, 0, 0, 0));
}

}  // namespace
}  // namespace tavi::test
