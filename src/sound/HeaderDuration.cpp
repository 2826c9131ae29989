#include "sound/HeaderDuration.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

#include "files/PositionedIo.h"
#include "sound/adts/AdtsStream.h"
#include "sound/caf/CafHeader.h"
#include "sound/mp4/Mp4Boxes.h"
#include "sound/mp4/Mp4Fragments.h"
#include "sound/mp4/Mp4Tables.h"
#include "sound/wav/WavHeader.h"

namespace tavi {

namespace {

std::vector<std::uint8_t> readBytes(int fd, std::int64_t offset, std::size_t size) {
    std::vector<std::uint8_t> bytes(size);
    bytes.resize(readFully(fd, bytes.data(), size, offset));
    return bytes;
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

/// What an edit list plays.
struct Mp4Edits {
    /// In units of the movie's time scale.
    std::uint64_t length = 0;
    /// Where in the media, in units of its time scale, the last of them starts.
    std::uint64_t start = 0;
    int count = 0;
};

/// Nothing when the list has no edit that plays something.
std::optional<Mp4Edits> readEdits(int fd, const Mp4Box& list) {
    constexpr std::uint32_t kMaximumEdits = 10000;
    const std::int64_t size = std::min<std::int64_t>(list.end - list.body, 8 + kMaximumEdits * 20);
    const auto body = readBytes(fd, list.body, static_cast<std::size_t>(size));
    Mp4Reader reader(body);
    const bool isLong = reader.u32() >> 24 == 1;
    const std::uint32_t count = reader.u32();
    Mp4Edits edits;
    for (std::uint32_t i = 0; i < count && reader.ok(); ++i) {
        const std::uint64_t duration = isLong ? reader.u64() : reader.u32();
        const std::int64_t start =
            isLong ? static_cast<std::int64_t>(reader.u64()) : static_cast<std::int32_t>(reader.u32());
        reader.skip(4);
        if (start >= 0) {
            edits.length += duration;
            edits.start = static_cast<std::uint64_t>(start);
            ++edits.count;
        }
    }
    return reader.ok() && edits.length > 0 ? std::optional(edits) : std::nullopt;
}

/// The movie's time scale is often coarse. An edit that plays everything from its start on, as near as that scale can
/// say it, is as long as the media are.
std::optional<double> editedSeconds(const Mp4Edits& edits, const Mp4Time& movie, const Mp4Time& media) {
    const auto edited = seconds(static_cast<double>(edits.length), movie.scale);
    if (edited && edits.count == 1 && media.scale > 0 && media.duration >= edits.start) {
        const double all = static_cast<double>(media.duration - edits.start) / media.scale;
        return std::abs(all - *edited) < 1.0 / movie.scale ? all : *edited;
    }
    return edited;
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
        const auto edit = list ? readEdits(fd, *list) : std::nullopt;
        result = edit ? editedSeconds(*edit, movieTime, mediaTime)
                      : seconds(static_cast<double>(mediaTime.duration), mediaTime.scale);
        return false;
    });
    return result;
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
    if (const auto wav = readWavHeader(fd)) {
        return seconds(static_cast<double>(wav->frames), wav->sampleRate);
    }
    if (const auto caf = readCafHeader(fd)) {
        return seconds(static_cast<double>(caf->frames), caf->sampleRate);
    }
    const auto adts = readAdtsFrame(start.data()) ? AdtsStream::read(fd) : std::nullopt;
    return adts ? seconds(static_cast<double>(adts->blocks()) * 1024, adts->rate()) : std::nullopt;
}

}  // namespace tavi
