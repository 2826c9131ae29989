#include <gtest/gtest.h>

#include <vector>

#include "trimming/waves/WaveView.h"

namespace tavi::test {
namespace {

TEST(WaveView, DrawsEachReadingAsTallAndStartsAgainAtTheLeftBeyondTheRightEdge) {
    WaveView wave;
    // It can be configured before its layout is known.
    wave.setWaveType(WaveView::Mirror, 0.0, -160.0).setZeroPointValue(-45.0);
    wave.setFrameSize({5.0, 100.0});
    std::vector<QRectF> painted;
    QObject::connect(&wave, &WaveView::needsDisplay, [&painted](const QRectF& rect) { painted.push_back(rect); });
    // The mirror type reaches 50 to both sides of the middle. The fifth step ends exactly at the edge.
    double x = 0.0;
    for (const auto& [reading, top] :
         {std::pair{0.0, 0.0}, {-45.0, 50.0}, {-45.1, 49.0}, {-160.0, 49.0}, {-22.5, 25.0}, {-11.25, 12.5}}) {
        wave.startWavingWithValue(reading);
        const bool isOver = x > 4.0;
        EXPECT_EQ(painted.back(), QRectF(isOver ? 0.0 : x, 0.0, isOver ? 5.0 : 1.0, 100.0));
        EXPECT_EQ(wave.mirrorBar(), QRectF(isOver ? 0.0 : x, top, 1.0, 100.0 - 2.0 * top)) << reading;
        x += 1.0;
    }
    EXPECT_EQ(painted.size(), 6U);
    wave.initwithWaveForm();
    EXPECT_EQ(wave.mirrorBar(), QRectF(0.0, 49.0, 1.0, 2.0));
    wave.setWaveType(WaveView::Default, 0.0, -160.0);
    wave.startWavingWithValue(-40.0);
    EXPECT_DOUBLE_EQ(wave.newPoint().y(), 25.0);
    // The range reaches the farther edge twice over, whichever side of the middle the base line is on.
    for (const auto& [height, range] : {std::pair{80.0, 160.0}, {50.0, 100.0}, {30.0, 140.0}}) {
        wave.setBanchmarkHeight(height);
        EXPECT_EQ(wave.waveRange(), range);
    }
}

}  // namespace
}  // namespace tavi::test
