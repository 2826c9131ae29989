#include "sound/SoundHeaders.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include "files/PositionedIo.h"
#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

namespace {

/// The start of a chunk; what the file does not hold is missing.
class ChunkBytes {
public:
    ChunkBytes(int fd, std::int64_t offset) : m_size(readFully(fd, m_bytes.data(), m_bytes.size(), offset)) {}

    std::span<const std::uint8_t> all() const { return std::span(m_bytes).first(m_size); }
    bool has(std::size_t count) const { return m_size >= count; }
    bool is(const char* name, std::size_t at = 0) const {
        return has(at + 4) && std::memcmp(m_bytes.data() + at, name, 4) == 0;
    }
    std::uint64_t littleEndian(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t i = size; i > 0; --i) {
            value = value << 8 | m_bytes[at + i - 1];
        }
        return value;
    }
    std::uint32_t u16(std::size_t at) const { return static_cast<std::uint32_t>(littleEndian(at, 2)); }
    std::uint32_t u32(std::size_t at) const { return static_cast<std::uint32_t>(littleEndian(at, 4)); }

private:
    std::array<std::uint8_t, 48> m_bytes{};
    std::size_t m_size;
};

/// Reads a chunk "fmt "; false when it is not one of linear PCM.
bool readWavFormat(const ChunkBytes& chunk, std::uint64_t length, WavHeader& header) {
    constexpr std::uint32_t kPcm = 1;
    constexpr std::uint32_t kFloat = 3;
    constexpr std::uint32_t kExtensible = 0xfffe;
    if (!chunk.has(24) || length < 16) {
        return false;
    }
    std::uint32_t tag = chunk.u16(8);
    header.channels = chunk.u16(10);
    header.sampleRate = chunk.u32(12);
    header.frameBytes = chunk.u16(20);
    header.bitsPerSample = chunk.u16(22);
    if (tag == kExtensible && length >= 40 && chunk.has(48)) {
        header.channelMask = chunk.u32(28);
        tag = chunk.u32(32);
    }
    header.isFloat = tag == kFloat;
    return tag == kPcm || tag == kFloat;
}

}  // namespace

std::optional<WavHeader> readWavHeader(int fd) {
    const std::int64_t size = regularFileSize(fd);
    const ChunkBytes start(fd, 0);
    if (!(start.is("RIFF") || start.is("RF64")) || !start.is("WAVE", 8)) {
        return std::nullopt;
    }
    WavHeader header;
    bool isLinear = false;
    std::uint64_t longDataBytes = 0;
    for (std::int64_t offset = 12; offset + 8 <= size;) {
        const ChunkBytes chunk(fd, offset);
        if (!chunk.has(8)) {
            break;
        }
        std::uint64_t length = chunk.u32(4);
        if (chunk.is("ds64") && chunk.has(24)) {
            longDataBytes = chunk.littleEndian(16, 8);
        } else if (chunk.is("fmt ")) {
            isLinear = readWavFormat(chunk, length, header);
            header.formatOffset = offset + 8;
            header.formatBytes = static_cast<std::uint32_t>(length);
        } else if (chunk.is("data")) {
            const auto there = static_cast<std::uint64_t>(size - offset - 8);
            const bool isOpen = length == 0xffffffff && longDataBytes == 0;
            length = isOpen ? there : std::min(length == 0xffffffff ? longDataBytes : length, there);
            header.dataOffset = offset + 8;
            header.frames = header.frameBytes > 0 ? static_cast<std::int64_t>(length / header.frameBytes) : 0;
            return isLinear && header.sampleRate > 0 && header.frameBytes > 0 ? std::optional(header) : std::nullopt;
        }
        offset += 8 + static_cast<std::int64_t>(length + (length & 1));
    }
    return std::nullopt;
}

std::optional<CafHeader> readCafHeader(int fd) {
    const std::int64_t size = regularFileSize(fd);
    if (!ChunkBytes(fd, 0).is("caff")) {
        return std::nullopt;
    }
    CafHeader header;
    std::int64_t validFrames = -1;
    bool hasData = false;
    for (std::int64_t offset = 8; offset + 12 <= size;) {
        const ChunkBytes chunk(fd, offset);
        Mp4Reader reader(chunk.all());
        const std::uint32_t type = reader.u32();
        const auto length = static_cast<std::int64_t>(reader.u64());
        const std::int64_t body = offset + 12;
        if (type == mp4Type("desc")) {
            const std::uint64_t bits = reader.u64();
            std::memcpy(&header.sampleRate, &bits, sizeof bits);
            header.formatID = reader.u32();
            header.formatFlags = reader.u32();
            header.packetBytes = reader.u32();
            header.packetFrames = reader.u32();
            header.channels = reader.u32();
        } else if (type == mp4Type("pakt")) {
            reader.skip(8);
            validFrames = static_cast<std::int64_t>(reader.u64());
            header.primingFrames = std::max<std::int64_t>(0, static_cast<std::int32_t>(reader.u32()));
        } else if (type == mp4Type("data")) {
            const std::int64_t there = size - body;
            header.dataOffset = body + 4;
            header.dataBytes = std::max<std::int64_t>(0, (length == -1 ? there : std::min(length, there)) - 4);
            hasData = true;
        }
        if (!reader.ok() || length < 0 || length > size - body) {
            break;
        }
        offset = body + length;
    }
    if (!(header.sampleRate >= 1 && header.sampleRate <= 1e6) || !hasData) {
        return std::nullopt;
    }
    constexpr std::uint32_t kMostPacketFrames = 1 << 20;
    if (header.packetBytes > 0 && header.packetFrames > 0 && header.packetFrames <= kMostPacketFrames) {
        const std::int64_t frames = header.dataBytes / header.packetBytes * header.packetFrames;
        const std::int64_t heard = std::max<std::int64_t>(0, frames - header.primingFrames);
        header.frames = validFrames > 0 ? std::min(validFrames, heard) : heard;
    } else if (validFrames > 0) {
        header.frames = validFrames;
    }
    return header;
}

}  // namespace tavi
