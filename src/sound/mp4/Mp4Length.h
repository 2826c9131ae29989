#pragma once

#include <optional>

#include "sound/mp4/Mp4Movie.h"

namespace tavi {

/// Seconds for which the first track of sound plays, by its edit list (ISO/IEC 14496-12, 8.6.6), or its fragments, or
/// its media's own length. Nothing where there is no such track, and where its fragments cannot be read.
std::optional<double> mp4Seconds(int fd, const Mp4Movie& movie);

}  // namespace tavi
