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
/// The header of a packet holds the sample before it rounded to a multiple of 128. A decoder that has decoded the
/// packets before it goes on with the exact sample; one that begins here would be off by up to 127 in all that follows.
/// So codes of the first packet are changed, as little as possible, until its last sample is the exact one. From the
/// second packet on the bytes and the decoded samples are those of the whole file.
class Ima4Cut {
public:
    /// Borrows the descriptor of the CAF file. isCancelled is asked during long searches, and ends them.
    Ima4Cut(int fd, const CafHeader& header, std::function<bool()> isCancelled);

    /// The packets, of all channels, that replace as many of the file from that packet on: mostly one, more where the
    /// sound is so loud that one is not enough. Fails when the file cannot be read.
    FileResult<std::vector<std::uint8_t>> firstPackets(std::int64_t packet);

private:
    /// The changed packets of a channel, from that one on; nothing when the file cannot be read.
    std::optional<std::vector<std::uint8_t>> correctedPackets(std::size_t channel, std::int64_t packet);
    /// The state in which a decoder of the whole file comes to a packet; nothing when the file cannot be read.
    std::optional<Ima4State> stateBefore(std::size_t channel, std::int64_t packet);
    /// The same from the packets just before it, if they are enough. Where an encoder rounds down, each header limits
    /// the exact sample to 128 values, and the differences between the samples are known; so after some packets one
    /// value is left.
    std::optional<Ima4State> stateFrom(std::size_t channel, std::int64_t from, std::int64_t packet);
    /// One channel of a packet; null where no more can be read.
    const std::uint8_t* packetAt(std::size_t channel, std::int64_t packet);

    int m_fd;
    CafHeader m_header;
    std::function<bool()> m_isCancelled;
    std::vector<std::uint8_t> m_bytes;
    std::int64_t m_firstBuffered = 0;
    std::int64_t m_buffered = 0;
};

}  // namespace tavi
