#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

#include "sound/io/FileWindow.h"

namespace tavi {

/// One frame of an ADTS stream (ISO/IEC 13818-7, 6.2).
struct AdtsFrame {
    /// Hertz of the core coder; sound with spectral band replication has twice as many samples.
    int rate = 0;
    /// Blocks of 1024 samples.
    int blocks = 0;
    std::uint32_t bytes = 0;
};

/// Reads the header of a frame; nothing when it is none. Needs kAdtsHeaderBytes.
std::optional<AdtsFrame> readAdtsFrame(const std::uint8_t* bytes);
inline constexpr std::size_t kAdtsHeaderBytes = 7;

/// Finds the frames of a stream in order. Bytes between frames are skipped: after them a header counts only when
/// another one follows at the end of its frame. A frame that is cut off by the end of the file does not count. A
/// megabyte without a frame is the end of the sound, whatever the file goes on with: zeros of a disk that lost power,
/// or another file altogether. Borrows the descriptor.
class AdtsScanner {
public:
    /// Frames of another rate do not count. bytes are read at once.
    AdtsScanner(int fd, int rate, std::size_t bytes) : m_file(fd, bytes), m_rate(rate) {}

    struct Found {
        AdtsFrame frame;
        std::int64_t offset = 0;
        /// With the header; valid until the next frame is looked for.
        std::span<const std::uint8_t> bytes;
    };
    /// The next frame; nothing at the end.
    std::optional<Found> next();
    /// Goes to where a frame begins.
    void seek(std::int64_t offset) { m_offset = offset; }

private:
    FileWindow m_file;
    int m_rate;
    std::int64_t m_offset = 0;
};

/// How long an ADTS stream is, found by reading through its frames: the stream itself does not say.
class AdtsStream {
public:
    /// Nothing for a file that does not start with a frame, for one whose only frame may be chance, and as soon as the
    /// stop is asked for.
    static std::optional<AdtsStream> read(int fd, const std::stop_token& stop = {});

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

/// Hands out the frames of a stream one after the other, from any place. Borrows the descriptor. One thread at a time.
class AdtsPacketReader {
public:
    /// Nothing for what is no ADTS stream, and where the stop is asked for meanwhile.
    static std::optional<AdtsPacketReader> open(int fd, const std::stop_token& stop = {});

    const AdtsStream& stream() const { return m_stream; }
    struct Packet {
        /// Where it begins, and how long it is, in blocks of 1024 samples of the core coder.
        std::int64_t start = 0;
        int blocks = 0;
        /// Valid until the next packet is read.
        std::span<const std::uint8_t> bytes;
    };
    /// The next packet; nothing at the end, and when the file cannot be read any more.
    std::optional<Packet> next();
    /// Goes to the packet in which a block is.
    void seek(std::int64_t block);

private:
    AdtsPacketReader(int fd, AdtsStream stream);

    AdtsStream m_stream;
    AdtsScanner m_scanner;
    std::int64_t m_block = 0;
};

}  // namespace tavi
