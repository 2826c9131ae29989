#pragma once

#include <filesystem>
#include <functional>

namespace tavi {

/// Lets one program at a time at a file that several write.
class CoordinatedFiles {
public:
    virtual ~CoordinatedFiles() = default;

    /// Calls the accessor at once, while nobody else who coordinates is at that file. False, without a call, where
    /// somebody keeps it for longer than can be waited for. What a program that dies held is free again. Any thread.
    virtual bool coordinate(const std::filesystem::path& file, const std::function<void()>& accessor) = 0;
};

}  // namespace tavi
