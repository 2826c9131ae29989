#include "adapters/recorder/SeamFade.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tavi {

void fadeSeam(float* interleaved, std::int64_t firstFrame, std::size_t frames, int channels, std::int64_t seamFrame,
              std::int64_t rampFrames) {
    const std::int64_t begin = std::max(firstFrame, seamFrame - rampFrames);
    const std::int64_t end = std::min(firstFrame + static_cast<std::int64_t>(frames), seamFrame + rampFrames);
    for (std::int64_t frame = begin; frame < end; ++frame) {
        // Both sides meet at half a frame's distance from the seam, so that they mirror each other.
        const double distance = std::abs(static_cast<double>(frame - seamFrame) + 0.5);
        const double gain = 0.5 - 0.5 * std::cos(std::numbers::pi * distance / static_cast<double>(rampFrames));
        float* samples = interleaved + (frame - firstFrame) * channels;
        for (int channel = 0; channel < channels; ++channel) {
            samples[channel] *= static_cast<float>(gain);
        }
    }
}

}  // namespace tavi
