#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

namespace tavi {

/// A file and its contents, as far as the file system tells them apart. Any thread.
struct FileIdentity {
    /// Of no file.
    FileIdentity() = default;
    explicit FileIdentity(const struct stat& attributes)
        : device(attributes.st_dev),
          node(attributes.st_ino),
          size(attributes.st_size),
          seconds(attributes.st_mtim.tv_sec),
          nanoseconds(attributes.st_mtim.tv_nsec) {}

    /// Of what is at a path; nothing where there is nothing.
    static std::optional<FileIdentity> at(const std::filesystem::path& path) {
        struct stat attributes = {};
        return ::stat(path.c_str(), &attributes) == 0 ? std::optional(FileIdentity(attributes)) : std::nullopt;
    }

    bool operator==(const FileIdentity&) const = default;

    std::uint64_t device = 0;
    std::uint64_t node = 0;
    std::int64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
};

/// For tables of what is known about files.
struct FileIdentityHash {
    std::size_t operator()(const FileIdentity& identity) const {
        std::size_t hash = 0;
        for (const std::uint64_t part :
             {identity.node, static_cast<std::uint64_t>(identity.size), static_cast<std::uint64_t>(identity.seconds),
              static_cast<std::uint64_t>(identity.nanoseconds)}) {
            hash = (hash ^ std::hash<std::uint64_t>()(part)) * 0x9E3779B97F4A7C15U;
        }
        return hash;
    }
};

}  // namespace tavi
