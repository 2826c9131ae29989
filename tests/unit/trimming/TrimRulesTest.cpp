#include "trimming/TrimRules.h"

#include <gmock/gmock.h>

#include <limits>

#include "support/Printers.h"

namespace tavi::test {
namespace {

TEST(TrimRules, WriteTimesInHundredths) {
    struct Case {
        double seconds;
        const char* withMinutes;
        const char* without;
    };
    const Case cases[] = {
        {0.0, "00:00.00", "00.00"},      {0.005, "00:00.05", "00.05"},
        {0.05, "00:00.50", "00.50"},     {0.5, "00:00.50", "00.50"},
        {0.123, "00:00.12", "00.12"},    {75.5, "01:15.50", "15.50"},
        {3725.999, "62:05.99", "05.99"}, {360'000.0, "6000:00.00", "00.00"},
        {-1.0, "00:00.00", "00.00"},     {std::numeric_limits<double>::quiet_NaN(), "00:00.00", "00.00"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(trimrules::timeFormatted(one.seconds, true), QLatin1String(one.withMinutes)) << one.seconds;
        EXPECT_EQ(trimrules::timeFormatted(one.seconds, false), QLatin1String(one.without)) << one.seconds;
    }
}

TEST(TrimRules, KeepLabelsAndThumbsInTheContainer) {
    EXPECT_EQ(trimrules::labelLeft(10.0, 56.0, 300.0), 0.0);
    EXPECT_EQ(trimrules::labelLeft(100.0, 56.0, 300.0), 72.0);
    EXPECT_EQ(trimrules::labelLeft(290.0, 56.0, 300.0), 244.0);
    EXPECT_EQ(trimrules::movedCentre(5.0, -9.0, 300.0), 0.0);
    EXPECT_EQ(trimrules::movedCentre(295.0, 9.0, 300.0), 300.0);
    EXPECT_EQ(trimrules::selection({30.0, 150.0}, 20.0, 300.0), (TrimTimes{2.0, 10.0}));
}

TEST(TrimRules, AShortSelectionOnlyGrows) {
    struct Case {
        TrimThumb thumb;
        double length;
        double translation;
        bool allowed;
    };
    const Case cases[] = {
        {TrimThumb::Left, 1.001, 50.0, true},   {TrimThumb::Left, 1.0, 1.0, false},
        {TrimThumb::Left, 1.0, 0.0, true},      {TrimThumb::Left, 0.4, -1.0, true},
        {TrimThumb::Right, 1.001, -50.0, true}, {TrimThumb::Right, 1.0, -1.0, false},
        {TrimThumb::Right, 1.0, 0.0, true},     {TrimThumb::Right, -3.0, 1.0, true},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(trimrules::isMoveAllowed(one.thumb, {2.0, 2.0 + one.length}, one.translation), one.allowed)
            << one.length << " by " << one.translation;
    }
    // 300 points are 60 seconds: 5 points a second.
    const TrimTimes times{10.0, 20.0};
    EXPECT_NEAR(trimrules::firstStep(TrimThumb::Left, times, 200.0, 60.0, 300.0), 45.005, 1e-9);
    EXPECT_NEAR(trimrules::firstStep(TrimThumb::Right, times, -200.0, 60.0, 300.0), -45.005, 1e-9);
    EXPECT_EQ(trimrules::firstStep(TrimThumb::Left, times, -200.0, 60.0, 300.0), -200.0);
    EXPECT_EQ(trimrules::firstStep(TrimThumb::Right, times, -3.0, 60.0, 300.0), -3.0);
    EXPECT_EQ(trimrules::firstStep(TrimThumb::Left, {0.0, 0.0}, 9.0, 0.0, 300.0), 9.0);
}

TEST(TrimRules, ChooseTheTypeByTheName) {
    struct Case {
        const char* name;
        const char* extension;
        AssetFileType type;
    };
    const Case cases[] = {
        {"a.wav", "wav", AssetFileType::Wave},     {"a.b.caf", "caf", AssetFileType::CoreAudioFormat},
        {"a.m4a", "m4a", AssetFileType::AppleM4A}, {"a.mp3", "mp3", AssetFileType::AppleM4A},
        {"a.WAV", "WAV", AssetFileType::Wave},     {"wav", "", AssetFileType::AppleM4A},
        {".wav", "", AssetFileType::AppleM4A},     {"x.y/.wav", "", AssetFileType::AppleM4A},
        {"a.", "", AssetFileType::AppleM4A},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(trimrules::pathExtension(one.name), one.extension) << one.name;
        EXPECT_EQ(trimrules::outputFileType(one.name), one.type) << one.name;
    }
}

}  // namespace
}  // namespace tavi::test
