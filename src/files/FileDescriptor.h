#pragma once

#include <sys/types.h>

#include <filesystem>
#include <utility>

namespace tavi {

/// Owns one file descriptor; -1 stands for none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    /// Opens a path; invalid, with errno set, when that fails. Always close-on-exec; mode counts for a file that is
    /// made.
    static FileDescriptor open(const std::filesystem::path& path, int flags, mode_t mode = 0);

    int get() const { return m_fd; }
    bool isValid() const { return m_fd >= 0; }
    /// Lets go of it. 0, or the errno by which the system says only now that something could not be written.
    int close();

private:
    int m_fd = -1;
};

}  // namespace tavi
