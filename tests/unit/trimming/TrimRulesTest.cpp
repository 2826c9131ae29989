#include "trimming/TrimRules.h"

#include <gmock/gmock.h>

#include <limits>

#include "support/Printers.h"

namespace tavi::test {
namespace {

TEST(TrimRules, WriteTimesInHundredths) {
    EXPECT_EQ(trimrules::labelLeft(10.0, 56.0, 300.0), 0.0) << "labels stay in their container";
    EXPECT_EQ(trimrules::labelLeft(290.0, 56.0, 300.0), 244.0);
    const std::pair<double, const char*> cases[] = {
        {0.005, "00:00.05"},
        {0.05, "00:00.50"},
        {0.123, "00:00.12"},
        {3725.999, "62:05.99"},
        {360'000, "6000:00.00"},
        {-1.0, "00:00.00"},
        {std::numeric_limits<double>::quiet_NaN(), "00:00.00"},
    };
    for (const auto& [seconds, text] : cases) {
        EXPECT_EQ(trimrules::timeFormatted(seconds, true), QLatin1String(text)) << seconds;
    }
}

TEST(TrimRules, ChooseTheTypeByTheName) {
    const struct {
        const char *name, *extension;
        AssetFileType type;
    } cases[] = {
        {"a.wav", "wav", AssetFileType::Wave},     {"a.b.caf", "caf", AssetFileType::CoreAudioFormat},
        {"a.m4a", "m4a", AssetFileType::AppleM4A}, {"a.mp3", "mp3", AssetFileType::AppleM4A},
        {"a.WAV", "WAV", AssetFileType::Wave},     {"wav", "", AssetFileType::AppleM4A},
        {".wav", "", AssetFileType::AppleM4A},     {"x.y/.wav", "", AssetFileType::AppleM4A},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(trimrules::pathExtension(one.name), one.extension) << one.name;
        EXPECT_EQ(trimrules::outputFileType(one.name), one.type) << one.name;
    }
}

}  // namespace
}  // namespace tavi::test
