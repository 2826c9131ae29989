#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "files/FileDescriptor.h"
#include "files/FileError.h"

namespace tavi {

/// The folder of one recording that is not among the others yet, for whoever has this alone.
///
/// Others are kept away by a lock of the kernel's on the folder itself, which goes with this or with the process,
/// however that ends: a folder that can be locked is one that somebody left behind. Waits for no lock and no disk. One
/// thread at a time.
class LockedFolder {
public:
    /// Makes a folder below another one, with the name or the first numbered one that is free. Fails where it can be
    /// neither made nor locked.
    static FileResult<LockedFolder> create(const std::filesystem::path& parent, const std::string& name);
    /// One that is there; nothing, with errno set, where somebody else has it (EWOULDBLOCK) or has just removed it
    /// (ENOENT), or where the file system has no such locks.
    static std::optional<LockedFolder> lock(const std::filesystem::path& path);

    const std::filesystem::path& path() const { return m_path; }
    /// The files in it. Links and folders, which the program does not make, are none.
    std::vector<std::filesystem::path> files() const;
    /// Removes the folder, if it is empty.
    void remove();

private:
    LockedFolder(FileDescriptor lock, std::filesystem::path path) : m_lock(std::move(lock)), m_path(std::move(path)) {}

    FileDescriptor m_lock;
    std::filesystem::path m_path;
};

}  // namespace tavi
