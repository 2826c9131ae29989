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

TEST(EZAudioUtilities, WritesTimesWithoutHours) {
    for (const auto& [seconds, text] : {std::pair(59.0, "00:59"),
                                        {59.2, "01:00"},
                                        {3600.0, "00:00"},
                                        {3661.0, "01:01"},
                                        {359999.0, "59:59"},
                                        {double{NAN}, "00:00"}}) {
        EXPECT_EQ(Utilities::displayTimeStringFromSeconds(seconds), text) << seconds;
    }
}

TEST(EZAudioUtilities, ComputesLevels) {
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
