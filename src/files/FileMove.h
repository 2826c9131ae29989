#pragma once

#include <filesystem>

#include "platform/Error.h"

namespace tavi {

/// The way to give a file its new name within one file system without replacing what may have that name.
enum class RenameMethod {
    /// renameat2(2) with RENAME_NOREPLACE.
    Exclusive,
    /// A second name by link(2), then the first one is removed. For file systems that lack the flag.
    Link,
    /// The new name is taken by an empty file, which the file then replaces. For file systems without hard links too.
    Reserve,
};

/// Renames a file, starting with that method and going on to the next where the file system lacks it. Returns 0 or an
/// errno value: EEXIST when the new name is taken; with a failure the file keeps its old name.
int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to,
                           RenameMethod method = RenameMethod::Exclusive);

/// Moves the file to another name, replacing nothing.
///
/// Across file systems the file is copied under a temporary name in the folder "PrivateInbox" beside its target, which
/// no list shows, and gets its name when all of it is on the disk. When this fails the source is as it was and the
/// target folder shows no part of it. Any thread; takes as long as the disk needs.
Result<void> moveItem(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tavi
