#pragma once

#include <filesystem>

#include "platform/Error.h"

namespace tavi {

/// Completes what recordings that were interrupted have left.
class AudioFileRepair {
public:
    virtual ~AudioFileRepair() = default;

    /// Completes in place a file whose writer was interrupted, and brings it to the disk. True when it holds sound,
    /// false when it holds none; a file that is whole already is left as it is. Fails when the file cannot be read or
    /// written, without losing what can be read of it. Any thread but the main one: takes as long as the disk needs.
    /// Nobody else may write to the file meanwhile.
    virtual Result<bool> repair(const std::filesystem::path& path) = 0;
};

}  // namespace tavi
