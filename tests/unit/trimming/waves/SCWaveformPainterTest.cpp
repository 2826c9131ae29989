#include "trimming/waves/SCWaveformPainter.h"

#include <gmock/gmock.h>

#include <QPainter>
#include <cmath>
#include <numbers>

#include "support/FakeAssets.h"
#include "support/ManualRunLoop.h"
#include "support/Pictures.h"
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
    struct Case {
        const char* what;
        std::uint32_t channels;
        Samples samples;
        double width;
        std::vector<float> levels;
    };
    constexpr float kHalf = -6.0206F;
    constexpr float kFloor = -50.0F;
    const std::int16_t half = 16384;
    const Case cases[] = {
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
    for (const Case& one : cases) {
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

/// Half a second that swells to full scale, so that every level shows.
Samples swellingTone(std::uint32_t channels) {
    Samples samples(std::size_t{22050} * channels);
    for (std::size_t i = 0; i < 22050; ++i) {
        const double time = static_cast<double>(i) / 44100.0;
        const double peak = 32767.0 * std::pow(10.0, (2.0 * time - 1.0) * 3.0);
        samples[i * channels] = static_cast<std::int16_t>(peak * std::sin(2.0 * std::numbers::pi * 441.0 * time));
    }
    return samples;
}

TEST(SCWaveformPainter, PaintsATonesSwellSilenceAShortFileAndTheLeftChannel) {
    Fixture fixture;
    QImage picture(200, 4 * 50, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (const auto& [channels, samples] : {std::pair(1U, swellingTone(1)),
                                            {1U, Samples(22050, 0)},
                                            {1U, Samples{100, 1000, 10000, 30000, 3000, 300, 30}},
                                            {2U, swellingTone(2)}}) {
        const Asset asset = fixture.asset(channels, samples);
        painter.drawImage(0, 0, generateWaveformImage(fixture.assets, asset, Qt::blue, {100.0, 25.0}, 2.0, false));
        painter.translate(0.0, 50.0);
    }
    painter.end();
    expectLooksLike(picture, QStringLiteral(TAVI_PICTURES "/SCWaveformView.png"));
}

}  // namespace
}  // namespace tavi::test
