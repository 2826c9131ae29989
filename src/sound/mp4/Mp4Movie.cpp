#include "sound/mp4/Mp4Movie.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// Before the header. A file that was recorded in fragments has it first.
constexpr int kMaximumBoxesBefore = 1 << 16;
constexpr std::uint32_t kMaximumEdits = 10000;

/// The boxes in another one; none where there is no other, or where they do not fill it.
std::vector<Mp4Box> boxesIn(FileWindow& file, const Mp4Box* parent) {
    const auto boxes = parent != nullptr ? readMp4Boxes(file, parent->body, parent->end) : std::nullopt;
    return boxes.value_or(std::vector<Mp4Box>{});
}

/// The first bytes of a box's body; fewer where it has fewer.
ByteReader bodyOf(FileWindow& file, const Mp4Box* box, std::int64_t most) {
    return ByteReader(box != nullptr
                          ? file.at(box->body, static_cast<std::size_t>(std::min(most, box->end - box->body)))
                          : std::span<const std::uint8_t>{});
}

/// Time scale and duration in a box "mvhd" or "mdhd" (8.2.2, 8.4.2).
std::pair<std::uint32_t, std::uint64_t> timesOf(ByteReader header) {
    const bool isLong = header.u32() >> 24 == 1;
    header.skip(isLong ? 16 : 8);
    const std::uint32_t scale = header.u32();
    const std::uint64_t duration = isLong ? header.u64() : header.u32();
    return header.ok() ? std::pair(scale, duration) : std::pair(0U, std::uint64_t{0});
}

/// False when there is more of the list than can be read.
bool readEdits(ByteReader list, std::vector<Mp4Edit>& edits) {
    const bool isLong = list.u32() >> 24 == 1;
    const std::uint32_t count = list.u32();
    for (std::uint32_t i = 0; i < count && list.ok(); ++i) {
        Mp4Edit edit;
        edit.duration = isLong ? list.u64() : list.u32();
        edit.start = isLong ? static_cast<std::int64_t>(list.u64()) : static_cast<std::int32_t>(list.u32());
        edit.isAtNormalSpeed = list.u32() == 1U << 16;
        edits.push_back(edit);
    }
    return list.ok();
}

/// Whether a box "dref" has one entry, which names no other file (8.7.2).
bool refersToItself(ByteReader references) {
    references.skip(4);
    const bool isSingle = references.u32() == 1;
    references.skip(4);
    return references.u32() == mp4Type("url ") && references.u32() == 1 && isSingle;
}

std::optional<Mp4Track> readTrack(FileWindow& file, const Mp4Box& box) {
    Mp4Track track;
    track.boxes = boxesIn(file, &box);
    const auto media = boxesIn(file, findMp4Box(track.boxes, mp4Type("mdia")));
    std::tie(track.timeScale, track.duration) = timesOf(bodyOf(file, findMp4Box(media, mp4Type("mdhd")), 32));
    ByteReader handler = bodyOf(file, findMp4Box(media, mp4Type("hdlr")), 12);
    handler.skip(8);
    track.handler = handler.u32();

    const auto information = boxesIn(file, findMp4Box(media, mp4Type("minf")));
    const auto references = boxesIn(file, findMp4Box(information, mp4Type("dinf")));
    track.isSelfContained = refersToItself(bodyOf(file, findMp4Box(references, mp4Type("dref")), 20));
    track.tables = boxesIn(file, findMp4Box(information, mp4Type("stbl")));

    const auto edits = boxesIn(file, findMp4Box(track.boxes, mp4Type("edts")));
    const Mp4Box* list = findMp4Box(edits, mp4Type("elst"));
    const bool isRead = list == nullptr || readEdits(bodyOf(file, list, 8 + kMaximumEdits * 20), track.edits);
    return isRead ? std::optional(std::move(track)) : std::nullopt;
}

/// The first box "moov".
std::optional<Mp4Box> findMovie(FileWindow& file, std::int64_t size) {
    std::int64_t offset = 0;
    for (int i = 0; i < kMaximumBoxesBefore; ++i) {
        const auto box = readMp4Box(file, offset, size);
        if (!box || box->end > size || (offset == 0 && box->type != mp4Type("ftyp"))) {
            break;
        }
        if (box->type == mp4Type("moov")) {
            return box;
        }
        offset = box->end;
    }
    return std::nullopt;
}

}  // namespace

std::optional<Mp4Movie> Mp4Movie::read(int fd) {
    FileWindow file(fd);
    const auto box = findMovie(file, regularFileSize(fd));
    auto boxes = box ? readMp4Boxes(file, box->body, box->end) : std::nullopt;
    if (!boxes) {
        return std::nullopt;
    }
    Mp4Movie movie;
    movie.box = *box;
    movie.boxes = std::move(*boxes);
    movie.timeScale = timesOf(bodyOf(file, findMp4Box(movie.boxes, mp4Type("mvhd")), 32)).first;
    for (const Mp4Box& child : movie.boxes) {
        if (child.type == mp4Type("trak")) {
            auto track = readTrack(file, child);
            if (!track) {
                return std::nullopt;
            }
            movie.tracks.push_back(std::move(*track));
        }
    }
    const Mp4Box* extends = findMp4Box(movie.boxes, mp4Type("mvex"));
    movie.isFragmented = extends != nullptr;
    const auto extensions = boxesIn(file, extends);
    ByteReader defaults = bodyOf(file, findMp4Box(extensions, mp4Type("trex")), 20);
    defaults.skip(4);
    const std::uint32_t track = defaults.u32();
    defaults.skip(4);
    const std::uint32_t duration = defaults.u32();
    const std::uint32_t size = defaults.u32();
    if (defaults.ok()) {
        movie.defaults = {track, duration, size};
    }
    return movie;
}

const Mp4Track* Mp4Movie::sound() const {
    const auto found = std::find_if(tracks.begin(), tracks.end(),
                                    [](const Mp4Track& track) { return track.handler == mp4Type("soun"); });
    return found != tracks.end() ? &*found : nullptr;
}

std::vector<std::uint8_t> Mp4Movie::readUserData(int fd) const {
    const Mp4Box* data = findMp4Box(boxes, mp4Type("udta"));
    return data != nullptr ? readMp4Bytes(fd, data->offset, data->end).value_or(std::vector<std::uint8_t>{})
                           : std::vector<std::uint8_t>{};
}

}  // namespace tavi
