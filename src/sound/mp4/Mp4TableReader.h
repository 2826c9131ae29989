#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "sound/mp4/Mp4Boxes.h"
#include "sound/mp4/Mp4Packet.h"

namespace tavi {

/// Big-endian numbers in a file, read through a window. Borrows the descriptor.
class Mp4Numbers {
public:
    Mp4Numbers() = default;
    /// count numbers of 4 or 8 bytes.
    Mp4Numbers(int fd, std::int64_t offset, std::uint64_t count, std::size_t bytes)
        : m_file(fd, kWindowBytes), m_offset(offset), m_count(count), m_bytes(bytes) {}

    std::uint64_t count() const { return m_count; }
    /// Nothing after the last one, and when the file cannot be read any more.
    std::optional<std::uint64_t> at(std::uint64_t index) const;

private:
    static constexpr std::size_t kWindowBytes = std::size_t{16} * 1024;

    mutable FileWindow m_file;
    std::int64_t m_offset = 0;
    std::uint64_t m_count = 0;
    std::size_t m_bytes = 4;
};

/// Reads the tables that say when the packets of a track begin and where they lie (ISO/IEC 14496-12, 8.6.1.2, 8.7.3 to
/// 8.7.5). Sizes and offsets are read when they are asked for, so that memory does not grow with the sound. One thread
/// at a time.
class Mp4TableReader {
public:
    Mp4TableReader() = default;
    /// Takes the boxes in a box "stbl"; nothing when some are missing or make no sense. Borrows the descriptor.
    static std::optional<Mp4TableReader> open(int fd, const std::vector<Mp4Box>& tables);

    /// How many packets all tables cover.
    std::uint64_t packets() const { return m_packets; }
    /// Whether the tables cover equally many packets, and no packet has a duration of 0.
    bool isWhole() const { return m_isWhole; }
    /// The packet at or before a media time.
    std::uint64_t packetAt(std::int64_t time) const;

    /// A place between two packets.
    struct Place {
        /// The next packet.
        std::uint64_t packet = 0;
        /// Its offset in the file, unless it is the first of a chunk.
        std::int64_t offset = 0;
        std::size_t timeRun = 0;
        std::size_t chunkRun = 0;
    };
    /// The place before a packet; nothing when the file cannot be read.
    std::optional<Place> placeBefore(std::uint64_t packet) const;
    /// Reads the next packet, and the media time at which it begins, and moves the place on. False at the end, and when
    /// the file cannot be read.
    bool next(Place& place, std::int64_t& start, Mp4Packet& packet) const;

private:
    /// Packets of equal duration.
    struct TimeRun {
        std::uint64_t packet;
        std::int64_t start;
        std::uint32_t count;
        std::uint32_t duration;
    };
    /// Chunks of equally many packets.
    struct ChunkRun {
        std::uint64_t packet;
        /// Counted from 0.
        std::uint32_t chunk;
        std::uint32_t perChunk;
    };

    bool readTimes(int fd, const Mp4Box& box);
    bool readChunks(int fd, const Mp4Box& box);
    bool readSizes(int fd, const Mp4Box& box);
    std::optional<std::uint64_t> sizeOf(std::uint64_t packet) const;

    std::vector<TimeRun> m_timeRuns;
    std::vector<ChunkRun> m_chunkRuns;
    Mp4Numbers m_sizes;
    Mp4Numbers m_chunks;
    /// 0 where packets vary.
    std::uint32_t m_packetSize = 0;
    std::uint64_t m_timedPackets = 0;
    std::uint64_t m_chunkedPackets = 0;
    std::uint64_t m_packets = 0;
    bool m_isWhole = true;
};

}  // namespace tavi
