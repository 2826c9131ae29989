#include "sound/io/FileWindow.h"

#include <algorithm>

#include "files/PositionedIo.h"

namespace tavi {

std::span<const std::uint8_t> FileWindow::at(std::int64_t offset, std::size_t size) {
    const auto end = m_offset + static_cast<std::int64_t>(m_bytes.size());
    if (offset < m_offset || offset > end || static_cast<std::size_t>(end - offset) < size) {
        m_bytes.resize(std::max(size, m_windowBytes));
        m_bytes.resize(readFully(m_fd, m_bytes.data(), m_bytes.size(), offset));
        m_offset = offset;
    }
    const auto from = std::span<const std::uint8_t>(m_bytes).subspan(static_cast<std::size_t>(offset - m_offset));
    return from.first(std::min(size, from.size()));
}

}  // namespace tavi
