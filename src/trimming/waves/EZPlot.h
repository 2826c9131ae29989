#pragma once

#include <QObject>
#include <QString>

namespace tavi {

/// The settings that all plots share; what is done with them is up to the plots. Main thread only.
class EZPlot : public QObject {
    Q_OBJECT

public:
    /// Buffer draws the given samples as they are, Rolling the recent history of their levels. Other values of the type
    /// leave the picture as it is.
    enum PlotType { Buffer = 0, Rolling = 1 };

    explicit EZPlot(QObject* parent = nullptr) : QObject(parent) {}

    /// Colours as QColor reads them by name; an empty one paints nothing.
    QString backgroundColor() const { return m_backgroundColor; }
    virtual void setBackgroundColor(const QString& color) { m_backgroundColor = color; }
    /// Of the line, and of the area when filling.
    QString color() const { return m_color; }
    virtual void setColor(const QString& color) { m_color = color; }
    /// A factor of every sample.
    float gain() const { return m_gain; }
    virtual void setGain(float gain) { m_gain = gain; }
    int plotType() const { return m_plotType; }
    virtual void setPlotType(int type) { m_plotType = type; }
    bool shouldFill() const { return m_shouldFill; }
    virtual void setShouldFill(bool fill) { m_shouldFill = fill; }
    /// Whether the waveform is drawn a second time, reflected about the centre line.
    bool shouldMirror() const { return m_shouldMirror; }
    virtual void setShouldMirror(bool mirror) { m_shouldMirror = mirror; }

    virtual void clear() {}
    /// The one feeding operation: bufferSize samples.
    virtual void updateBuffer(const float* buffer, quint32 bufferSize) {
        Q_UNUSED(buffer)
        Q_UNUSED(bufferSize)
    }

private:
    QString m_backgroundColor;
    QString m_color;
    float m_gain = 0.0F;
    int m_plotType = Buffer;
    bool m_shouldFill = false;
    bool m_shouldMirror = false;
};

}  // namespace tavi
