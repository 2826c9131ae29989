#include "trimming/waves/WaveformPicturePainter.h"

#include <QBuffer>
#include <QImage>

#include "trimming/waves/EZAudioPlotPainter.h"

namespace tavi {

QByteArray waveformPicture(const EZAudioFloatData& waveform, DisplayRefreshes& refreshes) {
    const auto plot = EZAudioPlot::initWithFrame(refreshes, QRectF(0.0, 0.0, 1200.0, 300.0));
    plot->setBackgroundColor(QStringLiteral("#000000"));
    plot->setColor(QStringLiteral("#d41b28"));
    plot->setShouldFill(true);
    plot->setShouldMirror(true);
    plot->setShouldOptimizeForRealtimePlot(false);
    plot->updateBuffer(waveform.bufferForChannel(0), waveform.bufferSize());
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    plotImage(*plot).save(&buffer, "PNG");
    return png;
}

}  // namespace tavi
