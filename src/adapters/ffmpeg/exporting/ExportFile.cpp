#include "adapters/ffmpeg/exporting/ExportFile.h"

#include <fcntl.h>
#include <sys/uio.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// What one read covers, gaps between the pieces included; little enough to stay in the processor's cache.
constexpr std::int64_t kWindowBytes = 512 * 1024;
/// The disk begins to write when this much has gathered, so that little is left to wait for at the end.
constexpr std::int64_t kWriteBehindBytes = 8 * 1024 * 1024;
/// Pieces of one gathering write, within the system's limit.
constexpr std::size_t kMaximumPieces = 512;

QString reason(int error) {
    if (error == EEXIST) {
        return QStringLiteral("There is a file of that name already.");
    }
    if (error == ENOSPC || error == EDQUOT) {
        return QStringLiteral("The disk is full.");
    }
    return QStringLiteral("The file could not be written: ") +
           QString::fromStdString(std::generic_category().message(error));
}

}  // namespace

Result<std::unique_ptr<ExportFile>> ExportFile::create(const std::filesystem::path& path) {
    if (path.empty() || path.native().find('\0') != std::string::npos) {
        return failure(QStringLiteral("There is no name for the new file."));
    }
    DurableFile file = DurableFile::create(path, ".m4a");
    if (!file.isValid()) {
        return failure(reason(errno));
    }
    return std::unique_ptr<ExportFile>(new ExportFile(std::move(file)));
}

void ExportFile::fail(const QString& text) {
    if (m_failure.isEmpty()) {
        m_failure = text;
    }
}

void ExportFile::append(std::span<const std::uint8_t> bytes) {
    flush();
    overwrite(bytes, m_size);
    m_size += static_cast<std::int64_t>(bytes.size());
}

void ExportFile::overwrite(std::span<const std::uint8_t> bytes, std::int64_t offset) {
    if (m_failure.isEmpty()) {
        const WriteResult result = writeFully(::pwrite, m_file.fd(), bytes.data(), bytes.size(), offset);
        if (result.error != 0) {
            fail(reason(result.error));
        }
    }
}

void ExportFile::setControl(ExportControl& control, std::int64_t expectedBytes) {
    m_control = &control;
    m_expected = expectedBytes;
}

void ExportFile::advance(std::int64_t bytes) {
    m_size += bytes;
    m_copied += bytes;
    if (m_size - m_handedOver >= kWriteBehindBytes) {
        // Only a hint: what it does not do, or cannot tell, the closing synchronization does and tells.
        static_cast<void>(::sync_file_range(m_file.fd(), m_handedOver, m_size - m_handedOver, SYNC_FILE_RANGE_WRITE));
        m_handedOver = m_size;
    }
    if (m_control != nullptr) {
        m_control->setProgress(static_cast<double>(m_copied) /
                               static_cast<double>(std::max({m_expected, m_copied, std::int64_t{1}})));
        if (m_control->isCancelled()) {
            fail(QStringLiteral("The export was cancelled."));
        }
    }
}

void ExportFile::copy(int source, std::int64_t offset, std::int64_t size) {
    if (source != m_source) {
        flush();
        m_source = source;
    }
    if (!m_pieces.empty() && m_pieces.back().offset + m_pieces.back().size == offset) {
        m_pieces.back().size += size;
    } else {
        const bool isNear = !m_pieces.empty() && offset >= m_pieces.back().offset + m_pieces.back().size &&
                            offset + size - m_pieces.front().offset <= kWindowBytes;
        if (!isNear || m_pieces.size() >= kMaximumPieces) {
            flush();
        }
        m_pieces.push_back({offset, size});
    }
    m_gathered += size;
    if (m_pieces.back().offset + m_pieces.back().size - m_pieces.front().offset > kWindowBytes) {
        flush();
    }
}

void ExportFile::flush() {
    if (m_failure.isEmpty() && m_pieces.size() == 1) {
        copyLong(m_pieces.front());
    } else if (m_failure.isEmpty() && !m_pieces.empty()) {
        const Piece last = m_pieces.back();
        if (last.offset + last.size - m_pieces.front().offset > kWindowBytes) {
            m_pieces.pop_back();
            writeGathered();
            copyLong(last);
        } else {
            writeGathered();
        }
    }
    m_pieces.clear();
    m_gathered = 0;
}

void ExportFile::writeGathered() {
    const std::int64_t start = m_pieces.front().offset;
    const auto span = static_cast<std::size_t>(m_pieces.back().offset + m_pieces.back().size - start);
    m_window.resize(std::max(m_window.size(), span));
    if (readFully(m_source, m_window.data(), span, start) < span) {
        return fail(QStringLiteral("The sound file became shorter while it was read."));
    }
    std::vector<iovec> vectors;
    vectors.reserve(m_pieces.size());
    std::size_t total = 0;
    for (const Piece& piece : m_pieces) {
        vectors.push_back({m_window.data() + (piece.offset - start), static_cast<std::size_t>(piece.size)});
        total += static_cast<std::size_t>(piece.size);
    }
    const ssize_t written = ::pwritev(m_file.fd(), vectors.data(), static_cast<int>(vectors.size()), m_size);
    // What was cut short is written again piece by piece, to get its error.
    if (written < 0 || static_cast<std::size_t>(written) < total) {
        std::int64_t offset = m_size;
        for (const iovec& vector : vectors) {
            overwrite({static_cast<const std::uint8_t*>(vector.iov_base), vector.iov_len}, offset);
            offset += static_cast<std::int64_t>(vector.iov_len);
        }
    }
    advance(static_cast<std::int64_t>(total));
}

void ExportFile::copyLong(const Piece& piece) {
    m_window.resize(std::max(m_window.size(), static_cast<std::size_t>(kWindowBytes)));
    for (std::int64_t done = 0; done < piece.size && m_failure.isEmpty();) {
        const auto count = static_cast<std::size_t>(std::min(kWindowBytes, piece.size - done));
        if (readFully(m_source, m_window.data(), count, piece.offset + done) < count) {
            return fail(QStringLiteral("The sound file became shorter while it was read."));
        }
        overwrite({m_window.data(), count}, m_size);
        advance(static_cast<std::int64_t>(count));
        done += static_cast<std::int64_t>(count);
    }
}

Result<void> ExportFile::result() const {
    return m_failure.isEmpty() ? Result<void>() : failure(m_failure);
}

Result<void> ExportFile::publish(const ExportControl& control) {
    flush();
    const int lost = m_failure.isEmpty() ? m_file.synchronize() : 0;
    if (lost != 0) {
        fail(reason(lost));
    } else if (control.isCancelled()) {
        fail(QStringLiteral("The export was cancelled."));
    }
    const int unnamed = m_failure.isEmpty() ? m_file.publish() : 0;
    if (unnamed != 0) {
        fail(reason(unnamed));
    }
    return result();
}

}  // namespace tavi
