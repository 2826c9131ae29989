#pragma once

#include <filesystem>
#include <stop_token>

namespace tavi {

/// Tells how long a sound file plays.
class AudioDuration {
public:
    virtual ~AudioDuration() = default;

    /// Seconds, without an encoder's declared priming and padding; 0 when the file is no sound file that can be opened.
    /// A stream that does not say its length is read through; asking for the stop ends that soon, with any answer. Any
    /// thread.
    virtual double durationOfFile(const std::filesystem::path& path, const std::stop_token& stop = {}) const = 0;
};

}  // namespace tavi
