#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace tavi {

/// A level meter drawn as a strip that grows from left to right, one step a reading.
///
/// The view holds only the last and the newest point; whoever paints it keeps the earlier picture and paints the newest
/// step over it when needsDisplay() names its rectangle. Sizes are device-independent pixels, y downwards. Main thread
/// only.
class WaveView : public QObject {
    Q_OBJECT

public:
    /// How readings are drawn. Other values of the type draw nothing.
    enum Type { Default = 0, Mirror = 1 };

    /// One step of the default type: a line, and the area below it when filling.
    struct Segment {
        QPointF last;
        QPointF next;
    };

    explicit WaveView(QObject* parent = nullptr);

    /// Tells the size of the drawing area; readings to come are scaled to it. Starts the strip anew.
    void setFrameSize(const QSizeF& size);
    QSizeF frameSize() const { return m_size; }

    WaveView& setWaveType(int type, double maxValue, double minValue);
    /// Rewinds to the left edge and feeds one reading of -120.
    void initwithWaveForm();
    /// The one feeding operation: a reading between minValue and maxValue.
    void startWavingWithValue(double value);
    /// Rewinds to the left edge and clears.
    void resetWave();

    void setWaveRange(double range) { m_waveRange = range; }
    void setXInterval(double interval) { m_xInterval = interval; }
    void setWaveLineWidth(double width) { m_lineWidth = width; }
    void setWaveLineColor(const QString& color) { m_lineColor = color; }
    void setFilling(bool filling) { m_isFilling = filling; }
    void setFillingColor(const QString& color) { m_fillingColor = color; }
    void setZeroPointValue(double value) { m_zeroPointValue = value; }
    void setZeroPointLineWidth(double width) { m_zeroPointLineWidth = width; }
    /// Moves the default type's base line, and with it the range.
    void setBanchmarkHeight(double height);

    int waveType() const { return m_waveType; }
    double waveRange() const { return m_waveRange; }
    double banchmark() const { return m_banchmark; }
    double lineWidth() const { return m_lineWidth; }
    bool isFilling() const { return m_isFilling; }
    /// Colours as QColor reads them by name.
    QString lineColor() const { return m_lineColor; }
    QString fillingColor() const { return m_fillingColor; }
    QPointF lastPoint() const { return m_last; }
    QPointF newPoint() const { return m_new; }

    /// The newest bar of the mirror type, symmetric about the centre line.
    QRectF mirrorBar() const;
    /// The newest step of the default type.
    Segment defaultSegment() const { return {m_last, m_new}; }

Q_SIGNALS:
    /// The rectangle is to be painted: the newest strip, or the whole view, which then starts empty.
    void needsDisplay(const QRectF& rect);

private:
    void configure();

    int m_waveType = Default;
    double m_maxValue = 0.0;
    double m_minValue = 0.0;
    QPointF m_last;
    QPointF m_new;
    double m_xInterval = 1.0;
    double m_lineWidth = 1.0;
    QString m_lineColor = QStringLiteral("red");
    QString m_fillingColor = QStringLiteral("red");
    bool m_isFilling = false;
    double m_zeroPointValue = 0.0;
    double m_zeroPointLineWidth = 2.0;
    double m_waveRange = 0.0;
    double m_banchmark = 0.0;
    QSizeF m_size;
};

}  // namespace tavi
