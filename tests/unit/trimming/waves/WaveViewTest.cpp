#include <gtest/gtest.h>

#include <vector>

#include "trimming/waves/WaveView.h"

namespace tavi::test {
namespace {

/// A wave and what it asked to have painted.
struct Feed {
    explicit Feed(int type, QSizeF size = {4.0, 100.0}) {
        wave.setFrameSize(size);
        wave.setWaveType(type, 0.0, -160.0).setZeroPointValue(-45.0);
        QObject::connect(&wave, &WaveView::needsDisplay, &wave,
                         [this](const QRectF& rect) { painted.push_back(rect); });
    }

    WaveView wave;
    std::vector<QRectF> painted;
};

TEST(WaveView, DrawsEachReadingAsTall) {
    struct Case {
        int type;
        double reading;
        double newY;
    };
    // Height 100: the mirror type reaches 50 to both sides of the middle.
    const Case cases[] = {
        {WaveView::Mirror, 0.0, 0.0},
        {WaveView::Mirror, -22.5, 25.0},
        {WaveView::Mirror, -45.0, 50.0},
        {WaveView::Mirror, -45.1, 49.0},
        {WaveView::Mirror, -160.0, 49.0},
        {WaveView::Default, -40.0, 25.0},
        {7, -10.0, 50.0},
    };
    for (const auto& [type, reading, newY] : cases) {
        SCOPED_TRACE(::testing::Message() << "type " << type << ", reading " << reading);
        Feed feed(type);
        feed.wave.startWavingWithValue(reading);
        EXPECT_DOUBLE_EQ(feed.wave.newPoint().y(), newY);
        EXPECT_EQ(feed.painted, std::vector{QRectF(0.0, 0.0, 1.0, 100.0)});
        if (type == WaveView::Mirror) {
            EXPECT_EQ(feed.wave.mirrorBar(), QRectF(0.0, newY, 1.0, 100.0 - 2.0 * newY));
        }
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
