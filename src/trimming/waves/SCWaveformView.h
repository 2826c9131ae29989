#pragma once

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <optional>

#include "platform/AssetReader.h"

namespace tavi {

/// Where a SCWaveformView has its pictures made and kept. Main thread only.
class SCWaveformCanvas {
public:
    virtual ~SCWaveformCanvas() = default;

    /// Width of the normal picture; nothing while there is none.
    virtual std::optional<double> normalImageWidth() const = 0;
    virtual bool hasProgressImage() const = 0;
    /// Reads the asset through and draws it.
    virtual void generateNormalImage(const Asset& asset, const QString& color, const QSizeF& size,
                                     bool antialiasing) = 0;
    /// Give the normal picture another colour, and make the progress picture of it.
    virtual void recolorizeNormalImage(const QString& color) = 0;
    virtual void recolorizeProgressImage(const QString& color) = 0;
    virtual void dropImages() = 0;
};

/// The waveform of a whole asset as a picture, in one colour up to a point and in another from there. Main thread only.
///
/// This is its logic: when pictures are made again, and which part of them shows. Sizes are device-independent pixels.
class SCWaveformView : public QObject {
    Q_OBJECT

public:
    /// Readers must outlive the view.
    explicit SCWaveformView(AssetReaders& readers, QObject* parent = nullptr) : QObject(parent), m_readers(readers) {}

    AssetReaders& readers() const { return m_readers; }
    const std::optional<Asset>& asset() const { return m_asset; }
    void setAsset(const std::optional<Asset>& asset);
    /// Colours as QColor reads them by name.
    QString normalColor() const { return m_normalColor; }
    void setNormalColor(const QString& color);
    QString progressColor() const { return m_progressColor; }
    void setProgressColor(const QString& color);
    /// The part of the width that shows in the progress colour, 0 to 1.
    double progress() const { return m_progress; }
    void setProgress(double progress);
    bool antialiasingEnabled() const { return m_antialiasingEnabled; }
    void setAntialiasingEnabled(bool enabled);

    /// The canvas must outlive the view or be taken away; a null one takes it away.
    void setCanvas(SCWaveformCanvas* canvas);
    /// Makes the pictures that are missing or have another colour by now. Takes as long as decoding the asset does.
    void generateWaveforms();
    /// Lays out in an area of that size. A narrower view keeps its wider pictures.
    void layoutSubviews(const QSizeF& bounds);

    /// What of the view shows either picture. Both are drawn over all of imageFrame(), so that they meet.
    QRectF progressCropFrame() const { return m_progressCropFrame; }
    QRectF normalCropFrame() const { return m_normalCropFrame; }
    QRectF imageFrame() const { return {QPointF(), m_bounds}; }

Q_SIGNALS:
    /// Pictures may have to be made; generateWaveforms() is due.
    void needsDisplay();
    /// The pictures show in other parts.
    void cropChanged();

private:
    void dropImages();
    void applyProgress();

    AssetReaders& m_readers;
    SCWaveformCanvas* m_canvas = nullptr;
    std::optional<Asset> m_asset;
    QString m_normalColor = QStringLiteral("#0000ff");
    QString m_progressColor = QStringLiteral("#ff0000");
    double m_progress = 0.0;
    bool m_antialiasingEnabled = false;
    bool m_isNormalColorDirty = false;
    bool m_isProgressColorDirty = false;
    QSizeF m_bounds;
    QRectF m_progressCropFrame;
    QRectF m_normalCropFrame;
};

}  // namespace tavi
