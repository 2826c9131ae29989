#include "trimming/waves/SCWaveformPainter.h"

#include <algorithm>

#include "trimming/waves/WaveformLevels.h"

namespace tavi {

void renderWaveformInContext(QPainter& context, AssetReaders& readers, const Asset& asset, const QColor& color,
                             const QSizeF& size, double screenScale, bool antialiasingEnabled) {
    const auto halfHeight = static_cast<float>(size.height() * screenScale * 0.5);
    const std::vector<float> levels = waveformLevels(readers, asset, size.width() * screenScale);
    context.save();
    context.setRenderHint(QPainter::Antialiasing, antialiasingEnabled);
    for (std::size_t x = 0; x < levels.size(); ++x) {
        const float height = std::max((levels[x] / -kWaveformNoiseFloor + 1.0F) * halfHeight, 0.0F);
        // Silence has no length, and a line without length would still leave a dot.
        if (height > 0.0F) {
            const auto top = static_cast<double>(halfHeight - height);
            context.fillRect(QRectF(static_cast<double>(x), top, 1.0, 2.0 * static_cast<double>(height)), color);
        }
    }
    context.restore();
}

QImage generateWaveformImage(AssetReaders& readers, const Asset& asset, const QColor& color, const QSizeF& size,
                             double screenScale, bool antialiasingEnabled) {
    const QSizeF pixels = size * screenScale;
    QImage image(QSize(qCeil(pixels.width()), qCeil(pixels.height())), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return image;
    }
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderWaveformInContext(painter, readers, asset, color, size, screenScale, antialiasingEnabled);
    return image;
}

QImage recolorizeImage(const QImage& image, const QColor& color) {
    QImage result = image;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(result.rect(), color);
    return result;
}

}  // namespace tavi
