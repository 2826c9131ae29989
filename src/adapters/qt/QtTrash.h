#pragma once

#include "platform/Trash.h"

namespace tavi {

/// The trash of the desktop, as the freedesktop.org trash specification says where it is: in the user's home, or at the
/// top of another file system.
class QtTrash final : public Trash {
public:
    /// A name that is no text shows in the trash as people read it.
    Result<std::filesystem::path> moveToTrash(const std::filesystem::path& path) override;
    Result<std::filesystem::path> putBack(const std::filesystem::path& trashed,
                                          const std::filesystem::path& path) override;
};

}  // namespace tavi
