#pragma once

#include <filesystem>
#include <vector>

#include "platform/AudioFileRepair.h"

namespace tavi::test {

/// Takes every file that is not empty for sound, and keeps which ones it was given.
struct FakeAudioFileRepair : AudioFileRepair {
    Result<bool> repair(const std::filesystem::path& path) override {
        repaired.push_back(path);
        std::error_code error;
        const auto size = std::filesystem::file_size(path, error);
        return !error && answer ? Result<bool>(size > 0) : failure(QStringLiteral("damaged"));
    }

    std::vector<std::filesystem::path> repaired;
    /// An error here makes every repair fail.
    Result<void> answer;
};

}  // namespace tavi::test
