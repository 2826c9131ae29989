#include "trimming/waves/SCWaveformViewItem.h"

#include <QPainter>
#include <QQuickWindow>

#include "trimming/waves/SCWaveformPainter.h"

namespace tavi {

void SCWaveformViewItem::setView(SCWaveformView* view) {
    if (view == m_view) {
        return;
    }
    if (m_view) {
        m_view->disconnect(this);
        m_view->setCanvas(nullptr);
    }
    dropImages();
    m_view = view;
    if (m_view) {
        connect(m_view, &SCWaveformView::needsDisplay, this, &SCWaveformViewItem::display);
        connect(m_view, &SCWaveformView::cropChanged, this, [this] { update(); });
        m_view->setCanvas(this);
        m_view->layoutSubviews(size());
    }
    Q_EMIT viewChanged();
}

void SCWaveformViewItem::display() {
    polish();
    update();
}

void SCWaveformViewItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (m_view && newGeometry.size() != oldGeometry.size()) {
        m_view->layoutSubviews(newGeometry.size());
        display();
    }
}

void SCWaveformViewItem::updatePolish() {
    // A layout in the making has no area yet.
    if (m_view && !size().isEmpty()) {
        m_view->generateWaveforms();
    }
}

void SCWaveformViewItem::paint(QPainter* painter) {
    if (!m_view) {
        return;
    }
    const auto show = [painter, this](const QImage& image, const QRectF& crop) {
        painter->setClipRect(crop);
        painter->drawImage(m_view->imageFrame(), image);
    };
    show(m_normalImage, m_view->normalCropFrame());
    show(m_progressImage, m_view->progressCropFrame());
}

std::optional<double> SCWaveformViewItem::normalImageWidth() const {
    return m_normalImage.isNull() ? std::nullopt : std::optional(static_cast<double>(m_normalImage.width()));
}

void SCWaveformViewItem::generateNormalImage(const Asset& asset, const QString& color, const QSizeF& size,
                                             bool antialiasing) {
    const double screenScale = window() != nullptr ? window()->effectiveDevicePixelRatio() : 1.0;
    m_normalImage = generateWaveformImage(m_view->readers(), asset, QColor(color), size, screenScale, antialiasing);
}

void SCWaveformViewItem::recolorizeNormalImage(const QString& color) {
    m_normalImage = recolorizeImage(m_normalImage, QColor(color));
}

void SCWaveformViewItem::recolorizeProgressImage(const QString& color) {
    m_progressImage = recolorizeImage(m_normalImage, QColor(color));
}

void SCWaveformViewItem::dropImages() {
    m_normalImage = QImage();
    m_progressImage = QImage();
}

}  // namespace tavi
