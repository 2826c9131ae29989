#pragma once

#include <QLatin1String>

namespace tavi {

/// Posted when the recordings in the documents folder have changed.
inline constexpr QLatin1String kDataUpdatedNotification("DataUpdated");

}  // namespace tavi
