#pragma once

#include <filesystem>
#include <stop_token>

#include "platform/AudioDuration.h"

namespace tavi {

/// Reads the headers of the kinds that are recorded, and asks libavformat about other sound files. Prints nothing.
class FfmpegAudioDuration : public AudioDuration {
public:
    double durationOfFile(const std::filesystem::path& path, const std::stop_token& stop = {}) const override;
};

}  // namespace tavi
