#include "library/PlayerRules.h"

#include <cmath>

#include "library/utility/Utility.h"

namespace tavi::playerrules {

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr double kDefaultBack = 10.0;
constexpr double kDefaultForward = 30.0;

/// A step as its text with six decimals says it, which is how steps have always been handed on.
float throughText(double seconds) {
    return QString::number(seconds, 'f', 6).toFloat();
}

QString stepText(double seconds) {
    return Utility::fixed(seconds, 0) + QStringLiteral(" Sec");
}

}  // namespace

QString timeText(double seconds) {
    const auto whole = std::isfinite(seconds) && seconds > 0.0 ? static_cast<qint64>(seconds) : qint64{0};
    const auto twoDigits = [](qint64 number) { return QString::number(number).rightJustified(2, QLatin1Char('0')); };
    return twoDigits(whole / kSecondsPerMinute) + QLatin1Char(':') + twoDigits(whole % kSecondsPerMinute);
}

float backStep(double storedRewind) {
    return throughText(storedRewind != 0.0 ? storedRewind : kDefaultBack);
}

float forwardStep(double storedForward) {
    return throughText(storedForward != 0.0 ? storedForward : kDefaultForward);
}

std::optional<double> backTarget(double currentTime, float step) {
    const double target = currentTime - static_cast<double>(step);
    return target < 0.0 ? std::nullopt : std::optional(target);
}

std::optional<double> forwardTarget(double currentTime, double duration, float step) {
    const double target = currentTime + static_cast<double>(step);
    return target > duration ? std::nullopt : std::optional(target);
}

QString backLabel(double storedRewind) {
    return stepText(storedRewind != 0.0 ? storedRewind : kDefaultBack);
}

QString forwardLabel(double storedRewind, double storedForward) {
    // The stored step back decides, on purpose: the two labels fall back together, while each skip goes by its own
    // step.
    return stepText(storedRewind != 0.0 ? storedForward : kDefaultForward);
}

}  // namespace tavi::playerrules
