#include "adapters/ffmpeg/HeaderDuration.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <vector>

#include "adapters/ffmpeg/Mp4Boxes.h"
#include "adapters/ffmpeg/Mp4Fragments.h"
#include "adapters/ffmpeg/Mp4Tables.h"
#include "adapters/ffmpeg/PositionedIo.h"

namespace tavi {

namespace {

std::vector<std::uint8_t> readBytes(int fd, std::int64_t offset, std::size_t size) {
    std::vector<std::uint8_t> bytes(size);
    bytes.resize(readFully(fd, bytes.data(), size, offset));
    return bytes;
}

std::uint64_t littleEndian(std::span<const std::uint8_t> bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = bytes.size(); i > 0; --i) {
        value = value << 8 | bytes[i - 1];
    }
    return value;
}

std::optional<double> seconds(double units, double scale) {
    return units >= 0 && scale > 0 ? std::optional(units / scale) : std::nullopt;
}

/// The boxes from an offset on that lie within limit, until visit returns false.
void forEachBox(int fd, std::int64_t offset, std::int64_t limit, const std::function<bool(const Mp4Box&)>& visit) {
    while (const auto box = readMp4Box(fd, offset, limit)) {
        if (box->end > limit || !visit(*box)) {
            break;
        }
        offset = box->end;
    }
}

std::optional<Mp4Box> findBox(int fd, std::int64_t offset, std::int64_t limit, std::uint32_t type) {
    std::optional<Mp4Box> found;
    forEachBox(fd, offset, limit, [&](const Mp4Box& box) {
        if (box.type == type) {
            found = box;
        }
        return !found;
    });
    return found;
}

struct Mp4Time {
    std::uint32_t scale = 0;
    std::uint64_t duration = 0;
};

/// Time scale and duration of an mvhd or mdhd box.
Mp4Time readTime(int fd, const std::optional<Mp4Box>& box) {
    Mp4Time time;
    if (box) {
        const auto body = readBytes(fd, box->body, 32);
        Mp4Reader reader(body);
        const bool isLong = reader.u32() >> 24 == 1;
        reader.skip(isLong ? 16 : 8);
        time.scale = reader.u32();
        time.duration = isLong ? reader.u64() : reader.u32();
        time = reader.ok() ? time : Mp4Time{};
    }
    return time;
}

/// Length that an edit list plays, in units of the movie's time scale; nothing when it has none that says so.
std::optional<std::uint64_t> editedLength(int fd, const Mp4Box& list) {
    constexpr std::uint32_t kMaximumEdits = 10000;
    const std::int64_t size = std::min<std::int64_t>(list.end - list.body, 8 + kMaximumEdits * 20);
    const auto body = readBytes(fd, list.body, static_cast<std::size_t>(size));
    Mp4Reader reader(body);
    const bool isLong = reader.u32() >> 24 == 1;
    const std::uint32_t count = reader.u32();
    std::uint64_t length = 0;
    for (std::uint32_t i = 0; i < count && reader.ok(); ++i) {
        const std::uint64_t duration = isLong ? reader.u64() : reader.u32();
        const std::int64_t start =
            isLong ? static_cast<std::int64_t>(reader.u64()) : static_cast<std::int32_t>(reader.u32());
        reader.skip(4);
        length += start >= 0 ? duration : 0;
    }
    return reader.ok() && length > 0 ? std::optional(length) : std::nullopt;
}

std::optional<double> mp4Duration(int fd, std::int64_t size) {
    const auto movie = findBox(fd, 0, size, mp4Type("moov"));
    if (!movie) {
        return std::nullopt;
    }
    const Mp4Time movieTime = readTime(fd, findBox(fd, movie->body, movie->end, mp4Type("mvhd")));
    const bool isFragmented = findBox(fd, movie->body, movie->end, mp4Type("mvex")).has_value();
    std::optional<double> result;
    forEachBox(fd, movie->body, movie->end, [&](const Mp4Box& track) {
        const auto media = findBox(fd, track.body, track.end, mp4Type("mdia"));
        const auto handler = media ? findBox(fd, media->body, media->end, mp4Type("hdlr")) : std::nullopt;
        const auto kind = handler ? readBytes(fd, handler->body + 8, 4) : std::vector<std::uint8_t>{};
        if (track.type != mp4Type("trak") || Mp4Reader(kind).u32() != mp4Type("soun")) {
            return true;
        }
        const Mp4Time mediaTime = readTime(fd, findBox(fd, media->body, media->end, mp4Type("mdhd")));
        const auto edits = findBox(fd, track.body, track.end, mp4Type("edts"));
        const auto list = edits ? findBox(fd, edits->body, edits->end, mp4Type("elst")) : std::nullopt;
        if (isFragmented) {
            const auto fragments = Mp4Fragments::open(fd);
            const auto totals = fragments ? Mp4Totals::of(*fragments) : tl::unexpected(fragments.error());
            const auto body = list ? readBytes(fd, list->body, 16) : std::vector<std::uint8_t>(16);
            const auto start = body.size() == 16 && body[0] == 0
                                   ? Mp4Reader(std::span<const std::uint8_t>(body).subspan(12)).u32()
                                   : 0U;
            result = totals ? seconds(std::max(0.0, static_cast<double>(totals->duration) - start), mediaTime.scale)
                            : std::nullopt;
            return false;
        }
        const auto edited = list ? editedLength(fd, *list) : std::nullopt;
        result = edited ? seconds(static_cast<double>(*edited), movieTime.scale)
                        : seconds(static_cast<double>(mediaTime.duration), mediaTime.scale);
        return false;
    });
    return result;
}

std::optional<double> wavDuration(int fd, std::int64_t size) {
    constexpr std::uint64_t kPcm = 1;
    constexpr std::uint64_t kFloat = 3;
    constexpr std::uint64_t kExtensible = 0xfffe;
    std::uint64_t rate = 0;
    std::uint64_t frameBytes = 0;
    std::uint64_t longDataBytes = 0;
    for (std::int64_t offset = 12; offset + 8 <= size;) {
        const auto header = readBytes(fd, offset, 48);
        const std::span<const std::uint8_t> bytes(header);
        if (bytes.size() < 8) {
            break;
        }
        std::uint64_t length = littleEndian(bytes.subspan(4, 4));
        const auto is = [&](const char* name) { return std::memcmp(bytes.data(), name, 4) == 0; };
        if (is("ds64") && bytes.size() >= 24) {
            longDataBytes = littleEndian(bytes.subspan(16, 8));
        } else if (is("fmt ") && bytes.size() >= 24) {
            const std::uint64_t tag = littleEndian(bytes.subspan(8, 2));
            const bool isLinear = tag == kPcm || tag == kFloat || tag == kExtensible;
            rate = isLinear ? littleEndian(bytes.subspan(12, 4)) : 0;
            frameBytes = littleEndian(bytes.subspan(20, 2));
        } else if (is("data")) {
            const auto there = static_cast<std::uint64_t>(size - offset - 8);
            // A length that was never filled in stands for everything up to the end.
            const bool isOpen = length == 0xffffffff && longDataBytes == 0;
            length = isOpen ? there : std::min(length == 0xffffffff ? longDataBytes : length, there);
            const std::uint64_t frames = frameBytes > 0 ? length / frameBytes : 0;
            return seconds(static_cast<double>(frames), static_cast<double>(rate));
        }
        offset += 8 + static_cast<std::int64_t>(length + (length & 1));
    }
    return std::nullopt;
}

std::optional<double> cafDuration(int fd, std::int64_t size) {
    double rate = 0;
    std::uint32_t packetBytes = 0;
    std::uint32_t packetFrames = 0;
    std::int64_t dataBytes = -1;
    std::int64_t validFrames = -1;
    for (std::int64_t offset = 8; offset + 12 <= size;) {
        const auto header = readBytes(fd, offset, 44);
        Mp4Reader reader(header);
        const std::uint32_t type = reader.u32();
        const auto length = static_cast<std::int64_t>(reader.u64());
        const std::int64_t body = offset + 12;
        if (type == mp4Type("desc")) {
            const std::uint64_t bits = reader.u64();
            std::memcpy(&rate, &bits, sizeof rate);
            reader.skip(8);
            packetBytes = reader.u32();
            packetFrames = reader.u32();
        } else if (type == mp4Type("pakt")) {
            reader.skip(8);
            validFrames = static_cast<std::int64_t>(reader.u64());
        } else if (type == mp4Type("data")) {
            const std::int64_t there = size - body;
            dataBytes = (length == -1 ? there : std::min(length, there)) - 4;
        }
        if (!reader.ok() || length < 0 || length > size - body) {
            break;
        }
        offset = body + length;
    }
    if (!(rate >= 1 && rate <= 1e6) || dataBytes < 0) {
        return std::nullopt;
    }
    if (packetBytes > 0 && packetFrames > 0) {
        const std::int64_t frames = dataBytes / packetBytes * packetFrames;
        return seconds(static_cast<double>(validFrames > 0 ? std::min(validFrames, frames) : frames), rate);
    }
    return validFrames > 0 ? seconds(static_cast<double>(validFrames), rate) : std::nullopt;
}

struct AdtsHeader {
    int rate = 0;
    int blocks = 0;
    std::size_t bytes = 0;
};

std::optional<AdtsHeader> adtsHeader(std::span<const std::uint8_t> data) {
    constexpr std::array<int, 13> kRates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                            22050, 16000, 12000, 11025, 8000,  7350};
    if (data.size() < 7 || data[0] != 0xff || (data[1] & 0xf6) != 0xf0) {
        return std::nullopt;
    }
    const std::size_t rate = data[2] >> 2 & 0xfU;
    AdtsHeader header;
    header.bytes = (data[3] & 3U) << 11 | data[4] << 3U | data[5] >> 5U;
    header.blocks = (data[6] & 3) + 1;
    if (rate >= kRates.size() || header.bytes < 7) {
        return std::nullopt;
    }
    header.rate = kRates[rate];
    return header;
}

