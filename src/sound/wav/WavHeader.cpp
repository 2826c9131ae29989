#include "sound/wav/WavHeader.h"

#include <algorithm>

#include "files/PositionedIo.h"
#include "platform/AudioTypes.h"
#include "sound/io/Bytes.h"
#include "sound/io/FileWindow.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

/// More chunks than any file has before its sound.
constexpr int kMaximumChunks = 1024;
/// A chunk's header, and what is wanted of its body.
constexpr std::size_t kChunkBytes = 48;
/// In place of a length that is not filled in, or that the chunk "ds64" holds.
constexpr std::uint32_t kNoLength = 0xffffffff;

/// Reads the body of a chunk "fmt "; false when it is not one of linear PCM.
bool readFormat(ByteReader& body, std::uint64_t length, WavHeader& header) {
    constexpr std::uint32_t kPcm = 1;
    constexpr std::uint32_t kFloat = 3;
    constexpr std::uint32_t kExtensible = 0xfffe;
    std::uint32_t tag = body.u16();
    header.channels = body.u16();
    header.sampleRate = body.u32();
    body.skip(4);
    header.frameBytes = body.u16();
    header.bitsPerSample = body.u16();
    if (!body.ok() || length < 16) {
        return false;
    }
    if (tag == kExtensible && length >= 40 && body.rest().size() >= 24) {
        body.skip(4);
        header.channelMask = body.u32();
        tag = body.u32();
    }
    header.isFloat = tag == kFloat;
    return tag == kPcm || tag == kFloat;
}

}  // namespace

std::optional<WavHeader> readWavHeader(int fd) {
    const std::int64_t size = regularFileSize(fd);
    FileWindow window(fd);
    ByteReader start(window.at(0, 12), std::endian::little);
    const std::uint32_t type = start.code();
    const bool isLong = type == fourCharacterCode("RF64");
    const bool isFileOpen = start.u32() == kNoLength && !isLong;
    if ((type != fourCharacterCode("RIFF") && !isLong) || start.code() != fourCharacterCode("WAVE")) {
        return std::nullopt;
    }
    WavHeader header;
    bool isLinear = false;
    std::uint64_t longDataBytes = 0;
    std::int64_t offset = 12;
    for (int chunks = 0; offset + 8 <= size && chunks < kMaximumChunks; ++chunks) {
        ByteReader chunk(window.at(offset, kChunkBytes), std::endian::little);
        const std::uint32_t name = chunk.code();
        std::uint64_t length = chunk.u32();
        if (name == fourCharacterCode("ds64")) {
            chunk.skip(8);
            longDataBytes = chunk.u64();
        } else if (name == fourCharacterCode("fmt ")) {
            isLinear = readFormat(chunk, length, header);
            header.formatOffset = offset + 8;
            header.formatBytes = static_cast<std::uint32_t>(length);
        } else if (name == fourCharacterCode("data")) {
            const auto there = static_cast<std::uint64_t>(size - offset - 8);
            const bool isOpen = length == kNoLength && longDataBytes == 0;
            const std::uint64_t told = length == kNoLength ? longDataBytes : length;
            header.isWhole = !isOpen && !isFileOpen && told <= there;
            length = isOpen ? there : std::min(told, there);
            header.dataOffset = offset + 8;
            header.frames = header.frameBytes > 0 ? static_cast<std::int64_t>(length / header.frameBytes) : 0;
            return isLinear && isSampleRate(header.sampleRate) && header.frameBytes > 0 ? std::optional(header)
                                                                                        : std::nullopt;
        }
        offset += 8 + static_cast<std::int64_t>(length + (length & 1));
    }
    return std::nullopt;
}

}  // namespace tavi
