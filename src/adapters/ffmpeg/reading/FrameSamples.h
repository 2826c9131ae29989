#pragma once

#include <cstddef>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi {

/// Copies samples of a channel of a decoded frame, from an offset on, as floats of full scale -1 to 1. What is no
/// number becomes silence.
void copyChannel(const AVFrame& frame, int channel, std::size_t offset, float* to, std::size_t count);

}  // namespace tavi
