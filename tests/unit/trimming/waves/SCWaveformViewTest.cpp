#include "trimming/waves/SCWaveformView.h"

#include <gmock/gmock.h>

#include <numbers>

#include "support/FakeAssets.h"
#include "support/ManualRunLoop.h"
#include "support/Pictures.h"
#include "support/Printers.h"
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

/// Half a second that swells to full scale, so that every level shows; in the first channel.
Samples swellingTone(std::uint32_t channels) {
    Samples samples;
    for (int i = 0; i < 22050; ++i) {
        const double peak = 32767.0 * std::pow(10.0, (i / 22050.0 - 1.0) * 3.0);
        const auto sample = static_cast<std::int16_t>(peak * std::sin(2.0 * std::numbers::pi * 441.0 * i / 44100.0));
        samples.push_back(sample);
        samples.resize(samples.size() + channels - 1);
    }
    return samples;
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

TEST(SCWaveformPainter, PaintsLoudness) {
    Fixture fixture;
    const FakeAssets::File files[] = {
        soundFile(1, swellingTone(1)),                           // swells to its right end
        soundFile(1, Samples(22050, 0)),                         // silence: nothing
        soundFile(1, {100, 1000, 10000, 30000, 3000, 300, 30}),  // a short file: seven columns
        soundFile(2, swellingTone(2)),                           // as the first
    };
    const auto image = [&](const FakeAssets::File& file) {
        return generateWaveformImage(fixture.assets, fixture.asset("a", file), Qt::blue, {100.0, 25.0}, 2.0, false);
    };
    QImage picture(200, 4 * 50, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (const FakeAssets::File& file : files) {
        painter.drawImage(0, 0, image(file));
        painter.translate(0.0, 50.0);
    }
    painter.end();
    expectLooksLike(picture, QStringLiteral(TAVI_PICTURES "/SCWaveformView.png"));

    const QImage other = recolorizeImage(image(files[0]), Qt::red);
    EXPECT_EQ(other.pixelColor(199, 25), QColor(Qt::red));
    EXPECT_EQ(other.pixelColor(0, 0).alpha(), 0) << "only ink takes the colour";
}

/// A canvas that notes what it is asked for.
class NotingCanvas : public SCWaveformCanvas {
public:
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
};

TEST(SCWaveformView, MakesPicturesOnlyWhenTheyAreMissingOrOfAnotherColour) {
    Fixture fixture;
    NotingCanvas canvas;
    SCWaveformView view(fixture.assets);
    view.setCanvas(&canvas);
    const auto made = [&] {
        canvas.log.clear();
        view.generateWaveforms();
        return canvas.log.toStdString();
    };
    view.layoutSubviews({100.0, 40.0});
    EXPECT_EQ(made(), "");
    view.setAsset(fixture.asset("a", soundFile(1, {1, 2})));
    EXPECT_EQ(made(), "generate #0000ff progress #ff0000 ");
    EXPECT_EQ(made(), "");
    view.setProgress(0.25);
    view.layoutSubviews({80.0, 40.0});
    EXPECT_EQ(made(), "") << "a narrower view shows less of the same";
    view.setProgressColor(QStringLiteral("green"));
    EXPECT_EQ(made(), "progress green ");
    view.setNormalColor(QStringLiteral("grey"));
    EXPECT_EQ(made(), "normal grey ");
    view.layoutSubviews({120.0, 40.0});
    EXPECT_EQ(made(), "generate grey progress green ");
    EXPECT_EQ(view.progressCropFrame(), QRectF(0.0, 0.0, 30.0, 40.0));
    EXPECT_EQ(view.normalCropFrame(), QRectF(30.0, 0.0, 90.0, 40.0));
}

}  // namespace
}  // namespace tavi::test
