#include "trimming/waves/SCWaveformView.h"

namespace tavi {

void SCWaveformView::setAsset(const std::optional<Asset>& asset) {
    m_asset = asset;
    dropImages();
}

void SCWaveformView::setNormalColor(const QString& color) {
    m_normalColor = color;
    m_isNormalColorDirty = true;
    Q_EMIT needsDisplay();
}

void SCWaveformView::setProgressColor(const QString& color) {
    m_progressColor = color;
    m_isProgressColorDirty = true;
    Q_EMIT needsDisplay();
}

void SCWaveformView::setProgress(double progress) {
    m_progress = progress;
    applyProgress();
}

void SCWaveformView::setAntialiasingEnabled(bool enabled) {
    if (enabled != m_antialiasingEnabled) {
        m_antialiasingEnabled = enabled;
        dropImages();
    }
}

void SCWaveformView::setCanvas(SCWaveformCanvas* canvas) {
    m_canvas = canvas;
    Q_EMIT needsDisplay();
}

void SCWaveformView::dropImages() {
    if (m_canvas != nullptr) {
        m_canvas->dropImages();
    }
    Q_EMIT needsDisplay();
}

void SCWaveformView::generateWaveforms() {
    if (m_canvas == nullptr) {
        return;
    }
    if (!m_canvas->normalImageWidth() && m_asset) {
        m_canvas->generateNormalImage(*m_asset, m_normalColor, m_bounds, m_antialiasingEnabled);
        m_isNormalColorDirty = false;
    }
    if (!m_canvas->normalImageWidth()) {
        return;
    }
    if (m_isNormalColorDirty) {
        m_canvas->recolorizeNormalImage(m_normalColor);
        m_isNormalColorDirty = false;
    }
    if (m_isProgressColorDirty || !m_canvas->hasProgressImage()) {
        m_canvas->recolorizeProgressImage(m_progressColor);
        m_isProgressColorDirty = false;
    }
}

void SCWaveformView::layoutSubviews(const QSizeF& bounds) {
    m_bounds = bounds;
    if (m_canvas != nullptr && bounds.width() > m_canvas->normalImageWidth().value_or(bounds.width())) {
        dropImages();
    }
    applyProgress();
}

void SCWaveformView::applyProgress() {
    const double x = m_bounds.width() * m_progress;
    m_progressCropFrame = QRectF(0.0, 0.0, x, m_bounds.height());
    m_normalCropFrame = QRectF(x, 0.0, m_bounds.width() - x, m_bounds.height());
    Q_EMIT cropChanged();
}

}  // namespace tavi
