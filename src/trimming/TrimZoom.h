#pragma once

#include <QObject>

#include "trimming/TrimSelection.h"

namespace tavi {

/// How much of the recording the trimmer's plot shows, and which part of it. Main thread only.
///
/// The selection's container is as wide as the whole recording at that zoom; the view is a window into it. Lengths are
/// device-independent pixels.
class TrimZoom : public QObject {
    Q_OBJECT
    Q_PROPERTY(double viewWidth READ viewWidth WRITE setViewWidth NOTIFY changed)
    Q_PROPERTY(double factor READ factor NOTIFY changed)
    Q_PROPERTY(double mostFactor READ mostFactor NOTIFY changed)
    Q_PROPERTY(double offset READ offset NOTIFY changed)
    /// The ends of the view as parts of the recording, from 0 to 1.
    Q_PROPERTY(double from READ from NOTIFY changed)
    Q_PROPERTY(double to READ to NOTIFY changed)

public:
    explicit TrimZoom(TrimSelection& selection, QObject* parent = nullptr);

    double viewWidth() const { return m_viewWidth; }
    /// Keeps what is seen.
    void setViewWidth(double width);
    /// 1 while all of the recording is seen.
    double factor() const { return m_factor; }
    /// Shows two seconds, or a sixty-fourth of what is long.
    double mostFactor() const;
    /// Place of the view's left edge in the container.
    double offset() const { return m_from * m_factor * m_viewWidth; }
    double from() const { return m_from; }
    double to() const { return m_from + 1.0 / m_factor; }

public Q_SLOTS:
    /// Makes everything that many times as wide; what is at a place of the view stays there.
    void zoomBy(double times, double x);
    /// As wide as that, about the middle.
    void zoomTo(double factor);
    /// Shows from one place to another, as parts of the recording.
    void show(double from, double to);
    /// Moves the view by a part of the recording.
    void scrollBy(double part);
    /// Moves the view as far as it takes for a place of the container to be seen.
    void reveal(double x);

Q_SIGNALS:
    void changed();

private:
    void set(double factor, double from);
    /// What is at that part of the view stays there.
    void zoomAbout(double factor, double part);

    TrimSelection& m_selection;
    double m_viewWidth = 320.0;
    double m_factor = 1.0;
    double m_from = 0.0;
};

}  // namespace tavi
