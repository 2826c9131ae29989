#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <functional>

namespace tavi {

/// pwrite(2) or what stands in for it, with its return value and errno.
using PwriteFunction = std::function<ssize_t(int fd, const void* data, std::size_t size, off_t offset)>;

/// The system's own pwrite(2).
PwriteFunction systemPwrite();

/// fdatasync(2) or what stands in for it, with its return value and errno.
using SyncFunction = std::function<int(int fd)>;

/// The system's own fdatasync(2).
SyncFunction systemSync();

/// How far a write came, and the errno that ended it; 0 when everything was written.
struct WriteResult {
    std::size_t written = 0;
    int error = 0;
};

/// Writes everything, through interruptions and short writes.
WriteResult writeFully(const PwriteFunction& pwrite, int fd, const void* data, std::size_t size, std::int64_t offset);

/// Reads up to size bytes, through interruptions and short reads; fewer only at the end of the file or after an error.
std::size_t readFully(int fd, void* data, std::size_t size, std::int64_t offset);

/// Length in bytes of a regular file; -1 for anything else.
std::int64_t regularFileSize(int fd);

}  // namespace tavi
