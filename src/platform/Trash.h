#pragma once

#include <filesystem>

#include "platform/Error.h"

namespace tavi {

/// Where the desktop keeps what its user has thrown away, and may want back. Any thread; takes as long as the disk
/// needs.
class Trash {
public:
    virtual ~Trash() = default;

    /// Moves a file or a folder into the trash, and says where it is there. Its path is free afterwards. Fails, and
    /// leaves everything as it was, where there is no trash for it, or none that takes it.
    virtual Result<std::filesystem::path> moveToTrash(const std::filesystem::path& path) = 0;

    /// Brings back what moveToTrash() has put at a place in the trash: under the path it had, or where something has
    /// that by now under the first free one beside it. Says which. A failure leaves it in the trash.
    virtual Result<std::filesystem::path> putBack(const std::filesystem::path& trashed,
                                                  const std::filesystem::path& path) = 0;
};

}  // namespace tavi
