#pragma once

#include "platform/AudioFileRepair.h"

namespace tavi {

/// Turns the fragments of MP4 and M4A files into ordinary files; the other kinds that are recorded are readable as they
/// are.
class FfmpegAudioFileRepair : public AudioFileRepair {
public:
    Result<bool> repair(const std::filesystem::path& path) override;
};

}  // namespace tavi
