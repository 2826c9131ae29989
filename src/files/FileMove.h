#pragma once

#include <filesystem>

#include "files/FileError.h"

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

/// Gives a file the first numbered name beside its own that is free, "talk_2.wav" for "talk.wav", and returns it.
/// Replaces nothing and waits for no disk; with a failure the file keeps its name. Any thread.
FileResult<std::filesystem::path> stepAside(const std::filesystem::path& path);

/// Moves the file to another name, replacing nothing.
///
/// Across file systems it is copied, by way of the folder "PrivateInbox" beside its target, which no list shows; it
/// gets its name when all of it is on the disk. When this fails the source is as it was and the
/// target folder shows no part of it. Any thread; takes as long as the disk needs.
FileResult<void> moveItem(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tavi
