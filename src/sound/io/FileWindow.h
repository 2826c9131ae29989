#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tavi {

/// Small pieces of a file, read through a window: what lies close together costs one read. Borrows the descriptor, and
/// sees what is written to the file meanwhile only when the window moves. One thread at a time.
class FileWindow {
public:
    FileWindow() = default;
    explicit FileWindow(int fd, std::size_t bytes = 4096) : m_fd(fd), m_windowBytes(bytes) {}

    /// The bytes from an offset on; fewer than asked for at the end of the file. They stay until the next call.
    std::span<const std::uint8_t> at(std::int64_t offset, std::size_t size);

private:
    int m_fd = -1;
    std::size_t m_windowBytes = 0;
    std::int64_t m_offset = 0;
    std::vector<std::uint8_t> m_bytes;
};

}  // namespace tavi
