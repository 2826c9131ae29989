#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "files/FileError.h"
#include "sound/mp4/Mp4Packet.h"

namespace tavi {

/// What an MP4 file says about its one track of sound beside the packets.
struct Mp4MovieDescription {
    /// Of the media, and of the movie too, so that every length is exact.
    std::uint32_t timeScale = 0;
    /// The box "stsd", and "udta" or nothing (ISO/IEC 14496-12, 8.5.2 and 8.10.1).
    std::span<const std::uint8_t> description;
    std::span<const std::uint8_t> userData;
    /// From where on in the packets' time sound is meant to be heard, and for how long.
    std::int64_t start = 0;
    std::int64_t duration = 0;
};

/// Hands out the packets of a track in their order, as often as it is called. Each run becomes a chunk.
using Mp4Runs = std::function<FileResult<void>(const std::function<void(const Mp4Run&)>& visit)>;
/// Takes bytes that follow each other in a file.
using Mp4Sink = std::function<void(std::span<const std::uint8_t>)>;

/// The bytes of an M4A file before so many bytes of packets: the boxes "ftyp" and the header of "mdat".
std::vector<std::uint8_t> mp4FileHead(std::uint64_t dataBytes);
/// Packets that follow each other without gaps from an offset on, in chunks of 32. The samples are borrowed.
Mp4Runs mp4RunsOf(std::span<const Mp4Sample> samples, std::int64_t offset);

/// How long the tables of a track's packets are, and what they add up to.
struct Mp4Totals {
    static FileResult<Mp4Totals> of(const Mp4Runs& runs);

    std::uint64_t samples = 0;
    std::uint64_t duration = 0;
    /// Entries of the tables "stts", "stsc" and "co64".
    std::uint64_t timeRuns = 0;
    std::uint64_t chunkRuns = 0;
    std::uint64_t chunks = 0;
};

/// Writes the header of an MP4 file (the box "moov", 8.2 to 8.7), the only place that does. The packets are asked for
/// once for each of the four tables; nothing is held. Fails when they cannot be handed out, or are too many.
FileResult<void> writeMp4Movie(const Mp4MovieDescription& sound, const Mp4Totals& totals, const Mp4Runs& runs,
                               const Mp4Sink& sink);

}  // namespace tavi
