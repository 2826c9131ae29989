#include "trimming/waves/EZAudioPlotPainter.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace tavi {

namespace {

using Polyline = PlotPath::Polyline;

/// Device pixels a strip is wide. Qt's rasteriser is several times slower on one area of thousands of edges than on
/// strips of some hundred; at edges of pixels the strips give the same picture.
constexpr double kStripWidth = 32.0;
/// How far beyond its strip a line is followed, in line widths: a mitre may reach back from there.
constexpr double kReach = 2.0;
/// Cosine between the normals of two pieces of a line whose joint is still a mitre, as with Qt's own pens; sharper ones
/// are cut off.
constexpr double kSharpestMitre = -0.875;
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

enum class Side { Above, Below, Both };

/// The side of its axis on which a line stays. One that is flat can be on either; the reflection then is below.
Side sideOf(const Polyline& line, bool isReflection) {
    const double axis = line.points.front().y();
    const auto isAbove = [axis](const QPointF& point) { return !(point.y() > axis); };
    const auto isBelow = [axis](const QPointF& point) { return !(point.y() < axis); };
    const bool above = std::all_of(line.points.begin(), line.points.end(), isAbove);
    const bool below = std::all_of(line.points.begin(), line.points.end(), isBelow);
    if (above && below) {
        return isReflection ? Side::Below : Side::Above;
    }
    return above ? Side::Above : below ? Side::Below : Side::Both;
}

/// A line moved away from its axis by reach, as the outer edge of a stroke of twice that width runs. It passes through
/// the points at which the line bends inwards, so that the areas that it adds all turn the same way and none is a hole.
QPolygonF outerEdge(const QPolygonF& line, Side lineSide, double reach) {
    const double side = lineSide == Side::Above ? 1.0 : -1.0;
    const auto outwards = [&line, side](qsizetype i) {
        const QPointF along = line[i] - line[i - 1];
        const double length = std::hypot(along.x(), along.y());
        return length > 0.0 ? QPointF(along.y(), -along.x()) * (side / length) : QPointF(0.0, -side);
    };
    QPolygonF edge;
    edge.reserve(3 * line.size());
    edge << line.front();
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QPointF normal = outwards(i);
        edge << line[i - 1] + normal * reach;
        if (i + 1 == line.size()) {
            edge << line[i] + normal * reach << line[i];
            break;
        }
        const QPointF next = outwards(i + 1);
        const double bend = (normal.x() * next.y() - normal.y() * next.x()) * side;
        const double cosine = QPointF::dotProduct(normal, next);
        if (bend > 0.0 && cosine >= kSharpestMitre) {
            edge << line[i] + (normal + next) * (reach / (1.0 + cosine));
        } else {
            edge << line[i] + normal * reach;
            if (bend <= 0.0) {
                edge << line[i];
            }
        }
    }
    return edge;
}

void addArea(QPainterPath& area, QPolygonF line, double axis) {
    line << QPointF(line.back().x(), axis) << QPointF(line.front().x(), axis);
    // From right to left, each edge comes to lie before those that the rasteriser already has.
    std::reverse(line.begin(), line.end());
    area.addPolygon(line);
}

/// Paints a layer part by part. Lines run from left to right, and start and end on the axis.
class LayerPainter {
public:
    LayerPainter(const EZAudioPlotWaveformLayer& layer, const QColor& tint)
        : m_layer(layer), m_stroke(colorOf(layer.strokeColor, tint)), m_fill(colorOf(layer.fillColor, tint)) {
        // Of a stroke in the colour of the area only the outer half is seen, and the area can take it in.
        const bool merges = m_fill == m_stroke && m_stroke.alpha() == 255;
        for (const Polyline& line : layer.path().polylines) {
            m_sides.push_back(merges ? sideOf(line, !m_sides.empty()) : Side::Both);
        }
    }

    /// What lies between two x.
    void paint(QPainter& painter, double left, double right) const {
        const double reach = kReach * m_layer.lineWidth;
        QPainterPath area;
        area.setFillRule(Qt::WindingFill);
        std::vector<QPolygonF> lines;
        for (std::size_t i = 0; i < m_sides.size(); ++i) {
            const Polyline& line = m_layer.path().polylines[i];
            const double axis = line.points.front().y();
            QPolygonF points = piece(line, left - reach, right + reach);
            if (m_sides[i] != Side::Both) {
                addArea(area, outerEdge(points, m_sides[i], 0.5 * m_layer.lineWidth), axis);
                continue;
            }
            if (m_fill.alpha() > 0) {
                addArea(area, points, axis);
            }
            lines.push_back(std::move(points));
        }
        if (!area.isEmpty()) {
            painter.fillPath(area, m_fill);
        }
        if (m_stroke.alpha() > 0) {
            painter.setPen(QPen(m_stroke, m_layer.lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            for (const QPolygonF& line : lines) {
                painter.drawPolyline(line);
            }
            for (const Polyline& line : m_layer.path().polylines) {
                if (line.closed) {
                    painter.drawLine(line.points.back(), line.points.front());
                }
            }
        }
    }

private:
    static QColor colorOf(const QString& name, const QColor& tint) {
        return name.isEmpty() ? QColor(Qt::transparent) : tint.isValid() ? tint : QColor(name);
    }

    const EZAudioPlotWaveformLayer& m_layer;
    QColor m_stroke;
    QColor m_fill;
    /// Where each line may be merged into the area; Both where it may not.
    std::vector<Side> m_sides;
};

}  // namespace

void paintPlot(QPainter& painter, const EZAudioPlot& plot, const QRectF& visible, const QColor& tint) {
    const EZAudioPlotWaveformLayer& layer = plot.waveformLayer();
    const QRectF bounds = visible.isNull() ? plot.bounds() : plot.bounds() & visible;
    if (!plot.backgroundColor().isEmpty()) {
        painter.fillRect(bounds, QColor(plot.backgroundColor()));
    }
    if (layer.path().isEmpty() || bounds.isEmpty()) {
        return;
    }
    const LayerPainter layerPainter(layer, tint);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform& transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale) {
        // Edges of strips would be seen where they are not edges of pixels.
        layerPainter.paint(painter, bounds.left(), bounds.right());
    } else {
        const QTransform back = transform.inverted();
        const QRectF device = transform.mapRect(bounds);
        const double top = std::floor(device.top());
        const double height = std::ceil(device.bottom()) - top;
        for (double x = std::floor(device.left()); x < device.right(); x += kStripWidth) {
            const QRectF strip = back.mapRect(QRectF(x, top, kStripWidth, height));
            painter.save();
            painter.setClipRect(strip, Qt::IntersectClip);
            layerPainter.paint(painter, strip.left(), strip.right());
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
