#pragma once

#include <cstdint>
#include <span>

namespace tavi {

/// One packet of a track, called sample in ISO/IEC 14496-12.
struct Mp4Packet {
    std::int64_t offset = 0;
    std::uint32_t size = 0;
    /// In units of the media time scale.
    std::uint32_t duration = 0;
};

/// A packet whose place follows from those before it.
struct Mp4Sample {
    std::uint32_t size = 0;
    std::uint32_t duration = 0;
};

/// Packets that lie one after the other in the file.
struct Mp4Run {
    std::int64_t offset = 0;
    std::span<const Mp4Sample> samples;
};

}  // namespace tavi
