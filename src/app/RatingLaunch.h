#pragma once

#include "support/AppRater.h"

namespace tavi {

/// Reports a launch to the rater, with the thresholds of the program.
inline void reportLaunch(AppRater& rater) {
    rater.options().daysUntilPrompt = 0;
    rater.options().launchesUntilPrompt = 2;
    rater.options().remindMeDaysUntilPrompt = 0;
    rater.options().remindMeLaunchesUntilPrompt = 4;
    rater.appLaunched();
}

}  // namespace tavi
