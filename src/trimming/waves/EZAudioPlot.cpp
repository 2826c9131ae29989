#include "trimming/waves/EZAudioPlot.h"

#include <algorithm>
#include <cmath>

namespace tavi {

namespace {

constexpr std::size_t kPointCapacity = 8192;

}  // namespace

EZAudioPlot::EZAudioPlot(Key key, DisplayRefreshes& refreshes) : m_refreshes(refreshes) {
    Q_UNUSED(key)
}

void EZAudioPlot::initPlot(const QRectF& frame) {
    m_bounds = QRectF(QPointF(), frame.size());
    setShouldCenterYAxis(true);
    setShouldOptimizeForRealtimePlot(true);
    setGain(1.0F);
    setPlotType(Buffer);
    setShouldMirror(false);
    setShouldFill(false);
    resetHistoryBuffers();
    m_waveformLayer = EZAudioPlotWaveformLayer();
    m_waveformLayer.frame = m_bounds;
    setColor(QStringLiteral("#ff0000"));
    setBackgroundColor(QString());
    setupPlot();
    m_points.resize(kPointCapacity);
    m_pointCount = initialPointCount();
    redraw();
}

void EZAudioPlot::setBackgroundColor(const QString& color) {
    EZPlot::setBackgroundColor(color);
    Q_EMIT needsDisplay();
}

void EZAudioPlot::setColor(const QString& color) {
    EZPlot::setColor(color);
    m_waveformLayer.strokeColor = color;
    if (shouldFill()) {
        m_waveformLayer.fillColor = color;
    }
    Q_EMIT needsDisplay();
}

void EZAudioPlot::setShouldFill(bool fill) {
    EZPlot::setShouldFill(fill);
    m_waveformLayer.fillColor = fill ? color() : QString();
    Q_EMIT needsDisplay();
}

void EZAudioPlot::setShouldOptimizeForRealtimePlot(bool optimize) {
    m_shouldOptimizeForRealtimePlot = optimize;
    if (optimize && !m_displayLink) {
        m_displayLink = EZAudioDisplayLink::displayLinkWithDelegate(m_refreshes, this);
        m_displayLink->start();
    } else if (m_displayLink) {
        // On purpose also when it is turned on a second time.
        m_displayLink->stop();
        m_displayLink.reset();
    }
}

int EZAudioPlot::setRollingHistoryLength(int length) {
    m_historyInfo->bufferSize = std::min(length, maximumRollingHistoryLength());
    return m_historyInfo->bufferSize;
}

void EZAudioPlot::updateBuffer(const float* buffer, quint32 bufferSize) {
    EZAudioUtilities::appendBufferRMS(buffer, bufferSize, m_historyInfo.get());
    if (plotType() == Buffer) {
        setSampleData(buffer, static_cast<int>(std::min<quint32>(bufferSize, kPointCapacity)));
    } else if (plotType() == Rolling) {
        setSampleData(m_historyInfo->buffer, m_historyInfo->bufferSize);
    }
    if (!m_shouldOptimizeForRealtimePlot) {
        redraw();
    }
}

void EZAudioPlot::setSampleData(const float* data, int length) {
    const std::size_t count = std::min(static_cast<std::size_t>(std::max(length, 0)), m_points.size());
    for (std::size_t i = 0; i < count; ++i) {
        m_points[i] = QPointF(static_cast<double>(i), static_cast<double>(data[i] * gain()));
    }
    if (count > 0) {
        // A filled shape starts and ends on the axis.
        m_points[count - 1].setY(0.0);
        m_points[0].setY(0.0);
    }
    m_pointCount = static_cast<quint32>(count);
}

PlotPath EZAudioPlot::createPathWithPoints(const QPointF* points, quint32 pointCount, const QRectF& rect) const {
    PlotPath path;
    if (pointCount == 0) {
        return path;
    }
    const double xScale = rect.width() / static_cast<double>(static_cast<float>(pointCount));
    const double halfHeight = std::floor(rect.height() * 0.5);
    const double axis = m_shouldCenterYAxis ? rect.y() + halfHeight : rect.height();
    const double height = m_shouldCenterYAxis ? halfHeight : 2.0 * halfHeight;
    const auto addPolyline = [&](double yScale) {
        PlotPath::Polyline& line = path.polylines.emplace_back();
        line.points.reserve(pointCount);
        for (quint32 i = 0; i < pointCount; ++i) {
            line.points.emplace_back(points[i].x() * xScale, axis + points[i].y() * yScale);
        }
    };
    const double upwards = isDeviceOriginFlipped() ? -height : height;
    addPolyline(upwards);
    if (shouldMirror()) {
        addPolyline(-upwards);
    }
    path.polylines.back().closed = shouldFill();
    return path;
}

void EZAudioPlot::redraw() {
    PlotPath path = createPathWithPoints(m_points.data(), m_pointCount, m_waveformLayer.frame);
    if (m_shouldOptimizeForRealtimePlot) {
        const LayerTransaction transaction = LayerTransaction::withoutActions();
        m_waveformLayer.setPath(std::move(path));
    } else {
        m_waveformLayer.setPath(std::move(path));
    }
    Q_EMIT needsDisplay();
}

void EZAudioPlot::clear() {
    if (m_pointCount == 0) {
        return;
    }
    resetHistoryBuffers();
    const std::vector<float> zeros(m_pointCount);
    setSampleData(zeros.data(), static_cast<int>(m_pointCount));
    redraw();
}

void EZAudioPlot::resetHistoryBuffers() {
    m_historyInfo.reset(
        EZAudioUtilities::historyInfoWithDefaultLength(defaultRollingHistoryLength(), maximumRollingHistoryLength()));
}

void EZAudioPlot::displayLinkNeedsDisplay(EZAudioDisplayLink* displayLink) {
    Q_UNUSED(displayLink)
    redraw();
}

void EZAudioPlot::setFrameSize(const QSizeF& size) {
    const LayerTransaction transaction = LayerTransaction::withoutActions();
    m_bounds = QRectF(QPointF(), size);
    m_waveformLayer.frame = m_bounds;
    redraw();
}

}  // namespace tavi
