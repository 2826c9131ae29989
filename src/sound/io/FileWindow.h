#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tavi {

/// Reads small pieces of a file through a window, so that pieces close to each other cost one read. Borrows the
/// descriptor. What others write to the file meanwhile shows when the window moves. One thread at a time.
class FileWindow {
public:
    FileWindow() = default;
    /// The window has that many bytes, and grows up to most while one piece after the other is read.
    explicit FileWindow(int fd, std::size_t bytes = 4096, std::size_t most = 0)
        : m_fd(fd), m_first(bytes), m_most(most > bytes ? most : bytes) {}

    /// The bytes from an offset on; fewer than asked for at the end of the file. Valid until the next call.
    std::span<const std::uint8_t> at(std::int64_t offset, std::size_t size);

private:
    int m_fd = -1;
    std::size_t m_first = 0;
    std::size_t m_most = 0;
    std::size_t m_wanted = 0;
    std::int64_t m_offset = 0;
    std::vector<std::uint8_t> m_bytes;
    bool m_isEnd = false;
};

}  // namespace tavi
