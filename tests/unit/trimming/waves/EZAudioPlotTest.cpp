#include "trimming/waves/EZAudioPlot.h"

#include <gmock/gmock.h>

#include <QPainterPath>
#include <cmath>
#include <limits>
#include <vector>

#include "support/FakeDisplayRefresh.h"
#include "support/Pictures.h"
#include "trimming/waves/EZAudioPlotPainter.h"

namespace tavi::test {
namespace {

using ::testing::ElementsAre;

/// A plot of 8 x 101 that draws what it is fed at once.
struct Fixture {
    explicit Fixture(const QRectF& frame = QRectF(5.0, 7.0, 8.0, 101.0))
        : plot(EZAudioPlot::initWithFrame(refreshes, frame)) {
        plot->setShouldOptimizeForRealtimePlot(false);
    }

    void feed(const std::vector<float>& samples) const {
        plot->updateBuffer(samples.data(), static_cast<quint32>(samples.size()));
    }
    const std::vector<PlotPath::Polyline>& lines() const { return plot->waveformLayer().path().polylines; }

    FakeDisplayRefreshes refreshes;
    std::unique_ptr<EZAudioPlot> plot;
};

TEST(EZAudioPlot, DrawsFedSamplesAsPolylines) {
    // 101 high: the half height is rounded down to 50. With its axis below, a plot is twice the half height high.
    const std::vector<QPointF> up = {{0, 50}, {2, 25}, {4, 75}, {6, 50}};
    const std::vector<QPointF> down = {{0, 50}, {2, 75}, {4, 25}, {6, 50}};
    const struct {
        bool fill, mirror, center;
        std::vector<std::vector<QPointF>> lines;
    } cases[] = {
        {false, false, true, {up}},
        {true, true, true, {up, down}},
        {false, true, true, {up, down}},
        {true, false, false, {{{0, 101}, {2, 51}, {4, 151}, {6, 101}}}},
    };
    for (const auto& [fill, mirror, center, lines] : cases) {
        SCOPED_TRACE(::testing::Message() << fill << mirror << center);
        Fixture fixture;
        fixture.plot->setShouldFill(fill);
        fixture.plot->setShouldMirror(mirror);
        fixture.plot->setShouldCenterYAxis(center);
        fixture.plot->setGain(2.0F);
        fixture.feed({0.7F, 0.25F, -0.25F, 0.7F});
        ASSERT_EQ(fixture.lines().size(), lines.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_EQ(fixture.lines()[i].points, lines[i]);
            EXPECT_EQ(fixture.lines()[i].closed, fill && i + 1 == lines.size());
        }
        EXPECT_EQ(fixture.plot->waveformLayer().fillColor, fill ? QStringLiteral("#ff0000") : QString());
        fixture.plot->setColor(QStringLiteral("blue"));
        EXPECT_EQ(fixture.plot->waveformLayer().strokeColor, QStringLiteral("blue"));
        EXPECT_EQ(fixture.plot->waveformLayer().fillColor, fill ? QStringLiteral("blue") : QString());
    }
}

TEST(EZAudioPlot, TakesAnyNumberOfPointsAndRollsThroughTheLatestLevels) {
    Fixture fixture;
    fixture.feed({0.7F});
    EXPECT_THAT(fixture.lines().at(0).points, ElementsAre(QPointF(0, 50)));
    fixture.feed({});
    EXPECT_TRUE(fixture.plot->waveformLayer().path().isEmpty());
    fixture.plot->clear();
    fixture.feed(std::vector<float>(9000, 0.5F));
    fixture.plot->clear();
    EXPECT_EQ(fixture.lines().at(0).points.size(), 8192U);

    EXPECT_EQ(fixture.plot->setRollingHistoryLength(9000), 8192);
    fixture.plot->setRollingHistoryLength(4);
    fixture.plot->setPlotType(EZPlot::Rolling);
    for (const float level : {0.2F, 0.4F, 0.6F, 0.8F, 1.0F, 0.3F}) {
        fixture.feed({level, -level});
    }
    // The window stands as it was after the level before the last; its ends lie on the axis.
    ASSERT_EQ(fixture.plot->pointCount(), 4U);
    EXPECT_FLOAT_EQ(static_cast<float>(fixture.plot->points()[2].y()), 0.8F);
    EXPECT_EQ(fixture.plot->points()[3].y(), 0.0);
    fixture.plot->setRollingHistoryLength(-3);
    fixture.feed({0.5F});
    EXPECT_EQ(fixture.plot->pointCount(), 0U);
}

TEST(EZAudioPlot, FollowsTheDisplayWhileOptimizedForRealtime) {
    FakeDisplayRefreshes refreshes;
    const auto plot = EZAudioPlot::initWithFrame(refreshes, QRectF(0, 0, 8, 100));
    const std::vector<float> samples(4, 0.5F);
    const auto drawn = [&plot] { return plot->waveformLayer().path().polylines.at(0).points.size(); };
    plot->updateBuffer(samples.data(), 4);
    EXPECT_EQ(drawn(), 100U);
    refreshes.showFrame();
    EXPECT_EQ(drawn(), 4U);

    // Turned on a second time it ends without a link.
    plot->setShouldOptimizeForRealtimePlot(true);
    EXPECT_EQ(plot->displayLink(), nullptr);

    // A link outlives what it was to call.
    const auto orphan = [&refreshes] {
        QObject gone;
        return EZAudioDisplayLink::displayLinkWithDelegate(refreshes, &gone);
    }();
    orphan->start();
    refreshes.showFrame();
    EXPECT_FALSE(orphan->displayLink().isPaused());
    orphan->stop();
    EXPECT_TRUE(orphan->displayLink().isPaused()) << "or the display goes on waking the program";
}

/// Words and pauses, every level another than its neighbours.
std::vector<float> speech() {
    std::vector<float> levels;
    for (int i = 0; i < 1024; ++i) {
        const double word = std::max(0.0, std::sin(0.05 * i));
        levels.push_back(static_cast<float>(0.6 * word * (0.4 + 0.6 * (i * 37 % 101) / 101.0)));
    }
    return levels;
}

/// The plot's lines as one path, painted in one go.
QImage plainImage(const EZAudioPlot& plot) {
    QImage image(plot.bounds().size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(plot.backgroundColor()));
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const auto& line : plot.waveformLayer().path().polylines) {
        path.addPolygon(QPolygonF(QList<QPointF>(line.points.begin(), line.points.end())));
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color(plot.waveformLayer().strokeColor);
    painter.setPen(QPen(color, plot.waveformLayer().lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(plot.shouldFill() ? QBrush(color) : QBrush());
    painter.drawPath(path);
    return image;
}

TEST(EZAudioPlotPainter, PaintsInStripsWhatOnePathWouldPaint) {
    for (const bool fill : {true, false}) {
        Fixture fixture(QRectF(0, 0, 390, 200));
        fixture.plot->setBackgroundColor(QStringLiteral("#151515"));
        fixture.plot->setShouldFill(fill);
        fixture.plot->setShouldMirror(true);
        fixture.feed(speech());
        const QImage painted = plotImage(*fixture.plot);
        // An area that takes in its stroke has other edges here and there.
        EXPECT_LT(differences(painted, plainImage(*fixture.plot)), fill ? 100 : 1) << "filled: " << fill;
        if (fill) {
            expectLooksLike(painted, QStringLiteral(TAVI_PICTURES "/EZAudioPlot.png"));
        }
    }
}

TEST(EZAudioPlotPainter, TakesWhatIsNoNumberForSilenceAndNoAreaForNoPicture) {
    constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
    constexpr float kEndless = std::numeric_limits<float>::infinity();
    QImage pictures[2];
    for (const bool broken : {false, true}) {
        Fixture fixture(QRectF(0, 0, 40, 20));
        fixture.plot->setShouldFill(true);
        fixture.plot->setShouldMirror(true);
        fixture.feed({0.5F, 0.5F, broken ? kNone : 0.0F, 0.5F, broken ? kEndless : 2000.0F, 0.5F});
        pictures[broken ? 1 : 0] = plotImage(*fixture.plot);
    }
    EXPECT_EQ(pictures[0], pictures[1]);
    EXPECT_TRUE(plotImage(*Fixture(QRectF()).plot).isNull());
}

}  // namespace
}  // namespace tavi::test
