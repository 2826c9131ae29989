#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <memory>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudioMemory.h"
#include "trimming/waves/EZAudioDisplayLink.h"
#include "trimming/waves/EZAudioPlotWaveformLayer.h"
#include "trimming/waves/EZPlot.h"

namespace tavi {

/// Draws samples, or the recent history of their levels, as one path in a layer.
///
/// Sizes are device-independent pixels, y downwards. needsDisplay() says when the layer looks different; whoever paints
/// the layer tells the plot its size. Main thread only: another thread's samples have to be handed over to it.
class EZAudioPlot : public EZPlot, public EZAudioDisplayLinkDelegate {
    Q_OBJECT
    Q_INTERFACES(tavi::EZAudioDisplayLinkDelegate)

    struct Key {
        explicit Key() = default;
    };

public:
    static constexpr int defaultRollingHistoryLength() { return 512; }
    static constexpr int maximumRollingHistoryLength() { return 8192; }
    static constexpr int initialPointCount() { return 100; }
    /// Whether y grows downwards on the screen.
    static constexpr bool isDeviceOriginFlipped() { return true; }

    /// A plot that is set up: red, neither filled nor mirrored, drawn on the display's refresh. refreshes must outlive
    /// it. Plots are made here only, because the set-up ends with their setupPlot().
    template <typename Plot = EZAudioPlot>
    static std::unique_ptr<Plot> initWithFrame(DisplayRefreshes& refreshes, const QRectF& frame) {
        auto plot = std::make_unique<Plot>(Key(), refreshes);
        plot->initPlot(frame);
        return plot;
    }
    template <typename Plot = EZAudioPlot>
    static std::unique_ptr<Plot> init(DisplayRefreshes& refreshes) {
        return initWithFrame<Plot>(refreshes, QRectF());
    }
    EZAudioPlot(Key key, DisplayRefreshes& refreshes);

    void setBackgroundColor(const QString& color) override;
    void setColor(const QString& color) override;
    void setShouldFill(bool fill) override;
    bool shouldCenterYAxis() const { return m_shouldCenterYAxis; }
    void setShouldCenterYAxis(bool center) { m_shouldCenterYAxis = center; }
    /// Whether fed samples are drawn with the display's next refresh instead of at once.
    bool shouldOptimizeForRealtimePlot() const { return m_shouldOptimizeForRealtimePlot; }
    void setShouldOptimizeForRealtimePlot(bool optimize);
    /// How many levels the rolling type shows; at most maximumRollingHistoryLength().
    int rollingHistoryLength() const { return m_historyInfo->bufferSize; }
    int setRollingHistoryLength(int length);

    void updateBuffer(const float* buffer, quint32 bufferSize) override;
    /// Takes samples as points (i, sample x gain), the first and the last on the axis. Of more than 8192, which callers
    /// must not pass, the first are taken; of a length below 1 none.
    void setSampleData(const float* data, int length);
    void redraw();
    void clear() override;
    void resetHistoryBuffers();
    /// The path of points in rect: stretched to its width, a value of 1 reaching its upper edge.
    PlotPath createPathWithPoints(const QPointF* points, quint32 pointCount, const QRectF& rect) const;
    void displayLinkNeedsDisplay(EZAudioDisplayLink* displayLink) override;

    /// Lays the plot out in an area of that size.
    void setFrameSize(const QSizeF& size);
    QRectF bounds() const { return m_bounds; }

    const EZAudioPlotWaveformLayer& waveformLayer() const { return m_waveformLayer; }
    const std::vector<QPointF>& points() const { return m_points; }
    quint32 pointCount() const { return m_pointCount; }
    const PlotHistoryInfo& historyInfo() const { return *m_historyInfo; }
    /// Present exactly while refreshes of the display are followed.
    const EZAudioDisplayLink* displayLink() const { return m_displayLink.get(); }

Q_SIGNALS:
    void needsDisplay();

protected:
    /// Called at the end of the set-up, for subclasses.
    virtual void setupPlot() {}

private:
    void initPlot(const QRectF& frame);

    DisplayRefreshes& m_refreshes;
    QRectF m_bounds;
    EZAudioPlotWaveformLayer m_waveformLayer;
    std::vector<QPointF> m_points;
    quint32 m_pointCount = 0;
    OwnedHistoryInfo m_historyInfo;
    bool m_shouldCenterYAxis = false;
    bool m_shouldOptimizeForRealtimePlot = false;
    std::unique_ptr<EZAudioDisplayLink> m_displayLink;
};

}  // namespace tavi
