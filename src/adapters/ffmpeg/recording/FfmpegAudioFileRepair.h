#pragma once

#include "platform/AudioFileRepair.h"

namespace tavi {

/// Completes files of every kind that FfmpegAudioFileWriters makes; SoundRepair.h tells how.
class FfmpegAudioFileRepair : public AudioFileRepair {
public:
    Result<bool> repair(const std::filesystem::path& path) override;
};

}  // namespace tavi
