#pragma once

#include <cstddef>
#include <cstdint>

namespace tavi {

/// Fades out before and in after the place where a pause was cut out, so that the joint does not click.
///
/// The gain is a raised cosine over rampFrames on either side. Frames are interleaved and changed in place; firstFrame
/// is the index in the recording of the first of them. No frame is added or dropped.
void fadeSeam(float* interleaved, std::int64_t firstFrame, std::size_t frames, int channels, std::int64_t seamFrame,
              std::int64_t rampFrames);

}  // namespace tavi
