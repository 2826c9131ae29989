#pragma once

#include "platform/RecorderState.h"
#include "platform/StatusIcon.h"

namespace tavi {

/// What can be chosen from the icon.
enum class CompanionAction { None, Record, Stop, Show, Quit };

/// Hours, minutes and seconds, as the recorder's clock shows them.
QString companionClock(qint64 seconds);
/// What the icon shows of the recorder. Nothing of the recording while that is locked: starting and stopping work.
StatusContent companionContent(const RecorderState& state);

}  // namespace tavi
