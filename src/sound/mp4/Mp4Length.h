#pragma once

#include <optional>
#include <stop_token>

#include "sound/mp4/Mp4Movie.h"

namespace tavi {

/// Seconds for which the first track of sound plays, by its edit list (ISO/IEC 14496-12, 8.6.6), or its fragments, or
/// its media's own length. Nothing where there is no such track, where its fragments cannot be read,
/// and as soon as the stop is asked for.
std::optional<double> mp4Seconds(int fd, const Mp4Movie& movie, const std::stop_token& stop = {});

}  // namespace tavi
