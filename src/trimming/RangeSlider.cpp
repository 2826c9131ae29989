#include "trimming/RangeSlider.h"

#include <algorithm>
#include <cmath>

namespace tavi {

namespace {

constexpr double kLabelRise = 50.0;
constexpr qint64 kSecondsPerMinute = 60;
constexpr double kTrackHeight = 4.0;

/// Whether a frame holds a point; its right and lower edges are outside.
bool holds(const QRectF& frame, const QPointF& point) {
    return point.x() >= frame.left() && point.x() < frame.right() && point.y() >= frame.top() &&
           point.y() < frame.bottom();
}

QString twoDigits(qint64 number) {
    return QString::number(number).rightJustified(2, QLatin1Char('0'));
}

}  // namespace

QRectF RangeSlider::Thumb::frame() const {
    return {centre.x() - kThumbWidth / 2.0, centre.y() - kThumbHeight / 2.0, kThumbWidth, kThumbHeight};
}

QString RangeSlider::Thumb::image() const {
    return isOn ? QStringLiteral("handle_h.png") : QStringLiteral("handle.png");
}

float RangeSlider::xForValue(float value) const {
    const float part = (value - minimumValue) / (maximumValue - minimumValue);
    const auto padding = static_cast<double>(m_padding);
    return static_cast<float>(padding + static_cast<double>(part) * (m_frame.width() - 2.0 * padding));
}

float RangeSlider::valueForX(float x) const {
    const double part = static_cast<double>(x - m_padding) / (m_frame.width() - 2.0 * static_cast<double>(m_padding));
    return static_cast<float>(static_cast<double>(minimumValue) +
                              part * static_cast<double>(maximumValue - minimumValue));
}

QString RangeSlider::updateCurrentTime(float seconds) const {
    const qint64 whole = std::isfinite(seconds) ? static_cast<qint64>(seconds) : 0;
    const qint64 minutes = whole / kSecondsPerMinute;
    return twoDigits(minutes) + QLatin1Char(':') + twoDigits(whole - kSecondsPerMinute * minutes);
}

QString RangeSlider::stringFromTime(qint64 seconds) const {
    const auto padded = [](qint64 n) { return (n > 9 ? QString() : QStringLiteral("0")) + QString::number(n); };
    const qint64 minutes = seconds / kSecondsPerMinute;
    return padded(minutes) + QLatin1Char(':') + padded(seconds - kSecondsPerMinute * minutes);
}

void RangeSlider::setFrame(const QRectF& frame) {
    m_frame = frame;
    if (m_track.height() <= 0.0) {
        m_track = QRectF(frame.center().x(), frame.center().y() - kTrackHeight / 2.0, 0.0, kTrackHeight);
    }
    layoutSubviews();
}

void RangeSlider::layoutSubviews() {
    // On purpose the centre as the container sees it: the control lies at the container's origin.
    const double y = m_frame.center().y();
    const auto place = [y](Thumb& thumb, float x) {
        thumb.centre = {static_cast<double>(x), y};
        if (thumb.isOn) {
            thumb.labelCentre = {static_cast<double>(x), y - kLabelRise};
        }
    };
    place(m_minThumb, xForValue(selectedMinimumValue));
    place(m_maxThumb, xForValue(selectedMaximumValue));
    updateTrackHighlight();
    Q_EMIT changed();
}

void RangeSlider::updateTrackHighlight() {
    m_track = {m_minThumb.centre.x(), m_track.center().y() - m_track.height() / 2.0,
               m_maxThumb.centre.x() - m_minThumb.centre.x(), m_track.height()};
}

void RangeSlider::grab(Thumb& thumb, double touchX) {
    thumb.isOn = true;
    m_distanceFromCenter = static_cast<float>(touchX - thumb.centre.x());
    Q_EMIT changed();
}

bool RangeSlider::beginTrackingWithTouch(const QPointF& touch) {
    if (holds(m_minThumb.frame(), touch)) {
        grab(m_minThumb, touch.x());
    } else if (holds(m_maxThumb.frame(), touch)) {
        grab(m_maxThumb, touch.x());
    }
    return true;
}

bool RangeSlider::continueTrackingWithTouch(const QPointF& touch) {
    if (!m_minThumb.isOn && !m_maxThumb.isOn) {
        return false;
    }
    // The outer end is applied last: it wins where it and the least range leave no room.
    double x = touch.x() - static_cast<double>(m_distanceFromCenter);
    if (m_minThumb.isOn) {
        x = std::min(x, static_cast<double>(xForValue(selectedMaximumValue - minimumRange)));
        x = std::max(x, static_cast<double>(xForValue(minimumValue)));
        m_minThumb.centre.setX(x);
        selectedMinimumValue = valueForX(static_cast<float>(x));
        m_minThumb.label = updateCurrentTime(selectedMinimumValue);
    } else {
        x = std::max(x, static_cast<double>(xForValue(selectedMinimumValue + minimumRange)));
        x = std::min(x, static_cast<double>(xForValue(maximumValue)));
        m_maxThumb.centre.setX(x);
        selectedMaximumValue = valueForX(static_cast<float>(x));
        m_maxThumb.label = updateCurrentTime(selectedMaximumValue);
    }
    updateTrackHighlight();
    Q_EMIT valueChanged();
    layoutSubviews();
    return true;
}

void RangeSlider::endTrackingWithTouch() {
    m_minThumb.isOn = false;
    m_maxThumb.isOn = false;
    Q_EMIT changed();
}

void RangeSlider::nudge(bool minimum, double seconds) {
    Thumb& thumb = minimum ? m_minThumb : m_maxThumb;
    grab(thumb, thumb.centre.x());
    const float value = (minimum ? selectedMinimumValue : selectedMaximumValue) + static_cast<float>(seconds);
    continueTrackingWithTouch({static_cast<double>(xForValue(value)), thumb.centre.y()});
    endTrackingWithTouch();
}

}  // namespace tavi
