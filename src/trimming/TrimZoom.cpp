#include "trimming/TrimZoom.h"

#include <algorithm>
#include <tuple>

namespace tavi {

namespace {

/// Seconds that are seen at least.
constexpr double kLeastSeen = 2.0;
constexpr double kMostFactor = 64.0;

}  // namespace

TrimZoom::TrimZoom(TrimSelection& selection, QObject* parent) : QObject(parent), m_selection(selection) {
    // A recording of another length may not be zoomed into as far.
    connect(&m_selection, &TrimSelection::timesChanged, this, [this, duration = 0.0]() mutable {
        if (m_selection.audioDuration() != duration) {
            duration = m_selection.audioDuration();
            set(m_factor, m_from);
            Q_EMIT changed();
        }
    });
}

double TrimZoom::mostFactor() const {
    return std::clamp(m_selection.audioDuration() / kLeastSeen, 1.0, kMostFactor);
}

void TrimZoom::setViewWidth(double width) {
    if (width > 0.0 && width != m_viewWidth) {
        m_viewWidth = width;
        m_selection.setContainerWidth(width * m_factor);
        Q_EMIT changed();
    }
}

void TrimZoom::set(double factor, double from) {
    factor = std::clamp(factor, 1.0, mostFactor());
    from = std::clamp(from, 0.0, 1.0 - 1.0 / factor);
    if (std::tie(factor, from) != std::tie(m_factor, m_from)) {
        std::tie(m_factor, m_from) = std::tie(factor, from);
        m_selection.setContainerWidth(m_viewWidth * factor);
        Q_EMIT changed();
    }
}

void TrimZoom::zoomBy(double times, double x) {
    zoomAbout(m_factor * times, x / m_viewWidth);
}

void TrimZoom::zoomTo(double factor) {
    zoomAbout(factor, 0.5);
}

void TrimZoom::zoomAbout(double factor, double part) {
    factor = std::clamp(factor, 1.0, mostFactor());
    set(factor, m_from + part / m_factor - part / factor);
}

void TrimZoom::show(double from, double to) {
    const double seen = std::max(to - from, 1.0 / mostFactor());
    set(1.0 / seen, from);
}

void TrimZoom::scrollBy(double part) {
    set(m_factor, m_from + part);
}

void TrimZoom::reveal(double x) {
    const double place = x / (m_viewWidth * m_factor);
    set(m_factor, std::clamp(m_from, place - 1.0 / m_factor, place));
}

}  // namespace tavi
