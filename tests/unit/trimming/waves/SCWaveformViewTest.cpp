#include "trimming/waves/SCWaveformView.h"

#include <gmock/gmock.h>

#include <cmath>

#include "support/FakeAssets.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {
namespace {

/// Notes what it is asked for; its pictures are as wide as the view was.
struct NotingCanvas : SCWaveformCanvas {
    std::optional<double> normalImageWidth() const override { return m_width; }
    bool hasProgressImage() const override { return m_hasProgress; }
    void generateNormalImage(const Asset&, const QString& color, const QSizeF& size, bool antialiasing) override {
        m_width = size.width();
        calls.push_back("draw " + color.toStdString() + " " + std::to_string(std::lround(size.width())) +
                        (antialiasing ? " smooth" : ""));
    }
    void recolorizeNormalImage(const QString& color) override { calls.push_back("normal " + color.toStdString()); }
    void recolorizeProgressImage(const QString& color) override {
        m_hasProgress = true;
        calls.push_back("progress " + color.toStdString());
    }
    void dropImages() override {
        m_width.reset();
        m_hasProgress = false;
    }

    std::vector<std::string> calls;

private:
    std::optional<double> m_width;
    bool m_hasProgress = false;
};

TEST(SCWaveformView, MakesOnlyThePicturesThatHaveToBeNew) {
    ManualRunLoop runLoop;
    FakeAssets assets(runLoop);
    SCWaveformView view(assets);
    NotingCanvas canvas;
    view.setCanvas(&canvas);
    view.setProgress(0.25);
    const auto layOut = [&view](double width) { return [&view, width] { view.layoutSubviews({width, 20}); }; };
    const struct {
        const char* what;
        std::function<void()> change;
        std::vector<std::string> calls;
    } steps[] = {
        {"there is no asset", layOut(100), {}},
        {"the first pictures", [&] { view.setAsset(Asset{}); }, {"draw #0000ff 100", "progress #ff0000"}},
        {"drawn again", [] {}, {}},
        {"a new colour", [&] { view.setNormalColor(QStringLiteral("red")); }, {"normal red"}},
        {"another progress colour", [&] { view.setProgressColor(QStringLiteral("lime")); }, {"progress lime"}},
        {"another progress", [&] { view.setProgress(0.5); }, {}},
        {"narrower", layOut(60), {}},
        {"as wide as before", layOut(100), {}},
        {"wider", layOut(120), {"draw red 120", "progress lime"}},
        {"smooth", [&] { view.setAntialiasingEnabled(true); }, {"draw red 120 smooth", "progress lime"}},
        {"as smooth", [&] { view.setAntialiasingEnabled(true); }, {}},
        {"another asset", [&] { view.setAsset(Asset{}); }, {"draw red 120 smooth", "progress lime"}},
        {"none", [&] { view.setAsset(std::nullopt); }, {}},
    };
    for (const auto& step : steps) {
        canvas.calls.clear();
        step.change();
        view.generateWaveforms();
        EXPECT_EQ(canvas.calls, step.calls) << step.what;
    }
    EXPECT_EQ(view.progressCropFrame(), QRectF(0, 0, 60, 20));
    EXPECT_EQ(view.normalCropFrame(), QRectF(60, 0, 60, 20));
    EXPECT_EQ(view.imageFrame(), QRectF(0, 0, 120, 20));
}

}  // namespace
}  // namespace tavi::test
