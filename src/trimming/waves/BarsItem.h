#pragma once

#include <QtQml/qqml.h>

#include <QColor>
#include <QList>
#include <QQuickPaintedItem>

namespace tavi {

/// Bars about a middle line. As many stand beside each other as there is room for; each is as high as the loudest of
/// the levels in its part of them, and never quite nothing.
class BarsItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// From 0 to 1, from left to right; none is a flat line.
    Q_PROPERTY(QList<qreal> levels READ levels WRITE setLevels NOTIFY levelsChanged)
    /// Device-independent pixels.
    Q_PROPERTY(int barWidth MEMBER m_barWidth NOTIFY looksChanged)
    Q_PROPERTY(int gap MEMBER m_gap NOTIFY looksChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY looksChanged)
    Q_PROPERTY(QColor restColor MEMBER m_restColor NOTIFY looksChanged)
    /// The part of the width, from one place to the other, whose bars have the colour; the others have restColor.
    Q_PROPERTY(qreal from READ from WRITE setFrom NOTIFY rangeChanged)
    Q_PROPERTY(qreal to READ to WRITE setTo NOTIFY rangeChanged)

public:
    explicit BarsItem(QQuickItem* parent = nullptr);

    const QList<qreal>& levels() const { return m_levels; }
    void setLevels(const QList<qreal>& levels);
    qreal from() const { return m_from; }
    void setFrom(qreal from) { move(m_from, from); }
    qreal to() const { return m_to; }
    void setTo(qreal to) { move(m_to, to); }
    void paint(QPainter* painter) override;

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

Q_SIGNALS:
    void levelsChanged();
    void looksChanged();
    void rangeChanged();

private:
    void redraw();
    void move(qreal& edge, qreal place);

    QList<qreal> m_levels;
    int m_barWidth = 2;
    int m_gap = 1;
    QColor m_color = Qt::white;
    QColor m_restColor = Qt::gray;
    qreal m_from = 0.0;
    qreal m_to = 1.0;
    /// Since it was last painted more has changed than the colours of some bars.
    bool m_isStale = true;
};

}  // namespace tavi
