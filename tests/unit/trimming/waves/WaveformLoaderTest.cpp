#include "trimming/waves/WaveformLoader.h"

#include <gmock/gmock.h>

#include "support/FakeAudioConverter.h"
#include "support/FakeExtAudioFile.h"
#include "support/ManualRunLoop.h"
#include "support/TemporaryContainer.h"
#include "trimming/waves/WaveformSample.h"

namespace tavi::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::FloatEq;
using ::testing::SizeIs;

struct WaveformLoaderTest : ::testing::Test {
    /// A file of a level in its first channel, and of another in its second.
    std::filesystem::path add(const char* name, float level, std::size_t frames = 10'240) {
        const std::filesystem::path path = container.addDocument(name, name);
        const auto sound = std::make_shared<FakeSound>();
        sound->planes = {std::vector<float>(frames, level), std::vector<float>(frames, 0.9F)};
        files.sounds[path] = sound;
        return path;
    }
    void load(const std::filesystem::path& path) {
        loader.load(path, [this](const std::vector<float>& points) { loaded.push_back(points); });
    }

    ManualRunLoop runLoop;
    TemporaryContainer container;
    FakeExtAudioFiles files;
    FakeAudioConverters converters;
    WaveformLoader loader{{files, converters, runLoop}};
    std::vector<std::vector<float>> loaded;
};

TEST_F(WaveformLoaderTest, GivesThePointsOfTheFirstChannel) {
    load(add("a", 0.25F));
    EXPECT_TRUE(loaded.empty()) << "never before it returns";
    runLoop.drain();
    EXPECT_EQ(fittingGain({0.1F, 0.5F, 0.2F}), 0.92F / 0.5F);
    EXPECT_EQ(fittingGain({0.01F}), 8.0F) << "noise stays noise";
    load(add("short", 0.25F, 700));
    runLoop.drain();
    load(container.addDocument("text", "text"));
    runLoop.drain();
    ASSERT_THAT(loaded, ElementsAre(SizeIs(1024), SizeIs(1024), SizeIs(0)));
    EXPECT_THAT(loaded[0], Each(FloatEq(0.25F)));
    EXPECT_THAT(loaded[1], Each(0.0F)) << "too few frames for a level";
}

TEST_F(WaveformLoaderTest, RemembersTheLastFilesUntilTheyChange) {
    const auto a = add("a", 0.1F);
    const auto opens = [&](const std::filesystem::path& path) {
        const int before = files.opened;
        load(path);
        runLoop.drain();
        return files.opened > before;
    };
    EXPECT_TRUE(opens(a));
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(opens(add(std::to_string(i).c_str(), 0.2F)));
    }
    EXPECT_FALSE(opens(a));
    EXPECT_THAT(loaded.back(), Each(FloatEq(0.1F)));
    EXPECT_TRUE(opens(add("9", 0.2F)));
    EXPECT_FALSE(opens(a)) << "asked for again meanwhile";
    EXPECT_TRUE(opens(add("0", 0.2F))) << "forgotten";
    container.addDocument("a", "changed");
    EXPECT_TRUE(opens(a));
}

TEST_F(WaveformLoaderTest, WhatNobodyWaitsForEndsSoonAndTellsNobody) {
    const auto known = add("known", 0.1F);
    load(known);
    runLoop.drain();
    loaded.clear();
    load(known);
    loader.cancel();
    const auto slow = add("slow", 0.2F);
    files.sounds[slow]->onRead = [this] { loader.cancel(); };
    load(slow);
    runLoop.drain();
    EXPECT_TRUE(loaded.empty());
    EXPECT_THAT(*files.reads.back(), SizeIs(1)) << "nothing more is read";
    load(slow);
    load(known);
    runLoop.drain();
    EXPECT_THAT(loaded, ElementsAre(Each(FloatEq(0.1F)))) << "the one asked for last";
}

TEST_F(WaveformLoaderTest, SamplesAnEighthByAQuarterOfASecond) {
    const auto path = add("a", 0.0F);
    auto& planes = files.sounds[path]->planes = {std::vector<float>(80'000)};
    EXPECT_THAT(sampleWaveform(files, path), Each(0.0F)) << "silence";
    EXPECT_THAT(sampleWaveform(files, "missing"), Each(0.0F));
    // The first half is a quarter as loud as the second; eight hundred seconds.
    files.sounds[path]->rate = 100;
    planes = {std::vector<float>(80'000, 0.2F)};
    std::fill_n(planes[0].begin(), 40'000, 0.05F);
    for (const bool isRandomAccess : {true, false}) {
        files.sounds[path]->isRandomAccess = isRandomAccess;
        const float fifth = isRandomAccess ? 1.0F : 0.5F;
        EXPECT_THAT(sampleWaveform(files, path), ElementsAre(0.5F, 0.5F, 0.5F, 0.5F, FloatEq(fifth), 1.0F, 1.0F, 1.0F));
        EXPECT_THAT(*files.reads.back(), ::testing::AllOf(SizeIs(8), Each(25U)));
    }
}

}  // namespace
}  // namespace tavi::test
