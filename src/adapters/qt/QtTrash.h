#pragma once

#include "platform/Trash.h"

namespace tavi {

/// The desktop's trash, the one that file managers show: in the user's home, or at the top of another file system
/// (freedesktop.org, Trash 1.0).
class QtTrash final : public Trash {
public:
    /// A name that is no text shows in the trash as people read it.
    Result<std::filesystem::path> moveToTrash(const std::filesystem::path& path) override;
    Result<std::filesystem::path> putBack(const std::filesystem::path& trashed,
                                          const std::filesystem::path& path) override;
};

}  // namespace tavi
