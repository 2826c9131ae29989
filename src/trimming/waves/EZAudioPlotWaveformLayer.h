#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

namespace tavi {

/// Polylines to be stroked and filled together. Areas of open ones are filled as if they were closed.
struct PlotPath {
    struct Polyline {
        std::vector<QPointF> points;
        bool closed = false;
    };

    std::vector<Polyline> polylines;

    bool isEmpty() const { return polylines.empty(); }
};

/// How an animation runs from its start to its end.
enum class TimingFunction { Default, Linear, EaseIn, EaseOut, EaseInEaseOut };

/// An animation of one property between its old and its new value.
struct BasicAnimation {
    QString keyPath;
    /// Seconds.
    double duration = 0.0;
    TimingFunction timingFunction = TimingFunction::Default;
};

/// Changes of layers between its construction and its destruction belong together, and are animated alike. Transactions
/// nest, and begin as the one around them is. Main thread only.
class LayerTransaction {
public:
    struct Settings {
        bool disableActions = false;
        double animationDuration = 0.25;
        TimingFunction animationTimingFunction = TimingFunction::Default;
    };

    explicit LayerTransaction(const Settings& settings) : m_outer(std::exchange(s_current, settings)) {}
    ~LayerTransaction() { s_current = m_outer; }
    LayerTransaction(const LayerTransaction&) = delete;
    LayerTransaction& operator=(const LayerTransaction&) = delete;

    static LayerTransaction withoutActions();
    static const Settings& current() { return s_current; }

private:
    static Settings s_current;
    Settings m_outer;
};

/// The layer whose path is a waveform. Colours as QColor reads them by name; an empty one paints nothing.
class EZAudioPlotWaveformLayer {
public:
    QRectF frame;
    double lineWidth = 1.0;
    QString strokeColor;
    QString fillColor;
    QString backgroundColor;
    bool opaque = true;

    /// Shows another path, by the animation that actionForKey() gives.
    void setPath(PlotPath path);
    const PlotPath& path() const { return m_path; }
    /// The animation that came with the path shown; nothing where it appears at once.
    const std::optional<BasicAnimation>& pathAnimation() const { return m_pathAnimation; }

    std::optional<BasicAnimation> actionForKey(const QString& key) const;

private:
    PlotPath m_path;
    std::optional<BasicAnimation> m_pathAnimation;
};

}  // namespace tavi
