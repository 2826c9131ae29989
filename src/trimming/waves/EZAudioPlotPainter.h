#pragma once

#include <QImage>
#include <QPainter>

#include "trimming/waves/EZAudioPlot.h"

namespace tavi {

/// Paints the plot's background and its layer, in device-independent pixels from the painter's origin. At least what is
/// in the visible part is painted, all of it where none is given. A valid tint takes the place of the layer's colours.
void paintPlot(QPainter& painter, const EZAudioPlot& plot, const QRectF& visible = {}, const QColor& tint = {});

/// The picture of a plot without a window, transparent where the plot paints nothing. pixelRatio is device pixels a
/// device-independent one. Null where the plot has no area, or none that an image can have. Any program can ask for it:
/// it takes no QGuiApplication.
QImage plotImage(const EZAudioPlot& plot, double pixelRatio = 1.0);

}  // namespace tavi
