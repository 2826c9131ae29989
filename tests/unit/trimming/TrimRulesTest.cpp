#include "trimming/TrimRules.h"

#include <gmock/gmock.h>

#include <limits>

#include "support/Printers.h"
#include "trimming/TrimZoom.h"

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

TEST(TrimZoom, WhatIsHeldStaysInItsPlaceAndTheStretchTheSame) {
    TrimSelection selection;
    TrimZoom zoom(selection);
    selection.setAudioDuration(60.0);
    zoom.setViewWidth(300.0);
    selection.nudge(true, 12.0);
    const TrimTimes times = selection.times();
    const struct {
        std::function<void()> act;
        double factor, from;
    } steps[] = {
        {[&] { zoom.zoomBy(2.0, 150.0); }, 2.0, 0.25},
        {[&] { zoom.zoomBy(2.0, 0.0); }, 4.0, 0.25},
        {[&] { zoom.scrollBy(-1.0); }, 4.0, 0.0},
        {[&] { zoom.reveal(1200.0); }, 4.0, 0.75},
        {[&] { zoom.reveal(600.0); }, 4.0, 0.5},
        {[&] { zoom.reveal(720.0); }, 4.0, 0.5},
        {[&] { zoom.setViewWidth(600.0); }, 4.0, 0.5},
        {[&] { zoom.zoomBy(100.0, 600.0); }, 30.0, 0.75 - 1.0 / 30.0},
        {[&] { zoom.show(0.2, 0.6); }, 2.5, 0.2},
        {[&] { zoom.show(0.2, 0.2); }, 30.0, 0.2},
        {[&] { zoom.zoomTo(15.0); }, 15.0, 0.2 - 0.5 / 30.0},
        {[&] { zoom.zoomBy(0.001, 0.0); }, 1.0, 0.0},
    };
    for (const auto& [act, factor, from] : steps) {
        act();
        EXPECT_NEAR(zoom.factor(), factor, 1e-9);
        EXPECT_NEAR(zoom.from(), from, 1e-9) << factor;
        EXPECT_NEAR(selection.containerWidth(), zoom.viewWidth() * factor, 1e-6);
        EXPECT_EQ(selection.times(), times) << "not even rounded anew";
    }
    zoom.zoomBy(30.0, 0.0);
    selection.setAudioDuration(4.0);
    EXPECT_EQ(zoom.factor(), 2.0);
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
