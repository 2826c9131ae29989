#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QString>

namespace tavi {

/// A control with two thumbs that chooses a stretch of a number line. Main thread only.
///
/// This is its logic; QML draws it and hands it touches, in device-independent pixels from its upper left corner. The
/// values are 32-bit floats: what is chosen is what the thumbs can show. maximumValue must not equal minimumValue.
class RangeSlider : public QObject {
    Q_OBJECT
    Q_PROPERTY(double minThumbX READ minThumbX NOTIFY changed)
    Q_PROPERTY(double maxThumbX READ maxThumbX NOTIFY changed)
    Q_PROPERTY(QString minThumbImage READ minThumbImage NOTIFY changed)
    Q_PROPERTY(QString maxThumbImage READ maxThumbImage NOTIFY changed)
    Q_PROPERTY(bool minThumbOn READ minThumbOn NOTIFY changed)
    Q_PROPERTY(bool maxThumbOn READ maxThumbOn NOTIFY changed)
    Q_PROPERTY(QPointF minLabelCentre READ minLabelCentre NOTIFY changed)
    Q_PROPERTY(QPointF maxLabelCentre READ maxLabelCentre NOTIFY changed)
    Q_PROPERTY(QString lblMinValue READ lblMinValue NOTIFY changed)
    Q_PROPERTY(QString lblMaxVal READ lblMaxVal NOTIFY changed)
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame NOTIFY changed)
    Q_PROPERTY(double thumbWidth READ thumbWidth CONSTANT)
    Q_PROPERTY(double thumbHeight READ thumbHeight CONSTANT)

public:
    explicit RangeSlider(QObject* parent = nullptr) : QObject(parent) {}

    /// No side effects: the next layout places the thumbs.
    float minimumValue = 0.0F;
    float maximumValue = 1.0F;
    float minimumRange = 0.0F;
    float selectedMinimumValue = 0.0F;
    float selectedMaximumValue = 1.0F;

    float xForValue(float value) const;
    float valueForX(float x) const;
    /// "mm:ss" of whole seconds, without hours.
    QString updateCurrentTime(float seconds) const;
    QString stringFromTime(qint64 seconds) const;

    /// The control's place in its container. Lays out.
    void setFrame(const QRectF& frame);
    QRectF frame() const { return m_frame; }
    void layoutSubviews();
    void updateTrackHighlight();

    bool beginTrackingWithTouch(const QPointF& touch);
    bool continueTrackingWithTouch(const QPointF& touch);
    void endTrackingWithTouch();

    double minThumbX() const { return m_minThumb.centre.x(); }
    double maxThumbX() const { return m_maxThumb.centre.x(); }
    QString minThumbImage() const { return m_minThumb.image(); }
    QString maxThumbImage() const { return m_maxThumb.image(); }
    bool minThumbOn() const { return m_minThumb.isOn; }
    bool maxThumbOn() const { return m_maxThumb.isOn; }
    QPointF minLabelCentre() const { return m_minThumb.labelCentre; }
    QPointF maxLabelCentre() const { return m_maxThumb.labelCentre; }
    QString lblMinValue() const { return m_minThumb.label; }
    QString lblMaxVal() const { return m_maxThumb.label; }
    /// Between the thumbs. On purpose it is computed and never drawn: what lies under the control shows the stretch.
    QRectF trackHighlight() const { return m_track; }
    static double thumbWidth() { return kThumbWidth; }
    static double thumbHeight() { return kThumbHeight; }

public Q_SLOTS:
    /// The three operations of a touch, for QML.
    void press(double x, double y) { beginTrackingWithTouch({x, y}); }
    void drag(double x, double y) { continueTrackingWithTouch({x, y}); }
    void release() { endTrackingWithTouch(); }
    /// A key moves one thumb by seconds, as a drag of that length would.
    void nudge(bool minimum, double seconds);

Q_SIGNALS:
    /// Something is drawn differently.
    void changed();
    /// A thumb has been dragged: control event 4096, sent on every step.
    void valueChanged();

private:
    static constexpr double kThumbWidth = 30.0;
    static constexpr double kThumbHeight = 100.0;

    struct Thumb {
        bool isOn = false;
        QPointF centre;
        /// At first the label, 50 x 30, lies in the control's upper left corner.
        QPointF labelCentre{25.0, 15.0};
        QString label;

        QRectF frame() const;
        QString image() const;
    };

    void grab(Thumb& thumb, double touchX);

    QRectF m_frame;
    Thumb m_minThumb;
    Thumb m_maxThumb;
    QRectF m_track;
    float m_padding = 20.0F;
    float m_distanceFromCenter = 0.0F;
};

}  // namespace tavi
