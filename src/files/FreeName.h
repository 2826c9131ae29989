#pragma once

#include <filesystem>

#include "platform/Error.h"

namespace tavi {

/// Gives a file the first name beside its own that is free, "talk_2.wav", "talk_3.wav" and so on for "talk.wav", and
/// returns it. Replaces nothing, and waits for no disk; with a failure the file keeps its name. Any thread.
Result<std::filesystem::path> stepAside(const std::filesystem::path& path);

}  // namespace tavi
