#pragma once

#include <QtQml/qqml.h>

#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>

#include "trimming/waves/SCWaveformView.h"

namespace tavi {

/// Shows a SCWaveformView: keeps its two pictures and tells it the size of its area.
class SCWaveformViewItem : public QQuickPaintedItem, private SCWaveformCanvas {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tavi::SCWaveformView* view READ view WRITE setView NOTIFY viewChanged REQUIRED)

public:
    explicit SCWaveformViewItem(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}
    ~SCWaveformViewItem() override { setView(nullptr); }

    SCWaveformView* view() const { return m_view; }
    void setView(SCWaveformView* view);
    QImage generatedNormalImage() const { return m_normalImage; }
    void setGeneratedNormalImage(const QImage& image) { m_normalImage = image; }
    QImage generatedProgressImage() const { return m_progressImage; }
    void setGeneratedProgressImage(const QImage& image) { m_progressImage = image; }
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void viewChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void updatePolish() override;

private:
    std::optional<double> normalImageWidth() const override;
    bool hasProgressImage() const override { return !m_progressImage.isNull(); }
    void generateNormalImage(const Asset& asset, const QString& color, const QSizeF& size, bool antialiasing) override;
    void recolorizeNormalImage(const QString& color) override;
    void recolorizeProgressImage(const QString& color) override;
    void dropImages() override;
    void display();

    QPointer<SCWaveformView> m_view;
    QImage m_normalImage;
    QImage m_progressImage;
};

/// Names the view for QML, which is handed one and makes none.
struct SCWaveformViewForeign {
    Q_GADGET
    QML_FOREIGN(tavi::SCWaveformView)
    QML_NAMED_ELEMENT(SCWaveformView)
    QML_UNCREATABLE("Screens own their waveforms.")
};

}  // namespace tavi
