#pragma once

#include <QtQml/qqml.h>

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>

#include "trimming/waves/EZAudioPlot.h"

namespace tavi {

/// Paints an EZAudioPlot, or a stretch of it, and tells it the size of its area. A path that comes with an animation
/// appears at once.
class EZAudioPlotItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tavi::EZAudioPlot* plot READ plot WRITE setPlot NOTIFY plotChanged REQUIRED)
    /// How wide the whole plot is, and which of its places is at the left edge; 0 wide is as wide as the item.
    Q_PROPERTY(qreal contentWidth MEMBER m_contentWidth NOTIFY viewChanged)
    Q_PROPERTY(qreal contentX MEMBER m_contentX NOTIFY viewChanged)
    /// In the place of the plot's colour, where it is not transparent.
    Q_PROPERTY(QColor tint MEMBER m_tint NOTIFY viewChanged)

public:
    explicit EZAudioPlotItem(QQuickItem* parent = nullptr);

    EZAudioPlot* plot() const { return m_plot; }
    void setPlot(EZAudioPlot* plot);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void plotChanged();
    void viewChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void adoptSize();

    QPointer<EZAudioPlot> m_plot;
    qreal m_contentWidth = 0.0;
    qreal m_contentX = 0.0;
    QColor m_tint = Qt::transparent;
};

/// Names the plot for QML, which is handed one and makes none.
struct EZAudioPlotForeign {
    Q_GADGET
    QML_FOREIGN(tavi::EZAudioPlot)
    QML_NAMED_ELEMENT(EZAudioPlot)
    QML_UNCREATABLE("Screens own their plots.")
};

}  // namespace tavi
