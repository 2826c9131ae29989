#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stop_token>

#include "files/DurableFile.h"
#include "files/FileDescriptor.h"

namespace tavi {

/// Who watches a copy. Everything is asked and told on the thread that copies.
struct CopyWatch {
    /// How far it has come, from 0 to 1; at most once a hundredth. May be empty.
    std::function<void(double fraction)> progress = {};
    /// Asked to stop, it ends with ECANCELED.
    std::stop_token stop = {};
};

/// Opens a regular file for reading, or what a link to one leads to, and tells its attributes; invalid, with errno set,
/// when that fails: EISDIR for a folder, EINVAL for a device, a pipe or a socket. Opens no device and waits for no
/// pipe.
FileDescriptor openRegular(const std::filesystem::path& path, struct stat& attributes);

/// Copies contents and dates of an open regular file into an empty one. The room is taken before the first byte, so
/// that ENOSPC comes at once, and written bytes reach the disk while more are copied, so that its end is never far.
/// EBUSY where somebody writes to the source meanwhile: no copy is half the one, half the other. 0 or an errno value.
int copyContents(int source, const struct stat& attributes, int target, const CopyWatch& watch = {});

/// Copies a regular file with its dates, read and write permissions to a name that nothing has, or whose file it
/// replaces in one step: the copy is there when all of it is on the disk, and after a failure all is as it was. 0 or an
/// errno value: those above, and EEXIST where the name is taken, be it meanwhile. Any thread; takes as long as the
/// disks need.
int copyItem(const std::filesystem::path& from, const std::filesystem::path& to, const CopyWatch& watch = {},
             Existing existing = Existing::Keep);

}  // namespace tavi
