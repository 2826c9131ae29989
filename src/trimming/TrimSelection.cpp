#include "trimming/TrimSelection.h"

namespace tavi {

namespace {

/// What a key adds to its step, in seconds: the times of places are rounded down, and 12 s are not to read 11.99.
constexpr double kAboveRounding = 1e-7;

TrimThumb thumbOf(bool isLeft) {
    return isLeft ? TrimThumb::Left : TrimThumb::Right;
}

}  // namespace

void TrimSelection::setAudioDuration(double seconds) {
    m_audioDuration = seconds;
    calculateAudioTrimTime();
}

void TrimSelection::setContainerWidth(double width) {
    if (!(width > 0.0) || width == m_containerWidth) {
        return;
    }
    const double scale = width / m_containerWidth;
    m_containerWidth = width;
    for (TrimThumbs* places : {&m_thumbs, &m_labelled}) {
        *places = {places->left * scale, places->right * scale};
    }
    Q_EMIT thumbsChanged();
    // The times are what they were, without another rounding; their labels move.
    Q_EMIT timesChanged();
}

void TrimSelection::putThumbsAtTheEnds() {
    m_thumbs = {0.0, m_containerWidth};
    Q_EMIT thumbsChanged();
    calculateAudioTrimTime();
}

void TrimSelection::calculateAudioTrimTime() {
    m_times = trimrules::selection(m_thumbs, m_audioDuration, m_containerWidth);
    m_labelled = m_thumbs;
    Q_EMIT timesChanged();
}

void TrimSelection::handlePan(TrimThumb thumb, PanGesture& pan) {
    Q_EMIT panned();
    if (pan.state != PanGesture::State::Changed) {
        calculateAudioTrimTime();
        return;
    }
    m_frontThumb = thumb;
    // On purpose before the move: a step is judged by the stretch before it. During a drag the times are one step
    // behind the thumb; its end makes them exact.
    calculateAudioTrimTime();
    if (trimrules::isMoveAllowed(thumb, m_times, pan.translation)) {
        double& centre = thumb == TrimThumb::Left ? m_thumbs.left : m_thumbs.right;
        centre = trimrules::movedCentre(centre, pan.translation, m_containerWidth);
        pan.translation = 0.0;
    }
    Q_EMIT thumbsChanged();
}

void TrimSelection::beginDrag(bool isLeft) {
    m_pan = {PanGesture::State::Began, 0.0};
    handlePan(thumbOf(isLeft), m_pan);
}

void TrimSelection::drag(bool isLeft, double movement) {
    const TrimThumb thumb = thumbOf(isLeft);
    const double total = m_pan.translation + movement;
    const TrimTimes now = trimrules::selection(m_thumbs, m_audioDuration, m_containerWidth);
    const double first = trimrules::firstStep(thumb, now, total, m_audioDuration, m_containerWidth);
    m_pan = {PanGesture::State::Changed, first};
    handlePan(thumb, m_pan);
    if (first != total) {
        m_pan.translation += total - first;
        handlePan(thumb, m_pan);
    }
}

void TrimSelection::endDrag(bool isLeft) {
    m_pan = {PanGesture::State::Ended, 0.0};
    handlePan(thumbOf(isLeft), m_pan);
}

void TrimSelection::nudge(bool isLeft, double seconds) {
    if (m_audioDuration > 0.0) {
        beginDrag(isLeft);
        drag(isLeft, (seconds + kAboveRounding) * m_containerWidth / m_audioDuration);
        endDrag(isLeft);
    }
}

}  // namespace tavi
