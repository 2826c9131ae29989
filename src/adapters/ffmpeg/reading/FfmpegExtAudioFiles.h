#pragma once

#include <filesystem>
#include <stop_token>

#include "platform/ExtAudioFile.h"

namespace tavi {

/// Sound files of all types that FFmpeg knows; those that are recorded most are read by faster ways of our own.
class FfmpegExtAudioFiles : public ExtAudioFiles {
public:
    AudioStatus open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                     const std::stop_token& stop = {}) override;
};

}  // namespace tavi
