#pragma once

#include <vector>

#include "adapters/ffmpeg/exporting/PacketExport.h"
#include "sound/mp4/Mp4Packet.h"

namespace tavi {

/// Packets of AAC that a decoder hears before the first that is played: each overlaps with the one before. Where the
/// heard part begins in the last packet of an M4A file, FFmpeg's demuxer plays nothing. So one packet always follows
/// the first that is heard, though it may be behind the end.
inline constexpr int kAacPreroll = 2;

/// What an M4A file says of its sound. The boxes are "stsd", and "udta" or nothing.
struct M4aSound {
    std::uint32_t timeScale = 0;
    std::span<const std::uint8_t> description;
    std::span<const std::uint8_t> userData;
    /// What is heard, in the time scale, counted from the first packet.
    std::int64_t start = 0;
    std::int64_t end = 0;
};

/// An M4A file in the making: its packets are appended to the export's file in the order in which they are added here.
class M4aPackets {
public:
    /// Writes what stands before the packets.
    explicit M4aPackets(const ExportJob& job);

    void add(std::uint32_t size, std::uint32_t duration);
    /// How long all packets are.
    std::int64_t duration() const { return m_duration; }
    /// Makes the last packet end with what is heard, as the file of an encoder does, and writes the header.
    Result<bool> finish(const M4aSound& sound);

private:
    const ExportJob& m_job;
    std::size_t m_offset = 0;
    std::vector<Mp4Sample> m_samples;
    std::int64_t m_duration = 0;
    std::uint64_t m_bytes = 0;
};

}  // namespace tavi
