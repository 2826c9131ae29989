#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "files/FileError.h"

namespace tavi {

/// What of the packets of a CAF file is meant to be heard: frames of them, after priming, and before a remainder.
struct CafPacketTable {
    std::int64_t packets = 0;
    std::int64_t frames = 0;
    std::int64_t primingFrames = 0;
    std::int64_t remainderFrames = 0;
};

/// The bytes of a CAF file before its packets, which all have the same size: the chunks in which another file describes
/// the same kind of sound, with names and remarks as long as they are small, the packet table, and the header of so
/// many bytes of packets. Borrows the descriptor of the other file; fails when that cannot be read.
FileResult<std::vector<std::uint8_t>> cafHeaderLike(int other, const std::optional<CafPacketTable>& table,
                                                    std::int64_t dataBytes);

}  // namespace tavi
