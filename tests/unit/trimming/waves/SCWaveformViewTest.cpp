#include "trimming/waves/SCWaveformView.h"

#include <gmock/gmock.h>

#include "support/FakeAssets.h"
#include "support/ManualRunLoop.h"
#include "trimming/waves/SCWaveformPainter.h"
#include "trimming/waves/WaveformLevels.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;
using ::testing::Pointwise;

using Samples = std::vector<std::int16_t>;

/// A sound file whose duration value counts its frames.
FakeAssets::File soundFile(std::uint32_t channels, Samples samples) {
    const auto frames = static_cast<std::int64_t>(samples.size() / channels);
    return {{frames, 44100}, channels, std::move(samples)};
}

struct Fixture {
    ManualRunLoop runLoop;
    FakeAssets assets{runLoop};

    Asset asset(const char* name, const FakeAssets::File& file) {
        assets.files[name] = file;
        return assets.assetWithURL(name);
    }
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
    };
    Fixture fixture;
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        const Asset asset = fixture.asset("a", soundFile(one.channels, one.samples));
        EXPECT_THAT(waveformLevels(fixture.assets, asset, one.width),
                    Pointwise(::testing::FloatNear(0.01F), one.levels));
    }
}

TEST(WaveformLevels, AreNoneOrFlatWhereTheSoundIsNotKnown) {
    Fixture fixture;
    Asset asset = fixture.asset("a", soundFile(1, Samples(100, 20000)));
    asset.audioTracks[0].formatDescriptions.clear();
    EXPECT_THAT(waveformLevels(fixture.assets, asset, 2.0), ElementsAre(-50.0F, -50.0F)) << "no channels";
    asset.audioTracks[0].formatDescriptions = {{std::nullopt}};
    EXPECT_TRUE(waveformLevels(fixture.assets, asset, 2.0).empty());
    EXPECT_TRUE(waveformLevels(fixture.assets, fixture.assets.assetWithURL("no sound"), 2.0).empty());
}

TEST(SCWaveformPainter, PaintsALineAColumnAsLongAsItIsLoud) {
    Fixture fixture;
    const Asset asset = fixture.asset("a", soundFile(1, {32767, 32767, 16384, 16384, 0, 0}));
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

TEST(SCWaveformView, MakesPicturesOnlyWhenTheyAreMissingOrOfAnotherColour) {
    struct Canvas : SCWaveformCanvas {
        std::optional<double> normalImageWidth() const override { return width; }
        bool hasProgressImage() const override { return hasProgress; }
        void generateNormalImage(const Asset&, const QString& color, const QSizeF& size, bool) override {
            width = size.width();
            log += QStringLiteral("generate %1 ").arg(color);
        }
        void recolorizeNormalImage(const QString& color) override { log += QStringLiteral("normal %1 ").arg(color); }
        void recolorizeProgressImage(const QString& color) override {
            hasProgress = true;
            log += QStringLiteral("progress %1 ").arg(color);
        }
        void dropImages() override {
            width.reset();
            hasProgress = false;
        }

        std::optional<double> width;
        bool hasProgress = false;
        QString log;
    } canvas;
    Fixture fixture;
    SCWaveformView view(fixture.assets);
    view.setCanvas(&canvas);
    const auto made = [&] {
        canvas.log.clear();
        view.generateWaveforms();
        return canvas.log.toStdString();
    };
    view.setAsset(fixture.asset("a", soundFile(1, {1, 2})));
    view.layoutSubviews({100.0, 40.0});
    EXPECT_EQ(made(), "generate #0000ff progress #ff0000 ");
    view.setProgress(0.25);
    view.layoutSubviews({80.0, 40.0});
    EXPECT_EQ(made(), "") << "a narrower view shows less of the same";
    view.setNormalColor(QStringLiteral("grey"));
    EXPECT_EQ(made(), "normal grey ");
    view.layoutSubviews({120.0, 40.0});
    EXPECT_EQ(made(), "generate grey progress #ff0000 ");
    EXPECT_EQ(view.progressCropFrame(), QRectF(0.0, 0.0, 30.0, 40.0));
    EXPECT_EQ(view.normalCropFrame(), QRectF(30.0, 0.0, 90.0, 40.0));
}

}  // namespace
}  // namespace tavi::test
