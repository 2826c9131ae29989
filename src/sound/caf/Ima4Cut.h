#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "files/FileError.h"
#include "sound/caf/CafHeader.h"
#include "sound/caf/Ima4Packet.h"

namespace tavi {

/// Cuts the start off IMA 4:1 ADPCM without encoding it again.
///
/// A packet names the sample before it rounded to a multiple of 128, and a decoder that comes from there carries the
/// exact one. One that begins with the packet would be off by up to 127 in all that follows. So some codes of the first
/// packet are changed, by as little as can be, until its last sample is the exact one: from the second packet on,
/// decoders hear what they hear in the whole file, and the packets are the same bytes.
class Ima4Cut {
public:
    /// Borrows the descriptor of the CAF file. isCancelled ends long searches.
    Ima4Cut(int fd, const CafHeader& header, std::function<bool()> isCancelled);

    /// Packets of all channels that stand in for as many from that packet on. Mostly one; more where the sound leaves
    /// no room for the correction. Fails when the file cannot be read.
    FileResult<std::vector<std::uint8_t>> firstPackets(std::int64_t packet);

private:
    /// A channel's packets from that one on, as far as codes are changed; nothing when the file cannot be read.
    std::optional<std::vector<std::uint8_t>> correctedPackets(std::size_t channel, std::int64_t packet);
    /// What a decoder that has heard everything carries into a packet; nothing when the file cannot be read.
    std::optional<Ima4State> stateBefore(std::size_t channel, std::int64_t packet);
    /// The same from the packets just before it alone, if they tell. An encoder that rounds its samples down says with
    /// each packet in which 128 values the exact sample is; what a stretch of sound adds up to is known exactly, so
    /// soon only one value is left.
    std::optional<Ima4State> stateFrom(std::size_t channel, std::int64_t from, std::int64_t packet);
    /// One channel of a packet, through a buffer; null at the end of what can be read.
    const std::uint8_t* packetAt(std::size_t channel, std::int64_t packet);

    int m_fd;
    CafHeader m_header;
    std::function<bool()> m_isCancelled;
    std::vector<std::uint8_t> m_bytes;
    std::int64_t m_firstBuffered = 0;
    std::int64_t m_buffered = 0;
};

}  // namespace tavi
