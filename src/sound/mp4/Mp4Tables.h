#pragma once

#include <cstdint>
#include <vector>

#include "files/PositionedIo.h"
#include "sound/mp4/Mp4Fragments.h"

namespace tavi {

/// How much the fragments of a file hold, and how long its sample tables are.
struct Mp4Totals {
    std::uint64_t samples = 0;
    /// In units of the media time scale.
    std::uint64_t duration = 0;
    /// Entries of the time-to-sample, sample-to-chunk and chunk-offset tables.
    std::uint64_t timeRuns = 0;
    std::uint64_t chunkRuns = 0;
    std::uint64_t chunks = 0;
    /// Where the last whole fragment ends.
    std::int64_t end = 0;

    static FileResult<Mp4Totals> of(const Mp4Fragments& fragments);

    /// Bytes of the four tables with their headers.
    std::uint64_t tableBytes() const {
        return 16 + 8 * timeRuns + 16 + 12 * chunkRuns + 20 + 4 * samples + 16 + 8 * chunks;
    }
};

/// Appends to a file through a buffer. The first error stays and ends the writing.
class Mp4Appender {
public:
    Mp4Appender(int fd, std::int64_t offset, const PwriteFunction& pwrite);

    void u32(std::uint64_t value) { number(value, 4); }
    void u64(std::uint64_t value) { number(value, 8); }
    void bytes(std::span<const std::uint8_t> data);
    void flush();
    /// Where the next byte goes.
    std::int64_t offset() const { return m_offset + static_cast<std::int64_t>(m_buffer.size()); }
    int error() const { return m_error; }

private:
    void number(std::uint64_t value, int size);

    int m_fd;
    std::int64_t m_offset;
    const PwriteFunction& m_pwrite;
    std::vector<std::uint8_t> m_buffer;
    int m_error = 0;
};

/// Appends the boxes stts, stsc, stsz and co64 (ISO/IEC 14496-12, 8.6.1.2, 8.7.4, 8.7.3.2, 8.7.5) for the fragments;
/// reads them once for each table instead of holding anything. One run of samples is one chunk.
FileResult<void> appendMp4Tables(Mp4Appender& appender, const Mp4Fragments& fragments, const Mp4Totals& totals);

}  // namespace tavi
