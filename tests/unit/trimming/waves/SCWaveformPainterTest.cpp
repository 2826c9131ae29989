#include "trimming/waves/SCWaveformPainter.h"

#include <gmock/gmock.h>

#include "support/FakeAssets.h"
#include "support/ManualRunLoop.h"
#include "trimming/waves/WaveformLevels.h"

namespace tavi::test {
namespace {

using ::testing::Pointwise;

using Samples = std::vector<std::int16_t>;

struct Fixture {
    /// A sound file whose duration value counts its frames.
    Asset asset(std::uint32_t channels, const Samples& samples) {
        assets.files["a"] = {{static_cast<std::int64_t>(samples.size() / channels), 44100}, channels, samples};
        return assets.assetWithURL("a");
    }

    ManualRunLoop runLoop;
    FakeAssets assets{runLoop};
};

TEST(WaveformLevels, AreMeansOfTheFirstChannel) {
    constexpr float kHalf = -6.0206F;
    constexpr float kFloor = -50.0F;
    const std::int16_t half = 16384;
    const struct {
        const char* what;
        std::uint32_t channels;
        Samples samples;
        double width;
        std::vector<float> levels;
    } cases[] = {
        {"means of two frames", 1, {32767, half, half, half}, 2.0, {kHalf / 2.0F, kHalf}},
        {"one frame a column, the rest flat", 1, {half, 32767, half}, 5.0, {kHalf, 0.0F, kHalf, kFloor, kFloor}},
        {"columns beyond the width are left out", 1, {half, half, half, half, 0, 0, 0}, 2.0, {kHalf, -35.34F}},
        {"the rest has its own mean", 1, {half, half, half, 0, 0, 0, 0}, 3.0, {kHalf, -28.01F, kFloor}},
        {"the other channels are not heard", 2, {half, 0, 0, 32767, half, 0, half, 0}, 2.0, {-28.01F, kHalf}},
        {"between full scale and the floor", 1, {-32768, 1, 0, -1}, 4.0, {0.0F, kFloor, kFloor, kFloor}},
        {"a broken column is a column", 1, {half, half}, 1.5, {kHalf, kHalf}},
        {"no area", 1, {half}, 0.0, {}},
        {"no sound", 1, {}, 2.0, {kFloor, kFloor}},
    };
    Fixture fixture;
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        const Asset asset = fixture.asset(one.channels, one.samples);
        EXPECT_THAT(waveformLevels(fixture.assets, asset, one.width),
                    Pointwise(::testing::FloatNear(0.01F), one.levels));
    }
}

TEST(SCWaveformPainter, PaintsALineAColumnAsLongAsItIsLoud) {
    Fixture fixture;
    const Asset asset = fixture.asset(1, {32767, 32767, 16384, 16384, 0, 0});
    const QImage blue = generateWaveformImage(fixture.assets, asset, Qt::blue, {1.5, 50.0}, 2.0, false);
    const QImage red = recolorizeImage(blue, Qt::red);
    ASSERT_EQ(red.size(), QSize(3, 100));
    // Half of full scale is six decibels of fifty less.
    for (const auto& [x, length] : {std::pair{0, 100}, {1, 88}, {2, 0}}) {
        for (int y = 0; y < 100; ++y) {
            const bool isInk = y >= 50 - length / 2 && y < 50 + length / 2;
            EXPECT_EQ(blue.pixelColor(x, y), isInk ? QColor(Qt::blue) : QColor(Qt::transparent)) << x << ", " << y;
            EXPECT_EQ(red.pixelColor(x, y), isInk ? QColor(Qt::red) : QColor(Qt::transparent)) << x << ", " << y;
        }
    }
}

}  // namespace
}  // namespace tavi::test
