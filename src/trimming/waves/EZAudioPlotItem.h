#pragma once

#include <QtQml/qqml.h>

#include <QPointer>
#include <QQuickPaintedItem>

#include "trimming/waves/EZAudioPlot.h"

namespace tavi {

/// Paints an EZAudioPlot and tells it the size of its area. A path that comes with an animation appears at once.
class EZAudioPlotItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tavi::EZAudioPlot* plot READ plot WRITE setPlot NOTIFY plotChanged REQUIRED)

public:
    explicit EZAudioPlotItem(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}

    EZAudioPlot* plot() const { return m_plot; }
    void setPlot(EZAudioPlot* plot);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void plotChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void adoptSize();

    QPointer<EZAudioPlot> m_plot;
};

/// Names the plot for QML, which is handed one and makes none.
struct EZAudioPlotForeign {
    Q_GADGET
    QML_FOREIGN(tavi::EZAudioPlot)
    QML_NAMED_ELEMENT(EZAudioPlot)
    QML_UNCREATABLE("Screens own their plots.")
};

}  // namespace tavi
