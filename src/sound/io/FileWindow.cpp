#include "sound/io/FileWindow.h"

#include <algorithm>

#include "files/PositionedIo.h"

namespace tavi {

std::span<const std::uint8_t> FileWindow::at(std::int64_t offset, std::size_t size) {
    const auto end = m_offset + static_cast<std::int64_t>(m_bytes.size());
    const bool isNear = m_wanted > 0 && offset >= m_offset && offset <= end;
    if (!isNear || (static_cast<std::size_t>(end - offset) < size && !m_isEnd)) {
        m_wanted = isNear ? std::min(2 * m_wanted, m_most) : m_first;
        m_bytes.resize(std::max(size, m_wanted));
        const std::size_t count = readFully(m_fd, m_bytes.data(), m_bytes.size(), offset);
        m_isEnd = count < m_bytes.size();
        m_bytes.resize(count);
        m_offset = offset;
    }
    const auto from = std::span<const std::uint8_t>(m_bytes).subspan(static_cast<std::size_t>(offset - m_offset));
    return from.first(std::min(size, from.size()));
}

}  // namespace tavi
