#pragma once

#include <cstdint>
#include <vector>

#include "platform/ExtAudioFile.h"

namespace tavi {

/// Reduces runs of frames of an open file to one RMS a run and channel.
struct WaveformReduction {
    ExtAudioFile& file;
    /// Of 32-bit floats.
    const AudioStreamBasicDescription& clientFormat;
    std::uint32_t framesPerPoint = 0;
    /// One array a channel, of as many floats as there are points.
    const std::vector<float*>& points;

    /// Reads on from where the file is and sets the points from first to the one before last.
    void reduce(std::uint32_t first, std::uint32_t last) const;
};

}  // namespace tavi
