#include "trimming/waves/WaveViewItem.h"

#include <QPainter>
#include <QPolygonF>
#include <QQuickWindow>
#include <cmath>

namespace tavi {

namespace {

/// Between the strip's end and what is left of the pass before.
constexpr int kBlankColumns = 5;
constexpr int kColumnsPerSecond = 10;
constexpr double kHeadWidth = 2.0;
constexpr float kNoBar = -1.0F;

}  // namespace

WaveViewItem::WaveViewItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    // Everything below is covered, so nothing is blended.
    setOpaquePainting(true);
}

void WaveViewItem::setWave(WaveView* wave) {
    if (wave == m_wave) {
        return;
    }
    if (m_wave) {
        m_wave->disconnect(this);
    }
    m_wave = wave;
    if (m_wave) {
        connect(m_wave, &WaveView::needsDisplay, this, &WaveViewItem::display);
        adoptSize();
    }
    Q_EMIT waveChanged();
}

void WaveViewItem::setHeadColor(const QColor& color) {
    if (color != m_headColor) {
        m_headColor = color;
        update();
        Q_EMIT headColorChanged();
    }
}

void WaveViewItem::setEarlier(const QList<double>& levels) {
    if (levels == m_earlier) {
        return;
    }
    m_earlier = levels;
    Q_EMIT earlierChanged();
    if (m_wave && m_wave->newPoint().x() <= 0.0 && !levels.isEmpty()) {
        display(QRectF(QPointF(), m_wave->frameSize()));
    }
}

void WaveViewItem::adoptSize() {
    // An empty size is a layout still in the making; it must not rewind the wave.
    if (m_wave && !size().isEmpty()) {
        m_wave->setFrameSize({std::floor(width() / m_columnWidth), height()});
        fitPicture();
        update();
    }
}

void WaveViewItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        adoptSize();
    }
}

void WaveViewItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        adoptSize();
    }
}

