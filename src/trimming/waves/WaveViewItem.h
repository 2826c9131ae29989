#pragma once

#include <QtQml/qqml.h>

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>

#include "trimming/waves/WaveView.h"

namespace tavi {

/// Paints a WaveView and tells it the size of its area.
///
/// The picture lives in an image of the item's own, in device pixels: a reading paints its strip there at once, so bars
/// painted earlier stay, and none is missing however many readings one frame brings or however long the item is hidden.
class WaveViewItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tavi::WaveView* wave READ wave WRITE setWave NOTIFY waveChanged REQUIRED)
    Q_PROPERTY(QColor ground MEMBER m_ground)
    /// Colour of the line along the middle of an empty view.
    Q_PROPERTY(QColor centreLine MEMBER m_centreLine)
    /// Colour of lines and areas; unset, those of the wave.
    Q_PROPERTY(QColor barColor MEMBER m_barColor)

public:
    explicit WaveViewItem(QQuickItem* parent = nullptr);

    WaveView* wave() const { return m_wave; }
    void setWave(WaveView* wave);
    void paint(QPainter* painter) override;
    /// What is on screen, in device pixels.
    const QImage& picture() const { return m_picture; }

Q_SIGNALS:
    void waveChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void adoptSize();
    void display(const QRectF& rect);
    void clear(QPainter& painter) const;
    void drawMirror(QPainter& painter) const;
    void drawDefault(QPainter& painter) const;
    bool fitPicture();

    QPointer<WaveView> m_wave;
    QImage m_picture;
    QColor m_ground = Qt::black;
    QColor m_centreLine;
    QColor m_barColor;
};

/// Names the view for QML, which is handed one and makes none.
struct WaveViewForeign {
    Q_GADGET
    QML_FOREIGN(tavi::WaveView)
    QML_NAMED_ELEMENT(WaveView)
    QML_UNCREATABLE("Screens own their waves.")
};

}  // namespace tavi
