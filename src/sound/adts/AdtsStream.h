#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace tavi {

/// One frame of an ADTS stream (ISO/IEC 13818-7, 6.2).
struct AdtsFrame {
    /// Hertz of the core coder; sound with spectral band replication has twice as many samples.
    int rate = 0;
    /// Blocks of 1024 samples.
    int blocks = 0;
    std::uint32_t bytes = 0;
};

/// The frame whose header stands there; nothing where none does. Needs kAdtsHeaderBytes.
std::optional<AdtsFrame> readAdtsFrame(const std::uint8_t* bytes);
inline constexpr std::size_t kAdtsHeaderBytes = 7;

/// Every frame of an ADTS stream, found by reading through it: the stream itself says nothing about its length. What
/// lies between frames is skipped; a frame that is cut off by the end of the file does not count.
class AdtsStream {
public:
    /// Nothing for a file that does not start with a frame, and for one whose only frame may be chance.
    static std::optional<AdtsStream> read(int fd);

    int rate() const { return m_rate; }
    std::int64_t blocks() const { return m_blocks; }
    std::uint32_t largestFrame() const { return m_largestFrame; }

    /// A place in the stream from which frames can be read one after the other.
    struct Mark {
        std::int64_t offset = 0;
        /// Blocks before it.
        std::int64_t blocks = 0;
    };
    /// The last mark at or before a block.
    Mark markBefore(std::int64_t block) const;

private:
    AdtsStream() = default;

    int m_rate = 0;
    std::int64_t m_blocks = 0;
    std::uint32_t m_largestFrame = 0;
    std::vector<Mark> m_marks;
};

}  // namespace tavi
