#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace tavi::test {

/// Writes a file, with the folders above it, and returns its path.
inline std::filesystem::path written(const std::filesystem::path& path, const std::string& contents = "sound") {
    std::filesystem::create_directories(path.parent_path());
    if (!(std::ofstream(path, std::ios::binary) << contents << std::flush)) {
        throw std::filesystem::filesystem_error("cannot write", path, {});
    }
    return path;
}

/// Nothing where there is no such file.
inline std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Everything below a folder that is no folder, by the paths from there.
inline std::set<std::string> filesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_symlink() || !entry.is_directory()) {
            names.insert(entry.path().lexically_relative(folder));
        }
    }
    return names;
}

}  // namespace tavi::test