std::optional<double> adtsDuration(int fd, std::int64_t size) {
    constexpr std::size_t kBlockBytes = 256 * 1024;
    constexpr int kFramesPerBlock = 1024;
    std::int64_t position = 0;
    std::int64_t blocks = 0;
    int rate = 0;
    for (bool isWhole = true; isWhole && position < size;) {
        const auto data = readBytes(fd, position, kBlockBytes);
        const std::span<const std::uint8_t> bytes(data);
        std::size_t used = 0;
        while (used + 7 <= bytes.size()) {
            const auto header = adtsHeader(bytes.subspan(used));
            isWhole = header && (rate == 0 || header->rate == rate) &&
                      position + static_cast<std::int64_t>(used + header->bytes) <= size;
            if (!isWhole) {
                break;
            }
            rate = header->rate;
            blocks += header->blocks;
            used += header->bytes;
        }
        position += static_cast<std::int64_t>(used);
        isWhole = isWhole && used > 0;
    }
    // One frame alone may be chance.
    const bool isSound = blocks > 1 || position == size;
    return isSound && rate > 0 ? seconds(static_cast<double>(blocks) * kFramesPerBlock, rate) : std::nullopt;
}

}  // namespace

std::optional<double> headerDuration(int fd) {
    const std::int64_t size = regularFileSize(fd);
    const auto start = readBytes(fd, 0, 12);
    if (start.size() < 12) {
        return std::nullopt;
    }
    const auto is = [&](const char* name, std::size_t at) { return std::memcmp(start.data() + at, name, 4) == 0; };
    if (is("ftyp", 4)) {
        return mp4Duration(fd, size);
    }
    if ((is("RIFF", 0) || is("RF64", 0)) && is("WAVE", 8)) {
        return wavDuration(fd, size);
    }
    if (is("caff", 0)) {
        return cafDuration(fd, size);
    }
    return adtsHeader(start) ? adtsDuration(fd, size) : std::nullopt;
}

}  // namespace tavi
