#pragma once

#include <filesystem>

namespace tavi {

/// Tells how long a sound file plays.
class AudioDuration {
public:
    virtual ~AudioDuration() = default;

    /// Seconds, without an encoder's declared priming and padding; 0 when the file is no sound file that can be opened.
    /// Any thread.
    virtual double durationOfFile(const std::filesystem::path& path) const = 0;
};

}  // namespace tavi
