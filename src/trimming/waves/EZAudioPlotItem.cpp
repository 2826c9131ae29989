#include "trimming/waves/EZAudioPlotItem.h"

#include "trimming/waves/EZAudioPlotPainter.h"

namespace tavi {

EZAudioPlotItem::EZAudioPlotItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &EZAudioPlotItem::viewChanged, this, [this] {
        adoptSize();
        update();
    });
}

void EZAudioPlotItem::setPlot(EZAudioPlot* plot) {
    if (plot == m_plot) {
        return;
    }
    if (m_plot) {
        m_plot->disconnect(this);
    }
    m_plot = plot;
    if (m_plot) {
        connect(m_plot, &EZAudioPlot::needsDisplay, this, [this] { update(); });
        adoptSize();
    }
    update();
    Q_EMIT plotChanged();
}

void EZAudioPlotItem::adoptSize() {
    // An empty size is a layout still in the making.
    if (m_plot && !size().isEmpty()) {
        const QSizeF whole(m_contentWidth > 0.0 ? m_contentWidth : width(), height());
        // Each new size computes the path anew.
        if (whole != m_plot->bounds().size()) {
            m_plot->setFrameSize(whole);
        }
    }
}

void EZAudioPlotItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        adoptSize();
    }
}

void EZAudioPlotItem::paint(QPainter* painter) {
    if (m_plot) {
        painter->translate(-m_contentX, 0.0);
        paintPlot(*painter, *m_plot, QRectF(m_contentX, 0.0, width(), height()),
                  m_tint.alpha() > 0 ? m_tint : QColor());
    }
}

}  // namespace tavi
