#pragma once

#include <cstdint>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi {

/// The code by which the ports know a codec; "????" for one that they do not.
std::uint32_t formatOf(AVCodecID codec);
/// Frames that a decoder must have heard before a place, so that it sounds there as in one pass.
std::int64_t prerollOf(const AVCodecParameters& parameters);

}  // namespace tavi
