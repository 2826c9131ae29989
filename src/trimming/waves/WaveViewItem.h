#pragma once

#include <QtQml/qqml.h>

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>
#include <vector>

#include "trimming/waves/WaveView.h"

namespace tavi {

/// Paints a WaveView and tells it the size of its area.
///
/// The picture lives in an image of the item's own, in device pixels: a reading paints its strip there at once, so bars
/// painted earlier stay, and none is missing however many readings one frame brings or however long the item is hidden.
///
/// One step of the wave is columnWidth wide on screen, so the wave's own width counts columns. When the mirror's strip
/// starts again at the left, what was there stays as a ghost until the strip comes near it.
class WaveViewItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tavi::WaveView* wave READ wave WRITE setWave NOTIFY waveChanged REQUIRED)
    Q_PROPERTY(QColor ground MEMBER m_ground)
    /// Colour of the line along the middle of an empty view.
    Q_PROPERTY(QColor centreLine MEMBER m_centreLine)
    /// Colour of lines and areas; unset, those of the wave.
    Q_PROPERTY(QColor barColor MEMBER m_barColor)
    /// Colour of the bars of an earlier pass; unset, there are none.
    Q_PROPERTY(QColor ghostColor MEMBER m_ghostColor)
    /// Levels from 0 to 1, spread over the width: they stand in for an earlier pass as long as there is none.
    Q_PROPERTY(QList<double> earlier READ earlier WRITE setEarlier NOTIFY earlierChanged)
    /// Colour of the lines at -15 and -30 dB of a mirror from 0 to -45, and of a tick a second; unset, there are none.
    Q_PROPERTY(QColor scaleColor MEMBER m_scaleColor)
    Q_PROPERTY(double columnWidth MEMBER m_columnWidth)
    /// Colour of a line where the strip ends; transparent, there is none. It is painted with the wave: something opaque
    /// above would leave the wave a shape that is slow to paint.
    Q_PROPERTY(QColor headColor READ headColor WRITE setHeadColor NOTIFY headColorChanged)

public:
    explicit WaveViewItem(QQuickItem* parent = nullptr);

    WaveView* wave() const { return m_wave; }
    void setWave(WaveView* wave);
    void paint(QPainter* painter) override;
    /// What is on screen, in device pixels.
    const QImage& picture() const { return m_picture; }
    const QList<double>& earlier() const { return m_earlier; }
    void setEarlier(const QList<double>& levels);
    QColor headColor() const { return m_headColor; }
    void setHeadColor(const QColor& color);

Q_SIGNALS:
    void waveChanged();
    void headColorChanged();
    void earlierChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void adoptSize();
    void display(const QRectF& rect);
    void keepPass();
    /// Gives an empty ghost the shape of what was there earlier.
    void haunt();
    /// Paints what lies below the strip, from the column on.
    void drawGround(QPainter& painter, int from, int columns) const;
    void drawMirror(QPainter& painter);
    void drawBar(QPainter& painter, int column, float height, const QColor& color) const;
    void drawDefault(QPainter& painter) const;
    bool fitPicture();

    QPointer<WaveView> m_wave;
    QImage m_picture;
    QColor m_ground = Qt::black;
    QColor m_centreLine;
    QColor m_barColor;
    QColor m_ghostColor;
    QColor m_scaleColor;
    QColor m_headColor = Qt::transparent;
    double m_columnWidth = 1.0;
    /// Half heights of the bars of this pass and of those before, by column, as parts of the wave's range; below 0 for
    /// none.
    std::vector<float> m_pass;
    std::vector<float> m_ghost;
    QList<double> m_earlier;
};

/// Names the view for QML, which is handed one and makes none.
struct WaveViewForeign {
    Q_GADGET
    QML_FOREIGN(tavi::WaveView)
    QML_NAMED_ELEMENT(WaveView)
    QML_UNCREATABLE("Screens own their waves.")
};

}  // namespace tavi
