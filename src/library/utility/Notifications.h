#pragma once

#include <QLatin1String>

namespace tavi {

/// Posted when the recordings in the documents folder have changed.
inline constexpr QLatin1String kDataUpdatedNotification("DataUpdated");
/// Posted when a recording has ended by which the output left the earpiece.
inline constexpr QLatin1String kOutputReturnedNotification("OutputReturned");

}  // namespace tavi
