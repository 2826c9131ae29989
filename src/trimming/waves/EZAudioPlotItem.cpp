#include "trimming/waves/EZAudioPlotItem.h"

#include "trimming/waves/EZAudioPlotPainter.h"

namespace tavi {

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
        m_plot->setFrameSize(size());
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
        paintPlot(*painter, *m_plot);
    }
}

}  // namespace tavi
