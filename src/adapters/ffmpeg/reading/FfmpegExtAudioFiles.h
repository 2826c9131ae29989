#pragma once

#include <filesystem>

#include "platform/ExtAudioFile.h"

namespace tavi {

/// Sound files of all types that FFmpeg knows; those that are recorded most are read by faster ways of our own.
class FfmpegExtAudioFiles : public ExtAudioFiles {
public:
    AudioStatus open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file) override;
};

}  // namespace tavi
