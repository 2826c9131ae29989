#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "adapters/ffmpeg/Mp4Boxes.h"

namespace tavi {

/// One packet of a track, called sample in ISO/IEC 14496-12.
struct Mp4Packet {
    std::int64_t offset = 0;
    std::uint32_t size = 0;
    /// In units of the media time scale.
    std::uint32_t duration = 0;
};

/// The one track of sound in an ordinary MP4 or M4A file (ISO/IEC 14496-12, 8.6 and 8.7), as its tables describe it.
/// Holds the movie header, some bytes a packet.
class Mp4Sound {
public:
    /// Nothing for other files, fragmented ones and those without exactly one track of sound, and where the track is
    /// edited in more ways than by leaving out its start or end.
    static std::optional<Mp4Sound> open(int fd);

    std::uint32_t timeScale() const { return m_timeScale; }
    /// Media time at which the sound that is meant to be heard begins.
    std::int64_t start() const { return m_start; }
    /// The box "stsd" as it is, and the coding it names, such as "mp4a".
    std::span<const std::uint8_t> description() const { return m_description; }
    std::uint32_t coding() const { return m_coding; }
    /// Rate and channels, where the description tells for certain what is decoded: for Apple Lossless, and for AAC
    /// without the chance of spectral band replication, which only a decoder finds out.
    std::optional<AudioStreamBasicDescription> format() const;
    /// The box "udta", with names and remarks; empty where there is none.
    std::span<const std::uint8_t> userData() const { return m_userData; }

    /// Packets in their order, from the one at or before a media time; visit gets each with the time at which it
    /// begins, and returns false to end. First it skips back that many packets more, if there are so many. False when
    /// the tables make no sense.
    bool forEachPacket(std::int64_t time, std::uint64_t preroll,
                       const std::function<bool(std::int64_t start, const Mp4Packet& packet)>& visit) const;

private:
    /// Packets of equal duration.
    struct TimeRun {
        std::uint64_t packet;
        std::uint64_t count;
        std::int64_t start;
        std::uint32_t duration;
    };

    Mp4Sound() = default;

    std::optional<std::vector<TimeRun>> timeRuns() const;
    bool readTrack(std::span<const std::uint8_t> track);
    bool readTables(std::span<const std::uint8_t> tables);
    bool readEdits(std::span<const std::uint8_t> track);
    std::uint32_t sizeOf(std::uint64_t packet) const;

    std::vector<std::uint8_t> m_movie;
    std::uint32_t m_timeScale = 0;
    std::int64_t m_start = 0;
    std::uint32_t m_coding = 0;
    std::span<const std::uint8_t> m_description;
    std::span<const std::uint8_t> m_userData;
    /// Bodies of tables, behind their counts.
    std::span<const std::uint8_t> m_times;
    std::span<const std::uint8_t> m_chunkRuns;
    std::span<const std::uint8_t> m_sizes;
    std::span<const std::uint8_t> m_chunks;
    /// 0 where packets vary.
    std::uint32_t m_packetSize = 0;
    std::uint64_t m_packets = 0;
    std::size_t m_chunkBytes = 4;
};

}  // namespace tavi
