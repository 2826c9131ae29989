#include "trimming/waves/WaveViewItem.h"

#include <QPainter>
#include <QPolygonF>
#include <QQuickWindow>

namespace tavi {

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

void WaveViewItem::adoptSize() {
    // An empty size is a layout still in the making; it must not rewind the wave.
    if (m_wave && !size().isEmpty()) {
        m_wave->setFrameSize(size());
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
    clear(painter);
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
    QPainter painter(&m_picture);
    if (rect.contains(boundingRect())) {
        clear(painter);
    }
    if (m_wave->waveType() == WaveView::Mirror) {
        drawMirror(painter);
    } else if (m_wave->waveType() == WaveView::Default) {
        painter.setClipRect(rect);  // A line's width reaches into its neighbours.
        drawDefault(painter);
    }
    painter.end();
    update(rect.toAlignedRect());
}

void WaveViewItem::clear(QPainter& painter) const {
    painter.fillRect(boundingRect(), m_ground);
    if (m_centreLine.isValid()) {
        painter.fillRect(QRectF(0.0, height() * 0.5 - 0.5, width(), 1.0), m_centreLine);
    }
}

void WaveViewItem::drawMirror(QPainter& painter) const {
    painter.fillRect(m_wave->mirrorBar(), m_barColor.isValid() ? m_barColor : QColor(m_wave->fillingColor()));
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
}

}  // namespace tavi
