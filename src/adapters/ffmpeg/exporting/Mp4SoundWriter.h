#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "adapters/ffmpeg/exporting/ExportFile.h"
#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

/// What an M4A file says about its sound beside the packets.
struct Mp4SoundDescription {
    std::uint32_t timeScale = 0;
    /// The box "stsd", and "udta" or nothing (ISO/IEC 14496-12, 8.5.2 and 8.10.1).
    std::span<const std::uint8_t> description;
    std::span<const std::uint8_t> userData;
    /// What of the packets' time is meant to be heard; written as an edit list in the media's own time scale, and so
    /// exact.
    std::int64_t start = 0;
    std::int64_t duration = 0;
};

/// Writes an M4A file of one track of sound into an export: packets first, then the movie header that names them. Holds
/// eight bytes a packet. What fails is told by the file.
class Mp4SoundWriter {
public:
    explicit Mp4SoundWriter(ExportFile& file);

    /// A packet whose bytes are appended to the file in the order of these calls, nothing else between them.
    void add(std::uint32_t size, std::uint32_t duration);
    /// How long all packets are, in units of the media time scale.
    std::int64_t duration() const { return m_duration; }
    /// Makes the last packet end there, as the file of an encoder does.
    void endAt(std::int64_t time);
    void finish(const Mp4SoundDescription& description);

private:
    struct Packet {
        std::uint32_t size;
        std::uint32_t duration;
    };

    /// The tables stts, stsc, stsz and co64.
    void writeTables(Mp4Writer& writer) const;

    ExportFile& m_file;
    std::int64_t m_dataOffset = 0;
    std::int64_t m_duration = 0;
    std::vector<Packet> m_packets;
};

/// The box "stsd" of AAC (ISO/IEC 14496-14, 5.6): its AudioSpecificConfig is that of ISO/IEC 14496-3, 1.6.2.1.
std::vector<std::uint8_t> mp4AacDescription(std::span<const std::uint8_t> audioSpecificConfig, std::uint32_t channels,
                                            std::uint32_t sampleRate);

}  // namespace tavi
