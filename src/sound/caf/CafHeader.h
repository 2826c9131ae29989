#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "sound/io/FileWindow.h"

namespace tavi {

/// A chunk of a CAF file: type and length, then the body.
struct CafChunk {
    std::uint32_t type = 0;
    std::int64_t offset = 0;
    std::int64_t body = 0;
    /// Where the body ends, at most the end of the file.
    std::int64_t end = 0;
    /// The length of the chunk is not filled in, or goes beyond the end of the file.
    bool isOpen = false;
};

/// Visits the chunks in order, until visit returns false or a chunk is open. Returns false when it is no CAF file.
bool forEachCafChunk(int fd, FileWindow& window, const std::function<bool(const CafChunk&)>& visit);

/// What a CAF file (Apple Core Audio Format 1.0) says about itself.
struct CafHeader {
    double sampleRate = 0;
    std::uint32_t formatID = 0;
    std::uint32_t formatFlags = 0;
    /// 0 where packets vary.
    std::uint32_t packetBytes = 0;
    std::uint32_t packetFrames = 0;
    std::uint32_t channels = 0;
    std::int64_t dataOffset = 0;
    /// Bytes of packets that the file holds.
    std::int64_t dataBytes = 0;
    std::int64_t primingFrames = 0;
    /// Frames that are meant to be heard; -1 where the file does not tell.
    std::int64_t frames = -1;
};

/// Reads the header; nothing for files of another type, and for headers that make no sense.
std::optional<CafHeader> readCafHeader(int fd);

}  // namespace tavi
