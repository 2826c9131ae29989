#include "trimming/TrimRules.h"

#include <gmock/gmock.h>

#include <limits>

#include "support/Printers.h"

namespace tavi::test {
namespace {

TEST(TrimRules, WriteTimesInHundredths) {
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

TEST(TrimRules, KeepLabelsInTheContainer) {
    EXPECT_EQ(trimrules::labelLeft(10.0, 56.0, 300.0), 0.0);
    EXPECT_EQ(trimrules::labelLeft(290.0, 56.0, 300.0), 244.0);
}

TEST(TrimRules, AShortSelectionOnlyGrows) {
    const struct {
        TrimThumb thumb;
        double length, translation;
        bool allowed;
    } cases[] = {
        {TrimThumb::Left, 1.001, 50.0, true},   {TrimThumb::Left, 1.0, 1.0, false},
        {TrimThumb::Left, 1.0, 0.0, true},      {TrimThumb::Left, 0.4, -1.0, true},
        {TrimThumb::Right, 1.001, -50.0, true}, {TrimThumb::Right, 1.0, -1.0, false},
        {TrimThumb::Right, 1.0, 0.0, true},     {TrimThumb::Right, -3.0, 1.0, true},
    };
    for (const auto& [thumb, length, translation, allowed] : cases) {
        EXPECT_EQ(trimrules::isMoveAllowed(thumb, {2.0, 2.0 + length}, translation), allowed) << length;
    }
    // 300 points are 60 seconds: 5 points a second.
    EXPECT_NEAR(trimrules::firstStep(TrimThumb::Right, {10.0, 20.0}, -200.0, 60.0, 300.0), -45.005, 1e-9);
    EXPECT_EQ(trimrules::firstStep(TrimThumb::Left, {0.0, 0.0}, 9.0, 0.0, 300.0), 9.0) << "no sound";
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
