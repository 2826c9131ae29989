#include "sound/caf/CafHeader.h"

#include <algorithm>
#include <bit>

#include "files/PositionedIo.h"
#include "platform/AudioTypes.h"
#include "sound/io/Bytes.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

/// More chunks than any file has.
constexpr int kMaximumChunks = 1024;
constexpr std::int64_t kChunkHeaderBytes = 12;
/// The edit count, which comes before the packets in a chunk "data".
constexpr std::int64_t kEditCountBytes = 4;

/// Frames in all packets of the file, without priming; -1 where packets vary.
std::int64_t framesThere(const CafHeader& header) {
    constexpr std::uint32_t kMostPacketFrames = 1 << 20;
    constexpr std::int64_t kMostPackets = std::int64_t{1} << 40;
    if (header.packetBytes == 0 || header.packetFrames == 0 || header.packetFrames > kMostPacketFrames) {
        return -1;
    }
    const std::int64_t packets = std::min(header.dataBytes / header.packetBytes, kMostPackets);
    return std::max<std::int64_t>(0, packets * header.packetFrames - header.primingFrames);
}

}  // namespace

bool forEachCafChunk(int fd, FileWindow& window, const std::function<bool(const CafChunk&)>& visit) {
    const std::int64_t size = regularFileSize(fd);
    if (ByteReader(window.at(0, 4)).code() != fourCharacterCode("caff")) {
        return false;
    }
    std::int64_t offset = 8;
    for (int chunks = 0; chunks < kMaximumChunks; ++chunks) {
        ByteReader reader(window.at(offset, kChunkHeaderBytes));
        CafChunk chunk;
        chunk.type = reader.code();
        const auto length = static_cast<std::int64_t>(reader.u64());
        chunk.offset = offset;
        chunk.body = offset + kChunkHeaderBytes;
        if (!reader.ok() || chunk.body > size) {
            break;
        }
        chunk.isOpen = length < 0 || length > size - chunk.body;
        chunk.end = chunk.isOpen ? size : chunk.body + length;
        if (!visit(chunk) || chunk.isOpen) {
            break;
        }
        offset = chunk.end;
    }
    return true;
}

std::optional<CafHeader> readCafHeader(int fd) {
    FileWindow window(fd);
    CafHeader header;
    std::int64_t validFrames = -1;
    bool hasData = false;
    const bool isCaf = forEachCafChunk(fd, window, [&](const CafChunk& chunk) {
        constexpr std::size_t kWanted = 32;
        ByteReader body(window.at(chunk.body, kWanted));
        if (chunk.type == fourCharacterCode("desc")) {
            header.sampleRate = std::bit_cast<double>(body.u64());
            header.formatID = body.u32();
            header.formatFlags = body.u32();
            header.packetBytes = body.u32();
            header.packetFrames = body.u32();
            header.channels = body.u32();
            return body.ok();
        }
        if (chunk.type == fourCharacterCode("pakt")) {
            body.skip(8);
            validFrames = static_cast<std::int64_t>(body.u64());
            header.primingFrames = std::max<std::int64_t>(0, static_cast<std::int32_t>(body.u32()));
            return body.ok();
        }
        if (chunk.type == fourCharacterCode("data")) {
            header.dataOffset = chunk.body + kEditCountBytes;
            header.dataBytes = std::max<std::int64_t>(0, chunk.end - header.dataOffset);
            hasData = true;
        }
        return true;
    });
    if (!isCaf || !hasData || !isSampleRate(header.sampleRate)) {
        return std::nullopt;
    }
    const std::int64_t there = framesThere(header);
    if (validFrames > 0) {
        header.frames = there >= 0 ? std::min(validFrames, there) : validFrames;
    } else {
        header.frames = there;
    }
    return header;
}

}  // namespace tavi
