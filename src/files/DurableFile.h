#pragma once

#include <sys/types.h>

#include <ctime>
#include <filesystem>
#include <string_view>
#include <utility>

#include "files/FileDescriptor.h"

namespace tavi {

/// Brings a file and its entry in the folder to the disk. 0 or an errno value. What a file system cannot do, or need
/// not, is no failure; nor is a folder that may be written and not read.
int synchronize(int fd, const std::filesystem::path& folder);
/// The entries alone.
int synchronizeFolder(const std::filesystem::path& folder);

/// Removes what DurableFiles of processes that were killed have left in a folder: nobody has touched it for an hour.
void removeLeftovers(const std::filesystem::path& folder, std::time_t now);

/// What becomes of a file that has the name already.
enum class Existing { Keep, Replace };

/// Whether a file waits for the disk before it has its name.
enum class Disk { Wait, Later };

/// A file that has its name only when all of it is on the disk.
///
/// Until it is published it has a name of its own, in the folder "PrivateInbox" beside the one that it shall have, or
/// beside that where there is no such folder; unless it is published it disappears with this. What a killed process
/// leaves goes with a later one. One thread at a time.
class DurableFile {
public:
    /// Makes an empty file that is to have that path. Invalid, with errno set, when that fails: EEXIST where the path
    /// is taken; EISDIR or EINVAL where what is to be replaced is no file. The name for now ends with the suffix.
    static DurableFile create(const std::filesystem::path& path, std::string_view suffix = {},
                              Existing existing = Existing::Keep);
    DurableFile(DurableFile&& other) noexcept
        : m_file(std::move(other.m_file)),
          m_temporary(std::exchange(other.m_temporary, {})),
          m_path(std::move(other.m_path)),
          m_existing(other.m_existing) {}
    DurableFile& operator=(DurableFile&&) = delete;
    ~DurableFile();

    bool isValid() const { return m_file.isValid(); }
    int fd() const { return m_file.get(); }
    /// The name for now; empty once it is published.
    const std::filesystem::path& temporaryPath() const { return m_temporary; }
    /// Removes the empty file, so that another writer can make one of that name; publish() takes what is there then.
    void discard();

    /// Brings all of it to the disk, which can take long. 0 or an errno value.
    int synchronize();
    /// Does that and gives it its name, in one step where it replaces a file. 0 or an errno value: EEXIST where the
    /// name has been taken meanwhile. After a failure this file does not have that name. Once. With Disk::Later it is
    /// whole for whoever reads it, and may be neither there nor whole after a power cut.
    int publish(Disk disk = Disk::Wait);

private:
    DurableFile() = default;

    FileDescriptor m_file;
    std::filesystem::path m_temporary;
    std::filesystem::path m_path;
    Existing m_existing = Existing::Keep;
};

}  // namespace tavi
