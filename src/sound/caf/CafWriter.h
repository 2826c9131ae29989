#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "files/FileError.h"

namespace tavi {

/// Which frames of the packets are meant to be heard: those after the priming and before the remainder.
struct CafPacketTable {
    std::int64_t packets = 0;
    std::int64_t frames = 0;
    std::int64_t primingFrames = 0;
    std::int64_t remainderFrames = 0;
};

/// The header of a CAF file, up to its packets, which all have the same size. The chunks that describe the sound are
/// copied from another file with the same kind of sound, together with names and remarks up to 1 MiB; then come the
/// packet table and the start of the data. Borrows the other file's descriptor; fails when that cannot be read.
FileResult<std::vector<std::uint8_t>> cafHeaderLike(int other, const std::optional<CafPacketTable>& table,
                                                    std::int64_t dataBytes);

}  // namespace tavi