bool WaveViewItem::fitPicture() {
    const double ratio = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    const QSize pixels(qCeil(width() * ratio), qCeil(height() * ratio));
    if (pixels.isEmpty()) {
        return false;
    }
    if (m_picture.size() == pixels && qFuzzyCompare(m_picture.devicePixelRatio(), ratio)) {
        return true;
    }
    QImage picture(pixels, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.fillRect(boundingRect(), m_ground);
    const QSizeF oldSize = m_picture.deviceIndependentSize();
    // The window went to a screen of another density: the same picture, rescaled.
    if (!m_picture.isNull() && qAbs(oldSize.width() - width()) < 1.0 && qAbs(oldSize.height() - height()) < 1.0) {
        painter.drawImage(boundingRect(), m_picture);
    }
    painter.end();
    m_picture = std::move(picture);
    return true;
}

void WaveViewItem::display(const QRectF& rect) {
    if (!fitPicture()) {
        return;
    }
    const bool isAll = rect.contains(QRectF(QPointF(), m_wave->frameSize()));
    QPainter painter(&m_picture);
    if (isAll) {
        haunt();
        keepPass();
        drawGround(painter, 0, qCeil(width() / m_columnWidth));
    }
    const QRectF shown(rect.x() * m_columnWidth, 0.0, rect.width() * m_columnWidth, height());
    if (m_wave->waveType() == WaveView::Mirror) {
        drawMirror(painter);
    } else if (m_wave->waveType() == WaveView::Default) {
        painter.setClipRect(shown);  // A line's width reaches into its neighbours.
        drawDefault(painter);
    }
    painter.end();
    isAll ? update() : update(shown.adjusted(0.0, 0.0, kBlankColumns * m_columnWidth, 0.0).toAlignedRect());
}

void WaveViewItem::haunt() {
    if (!m_pass.empty()) {
        m_earlier.clear();
    }
    if (m_earlier.isEmpty()) {
        return;
    }
    m_ghost.resize(static_cast<std::size_t>(std::max(1.0, m_wave->frameSize().width())));
    for (std::size_t column = 0; column < m_ghost.size(); ++column) {
        const auto part = static_cast<qsizetype>(column * static_cast<std::size_t>(m_earlier.size()) / m_ghost.size());
        m_ghost[column] = static_cast<float>(m_earlier[part]);
    }
}

void WaveViewItem::keepPass() {
    if (m_ghost.size() < m_pass.size()) {
        m_ghost.resize(m_pass.size(), kNoBar);
    }
    for (std::size_t column = 0; column < m_pass.size(); ++column) {
        if (m_pass[column] >= 0.0F) {
            m_ghost[column] = m_pass[column];
        }
    }
    m_pass.clear();
}

void WaveViewItem::drawGround(QPainter& painter, int from, int columns) const {
    const double left = from * m_columnWidth;
    const QRectF strip(left, 0.0, columns * m_columnWidth, height());
    painter.save();
    painter.setClipRect(strip);
    painter.fillRect(strip, m_ground);
    if (m_centreLine.isValid()) {
        painter.fillRect(QRectF(left, height() * 0.5 - 0.5, strip.width(), 1.0), m_centreLine);
    }
    if (m_scaleColor.isValid()) {
        for (int column = from; column < from + columns; ++column) {
            for (const double part : {1.0 / 6.0, 1.0 / 3.0, 2.0 / 3.0, 5.0 / 6.0}) {
                painter.fillRect(QRectF(column * m_columnWidth, std::round(height() * part), m_columnWidth / 2.0, 1.0),
                                 m_scaleColor);
            }
            if (column > 0 && column % kColumnsPerSecond == 0) {
                const double tick = column % (5 * kColumnsPerSecond) == 0 ? 10.0 : 5.0;
                painter.fillRect(QRectF(column * m_columnWidth, height() - tick, 1.0, tick), m_scaleColor);
            }
        }
    }
    painter.restore();
}

void WaveViewItem::drawMirror(QPainter& painter) {
    const int column = qRound(m_wave->lastPoint().x());
    const bool isStep = m_wave->newPoint().x() > m_wave->lastPoint().x();
    if (isStep) {
        m_pass.resize(static_cast<std::size_t>(column) + 1, kNoBar);
        const double range = m_wave->waveRange();
        m_pass.back() = range > 0.0 ? static_cast<float>((range - m_wave->newPoint().y()) / range) : kNoBar;
        drawGround(painter, column, 1 + kBlankColumns);
        const double left = m_wave->mirrorBar().x() * m_columnWidth;
        painter.fillRect(QRectF(left, m_wave->mirrorBar().y(), m_columnWidth, m_wave->mirrorBar().height()),
                         m_barColor.isValid() ? m_barColor : QColor(m_wave->fillingColor()));
    }
    // After a wrap or a reset everything else is of an earlier pass.
    const bool isStart = !isStep || column == 0;
    for (std::size_t i = isStep ? 1 + kBlankColumns : 0; isStart && m_ghostColor.isValid() && i < m_ghost.size(); ++i) {
        drawBar(painter, static_cast<int>(i), m_ghost[i], m_ghostColor);
    }
}

void WaveViewItem::drawBar(QPainter& painter, int column, float height, const QColor& color) const {
    const double half = height * m_wave->waveRange();
    if (half > 0.0) {
        painter.fillRect(QRectF(column * m_columnWidth, m_wave->waveRange() - half, m_columnWidth, 2.0 * half), color);
    }
}

void WaveViewItem::drawDefault(QPainter& painter) const {
    const auto [last, next] = m_wave->defaultSegment();
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_wave->isFilling()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_barColor.isValid() ? m_barColor : QColor(m_wave->fillingColor()));
        painter.drawPolygon(QPolygonF({next, {next.x(), height()}, {last.x(), height()}, last}));
    }
    painter.setPen(QPen(m_barColor.isValid() ? m_barColor : QColor(m_wave->lineColor()), m_wave->lineWidth()));
    painter.drawLine(last, next);
}

void WaveViewItem::paint(QPainter* painter) {
    if (!m_picture.isNull()) {
        painter->drawImage(QPointF(), m_picture);
    }
    const double head = m_wave ? m_wave->newPoint().x() * m_columnWidth : 0.0;
    if (m_headColor.alpha() > 0 && head > 0.0) {
        painter->fillRect(QRectF(std::round(head), 0.0, kHeadWidth, height()), m_headColor);
    }
}

}  // namespace tavi
