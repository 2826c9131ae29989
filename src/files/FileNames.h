#pragma once

#include <unistd.h>

#include <filesystem>

namespace tavi {

/// Whether there is something at a path.
inline bool existsAt(const std::filesystem::path& path) {
    return ::access(path.c_str(), F_OK) == 0;
}

/// Removes the file at a path, if there is one.
inline void removeAt(const std::filesystem::path& path) {
    ::unlink(path.c_str());
}

}  // namespace tavi
