#pragma once

#include <QString>
#include <optional>

namespace tavi {

/// Pure rules of the player: texts and steps. Times are seconds.
namespace playerrules {

/// "mm:ss" of the whole seconds. Minutes are not wrapped into hours, on purpose: there is one short form everywhere,
/// and 3725 s read 62:05. What is no time reads 00:00.
QString timeText(double seconds);

/// How far a skip goes: the stored step, or the fallback where it is 0.
float backStep(double storedRewind);
float forwardStep(double storedForward);

/// Where a skip back or forward leads; nothing where it would leave the recording. It is not cut at the ends, on
/// purpose: a step that does not fit is none.
std::optional<double> backTarget(double currentTime, float step);
std::optional<double> forwardTarget(double currentTime, double duration, float step);

/// What stands on the two skip buttons.
QString backLabel(double storedRewind);
QString forwardLabel(double storedRewind, double storedForward);

}  // namespace playerrules

}  // namespace tavi
