#include "trimming/waves/EZAudioPlotPainter.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace tavi {

namespace {

using Polyline = PlotPath::Polyline;

/// Device pixels a strip is wide. Qt's rasteriser takes time by the square of what crosses a line of pixels, so strips
/// of a few hundred edges are many times faster than one area of thousands, and give the same pixels.
constexpr double kStripWidth = 32.0;
/// How far beyond its strip a line is followed, in line widths: a mitre may reach back from there.
constexpr double kReach = 2.0;
/// Device-independent pixels; what lies farther out is as good as there.
constexpr double kFarOut = 16000.0;

/// The points of a line from the last one at or before left to the first one at or behind right.
QPolygonF piece(const Polyline& line, double left, double right) {
    const auto before = [](const QPointF& point, double x) { return point.x() < x; };
    auto first = std::lower_bound(line.points.begin(), line.points.end(), left, before);
    const auto last = std::lower_bound(first, line.points.end(), right, before);
    if (first != line.points.begin()) {
        --first;
    }
    const auto end = last == line.points.end() ? last : last + 1;
    QPolygonF result;
    result.reserve(end - first + 2);
    const double axis = line.points.front().y();
    // What is not a number is silence: levels behind the end of a damaged file.
    std::transform(first, end, std::back_inserter(result), [axis](const QPointF& point) {
        return QPointF(point.x(), std::isnan(point.y()) ? axis : std::clamp(point.y(), -kFarOut, kFarOut));
    });
    return result;
}

/// Paints the layer between two x. Lines run from left to right, and start and end on the axis.
void paintPart(QPainter& painter, const EZAudioPlotWaveformLayer& layer, double left, double right) {
    if (!layer.fillColor.isEmpty()) {
        QPainterPath area;
        area.setFillRule(Qt::WindingFill);
        for (const Polyline& line : layer.path().polylines) {
            QPolygonF polygon = piece(line, left, right);
            const double axis = line.points.front().y();
            polygon << QPointF(polygon.back().x(), axis) << QPointF(polygon.front().x(), axis);
            // From right to left, each edge comes to lie before those that the rasteriser already has.
            std::reverse(polygon.begin(), polygon.end());
            area.addPolygon(polygon);
        }
        painter.fillPath(area, QColor(layer.fillColor));
    }
    if (!layer.strokeColor.isEmpty()) {
        painter.setPen(QPen(QColor(layer.strokeColor), layer.lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.setBrush(Qt::NoBrush);
        const double reach = kReach * layer.lineWidth;
        for (const Polyline& line : layer.path().polylines) {
            painter.drawPolyline(piece(line, left - reach, right + reach));
            if (line.closed) {
                painter.drawLine(line.points.back(), line.points.front());
            }
        }
    }
}

}  // namespace

void paintPlot(QPainter& painter, const EZAudioPlot& plot) {
    const EZAudioPlotWaveformLayer& layer = plot.waveformLayer();
    const QRectF bounds = plot.bounds();
    if (!plot.backgroundColor().isEmpty()) {
        painter.fillRect(bounds, QColor(plot.backgroundColor()));
    }
    if (layer.path().isEmpty() || bounds.isEmpty()) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform& transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale) {
        // Edges of strips would be seen where they are not edges of pixels.
        paintPart(painter, layer, bounds.left(), bounds.right());
    } else {
        const QTransform back = transform.inverted();
        const QRectF device = transform.mapRect(bounds);
        const double top = std::floor(device.top());
        const double height = std::ceil(device.bottom()) - top;
        for (double x = std::floor(device.left()); x < device.right(); x += kStripWidth) {
            const QRectF strip = back.mapRect(QRectF(x, top, kStripWidth, height));
            painter.save();
            painter.setClipRect(strip, Qt::IntersectClip);
            paintPart(painter, layer, strip.left(), strip.right());
            painter.restore();
        }
    }
    painter.restore();
}

QImage plotImage(const EZAudioPlot& plot, double pixelRatio) {
    const QSizeF size = plot.bounds().size() * pixelRatio;
    QImage image(QSize(qCeil(size.width()), qCeil(size.height())), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return image;
    }
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintPlot(painter, plot);
    return image;
}

}  // namespace tavi
