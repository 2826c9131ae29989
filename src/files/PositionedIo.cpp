#include "files/PositionedIo.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tavi {

PwriteFunction systemPwrite() {
    return ::pwrite;
}

SyncFunction systemSync() {
    return ::fdatasync;
}

WriteResult writeFully(const PwriteFunction& pwrite, int fd, const void* data, std::size_t size, std::int64_t offset) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    WriteResult result;
    while (result.written < size) {
        const ssize_t count = pwrite(fd, bytes + result.written, size - result.written,
                                     static_cast<off_t>(offset + static_cast<std::int64_t>(result.written)));
        if (count > 0) {
            result.written += static_cast<std::size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            result.error = count == 0 ? EIO : errno;
            break;
        }
    }
    return result;
}

std::size_t readFully(int fd, void* data, std::size_t size, std::int64_t offset) {
    auto* bytes = static_cast<unsigned char*>(data);
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            ::pread(fd, bytes + done, size - done, static_cast<off_t>(offset + static_cast<std::int64_t>(done)));
        if (count > 0) {
            done += static_cast<std::size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            break;
        }
    }
    return done;
}

std::int64_t regularFileSize(int fd) {
    struct stat status = {};
    return ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) ? std::int64_t{status.st_size} : -1;
}

}  // namespace tavi
