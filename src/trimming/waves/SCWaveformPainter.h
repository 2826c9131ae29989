#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

#include "platform/AssetReader.h"

namespace tavi {

/// Draws an asset's waveform in pixels from the painter's origin: a vertical line a column, as long as its mean level
/// is loud. size is in device-independent pixels, of which one is screenScale pixels. What cannot be read draws
/// nothing.
void renderWaveformInContext(QPainter& context, AssetReaders& readers, const Asset& asset, const QColor& color,
                             const QSizeF& size, double screenScale, bool antialiasingEnabled);

/// The picture of a waveform, size x screenScale pixels, transparent where there is no ink. Any program can ask for it:
/// it takes no QGuiApplication.
QImage generateWaveformImage(AssetReaders& readers, const Asset& asset, const QColor& color, const QSizeF& size,
                             double screenScale, bool antialiasingEnabled);

/// The same picture in another ink.
QImage recolorizeImage(const QImage& image, const QColor& color);

}  // namespace tavi
