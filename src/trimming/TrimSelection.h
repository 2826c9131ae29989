#pragma once

#include <QObject>

#include "platform/Outlets.h"
#include "trimming/TrimRules.h"

namespace tavi {

/// The state of a drag, and how far it has gone since it was last reset.
struct PanGesture {
    enum class State { Began, Changed, Ended, Cancelled };

    State state = State::Began;
    double translation = 0.0;
};

/// The two thumbs of the trimmer, and the stretch that they mark. Main thread only.
///
/// Lengths are device-independent pixels in the plot's container.
class TrimSelection : public QObject {
    Q_OBJECT
    Q_PROPERTY(double containerWidth READ containerWidth WRITE setContainerWidth NOTIFY thumbsChanged)
    Q_PROPERTY(double leftThumbX READ leftThumbX NOTIFY thumbsChanged)
    Q_PROPERTY(double rightThumbX READ rightThumbX NOTIFY thumbsChanged)
    Q_PROPERTY(bool isLeftThumbInFront READ isLeftThumbInFront NOTIFY thumbsChanged)
    Q_PROPERTY(tavi::LabelOutlet lblStartTime READ lblStartTime NOTIFY timesChanged)
    Q_PROPERTY(tavi::LabelOutlet lblEndTime READ lblEndTime NOTIFY timesChanged)
    Q_PROPERTY(double lblStartX READ lblStartX NOTIFY timesChanged)
    Q_PROPERTY(double lblEndX READ lblEndX NOTIFY timesChanged)
    Q_PROPERTY(double labelWidth READ labelWidth CONSTANT)
    Q_PROPERTY(double audioDuration READ audioDuration NOTIFY timesChanged)
    Q_PROPERTY(double startTime READ startTime NOTIFY timesChanged)
    Q_PROPERTY(double endTime READ endTime NOTIFY timesChanged)
    /// The two times with minutes, as they are spoken.
    Q_PROPERTY(QString spokenStart READ spokenStart NOTIFY timesChanged)
    Q_PROPERTY(QString spokenEnd READ spokenEnd NOTIFY timesChanged)
    Q_PROPERTY(QString rangeText READ rangeText NOTIFY timesChanged)

public:
    explicit TrimSelection(QObject* parent = nullptr) : QObject(parent) {}

    /// Seconds of the recording. Leaves the thumbs where they are.
    double audioDuration() const { return m_audioDuration; }
    void setAudioDuration(double seconds);
    /// The stretch as it was computed last.
    const TrimTimes& times() const { return m_times; }
    double startTime() const { return m_times.start; }
    double endTime() const { return m_times.end; }

    double containerWidth() const { return m_containerWidth; }
    /// A new width keeps the stretch.
    void setContainerWidth(double width);
    double leftThumbX() const { return m_thumbs.left; }
    double rightThumbX() const { return m_thumbs.right; }
    /// The thumb that was moved last.
    bool isLeftThumbInFront() const { return m_frontThumb == TrimThumb::Left; }
    LabelOutlet lblStartTime() const { return {trimrules::timeFormatted(m_times.start, false), {}, false}; }
    LabelOutlet lblEndTime() const { return {trimrules::timeFormatted(m_times.end, false), {}, false}; }
    /// Left edges of the labels.
    double lblStartX() const { return trimrules::labelLeft(m_labelled.left, kLabelWidth, m_containerWidth); }
    double lblEndX() const { return trimrules::labelLeft(m_labelled.right, kLabelWidth, m_containerWidth); }
    static double labelWidth() { return kLabelWidth; }
    QString spokenStart() const { return trimrules::timeFormatted(m_times.start, true); }
    QString spokenEnd() const { return trimrules::timeFormatted(m_times.end, true); }

    QString rangeText() const { return trimrules::rangeText(m_times); }

    /// Reads the stretch from the thumbs.
    void calculateAudioTrimTime();
    void putThumbsAtTheEnds();
    /// One event of a thumb's drag. An applied step resets the gesture's translation; a refused one leaves it, so that
    /// the thumb waits where it is until the finger is back.
    void handlePan(TrimThumb thumb, PanGesture& pan);

public Q_SLOTS:
    /// A drag by the finger's movements, and the same by a key, in seconds.
    void beginDrag(bool isLeft);
    void drag(bool isLeft, double movement);
    void endDrag(bool isLeft);
    void nudge(bool isLeft, double seconds);

Q_SIGNALS:
    void thumbsChanged();
    void timesChanged();
    /// Comes before anything else that a pan event does.
    void panned();

private:
    static constexpr double kLabelWidth = 56.0;

    double m_audioDuration = 0.0;
    double m_containerWidth = 320.0;
    TrimThumbs m_thumbs{0.0, 320.0};
    /// Where the thumbs were when the times were computed.
    TrimThumbs m_labelled{0.0, 320.0};
    TrimTimes m_times;
    TrimThumb m_frontThumb = TrimThumb::Left;
    PanGesture m_pan;
};

}  // namespace tavi
