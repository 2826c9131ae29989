#include "files/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tavi {

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
        close();
        m_fd = std::exchange(other.m_fd, -1);
    }
    return *this;
}

FileDescriptor FileDescriptor::open(const std::filesystem::path& path, int flags, mode_t mode) {
    int fd = -1;
    do {
        fd = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    } while (fd < 0 && errno == EINTR);
    return FileDescriptor(fd);
}

int FileDescriptor::close() {
    // Not repeated after EINTR: Linux has released the descriptor by then.
    return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0 || errno == EINTR ? 0 : errno;
}

}  // namespace tavi
