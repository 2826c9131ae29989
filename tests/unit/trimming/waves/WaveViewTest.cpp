#include <gtest/gtest.h>

#include <vector>

#include "trimming/waves/WaveView.h"

namespace tavi::test {
namespace {

/// A wave and what it asked to have painted.
struct Feed {
    explicit Feed(int type) {
        wave.setFrameSize({4.0, 100.0});
        wave.setWaveType(type, 0.0, -160.0).setZeroPointValue(-45.0);
        QObject::connect(&wave, &WaveView::needsDisplay, &wave,
                         [this](const QRectF& rect) { painted.push_back(rect); });
    }

    WaveView wave;
    std::vector<QRectF> painted;
};

TEST(WaveView, DrawsEachReadingAsTall) {
    // The mirror type reaches 50 to both sides of the middle.
    for (const auto& [reading, top] :
         {std::pair{0.0, 0.0}, {-22.5, 25.0}, {-45.0, 50.0}, {-45.1, 49.0}, {-160.0, 49.0}}) {
        Feed feed(WaveView::Mirror);
        feed.wave.startWavingWithValue(reading);
        EXPECT_EQ(feed.painted, std::vector{QRectF(0.0, 0.0, 1.0, 100.0)});
        EXPECT_EQ(feed.wave.mirrorBar(), QRectF(0.0, top, 1.0, 100.0 - 2.0 * top)) << reading;
    }
    Feed line(WaveView::Default);
    line.wave.startWavingWithValue(-40.0);
    EXPECT_DOUBLE_EQ(line.wave.newPoint().y(), 25.0);
    // The range reaches the farther edge twice over, whichever side of the middle the base line is on.
    for (const auto& [height, range] : {std::pair{80.0, 160.0}, {50.0, 100.0}, {30.0, 140.0}}) {
        line.wave.setBanchmarkHeight(height);
        EXPECT_EQ(line.wave.waveRange(), range);
    }
}

TEST(WaveView, StartsAgainAtTheLeftBeyondTheRightEdge) {
    Feed feed(WaveView::Mirror);
    for (int i = 0; i < 5; ++i) {
        feed.wave.startWavingWithValue(-22.5);
    }
    // The fourth step ends exactly at the edge; the fifth would lie beyond it.
    const QRectF whole(0.0, 0.0, 4.0, 100.0);
    EXPECT_EQ(feed.painted[3], QRectF(3.0, 0.0, 1.0, 100.0));
    EXPECT_EQ(feed.painted[4], whole);
    EXPECT_EQ(feed.wave.mirrorBar(), QRectF(0.0, 25.0, 1.0, 50.0));
}

TEST(WaveView, CanBeConfiguredBeforeItsLayoutIsKnown) {
    WaveView early;
    early.setWaveType(WaveView::Mirror, 0.0, -160.0).setZeroPointValue(-45.0);
    early.setFrameSize({10.0, 60.0});
    early.initwithWaveForm();
    EXPECT_EQ(early.mirrorBar(), QRectF(0.0, 29.0, 1.0, 2.0));
}

}  // namespace
}  // namespace tavi::test
