#include "sound/mp4/Mp4Sound.h"

#include <algorithm>
#include <deque>
#include <initializer_list>
#include <string_view>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// A duration in units of another time scale, to the nearest; nothing when it is longer than any sound.
std::optional<std::int64_t> rescaled(std::uint64_t duration, std::uint32_t to, std::uint32_t from) {
    constexpr std::uint64_t kLongest = std::uint64_t{1} << 62;
    const std::uint64_t whole = duration / from;
    if (whole > kLongest / std::max(to, 1U)) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(whole * to + (duration % from * to + from / 2) / from);
}

/// Whether each box is of one of these types and none comes twice.
bool areUsual(const std::vector<Mp4Box>& boxes, std::initializer_list<std::uint32_t> types) {
    return std::all_of(boxes.begin(), boxes.end(), [&](const Mp4Box& box) {
        return std::find(types.begin(), types.end(), box.type) != types.end() &&
               findMp4Box(boxes, box.type)->offset == box.offset;
    });
}

/// Whether a box has the remark in which some programs note how much of the start and end is not to be heard.
bool hasGaplessRemark(FileWindow& file, const Mp4Box& box) {
    constexpr std::string_view kName = "iTunSMPB";
    constexpr std::int64_t kPiece = 16384;
    // Pieces overlap, as the name may lie across two of them.
    for (std::int64_t at = box.body; at < box.end; at += kPiece) {
        const std::int64_t size = std::min<std::int64_t>(box.end - at, kPiece + std::ssize(kName));
        const auto bytes = file.at(at, static_cast<std::size_t>(size));
        if (std::search(bytes.begin(), bytes.end(), kName.begin(), kName.end()) != bytes.end()) {
            return true;
        }
    }
    return false;
}

/// Whether the file has nothing beside one track of sound that could change what is heard.
bool isPlainSound(int fd, const Mp4Movie& movie) {
    FileWindow file(fd);
    const Mp4Track& track = movie.tracks.front();
    auto boxes = readMp4Boxes(file, 0, regularFileSize(fd)).value_or(std::vector<Mp4Box>{});
    std::erase_if(boxes, [&](const Mp4Box& box) {
        return box.type == mp4Type("mdat") || box.type == mp4Type("free") || box.type == mp4Type("skip") ||
               box.type == mp4Type("wide");
    });
    if (movie.isFragmented || movie.tracks.size() != 1 || !track.isSelfContained || boxes.empty() ||
        !areUsual(boxes, {mp4Type("ftyp"), mp4Type("moov")}) ||
        !areUsual(track.boxes, {mp4Type("tkhd"), mp4Type("edts"), mp4Type("mdia"), mp4Type("udta"), mp4Type("meta"),
                                mp4Type("free")}) ||
        !areUsual(track.tables, {mp4Type("stsd"), mp4Type("stts"), mp4Type("stsc"), mp4Type("stsz"), mp4Type("stco"),
                                 mp4Type("co64"), mp4Type("sgpd"), mp4Type("sbgp")})) {
        return false;
    }
    const auto isSilent = [&](const Mp4Box& box) {
        return box.type == mp4Type("trak") || box.type == mp4Type("mdia") || !hasGaplessRemark(file, box);
    };
    return std::all_of(movie.boxes.begin(), movie.boxes.end(), isSilent) &&
           std::all_of(track.boxes.begin(), track.boxes.end(), isSilent);
}

}  // namespace

std::optional<Mp4Sound> Mp4Sound::open(int fd) {
    auto movie = Mp4Movie::read(fd);
    const auto isSound = [](const Mp4Track& track) { return track.handler == mp4Type("soun"); };
    if (!movie || std::count_if(movie->tracks.begin(), movie->tracks.end(), isSound) != 1) {
        return std::nullopt;
    }
    Mp4Sound sound(fd, std::move(*movie));
    return sound.read() ? std::optional(std::move(sound)) : std::nullopt;
}

bool Mp4Sound::read() {
    const Mp4Track& track = *m_movie.sound();
    auto description = Mp4Description::read(m_fd, track);
    auto tables = Mp4TableReader::open(m_fd, track.tables);
    if (track.timeScale == 0 || !description || !tables || findMp4Box(track.tables, mp4Type("ctts")) != nullptr) {
        return false;
    }
    m_timeScale = track.timeScale;
    m_description = std::move(*description);
    m_tables = std::move(*tables);
    if (m_movie.isFragmented) {
        auto fragments = Mp4FragmentReader::open(m_fd, m_movie);
        if (!fragments) {
            return false;
        }
        m_fragments = *fragments;
    }
    return readEdits(track.edits);
}

bool Mp4Sound::readEdits(const std::vector<Mp4Edit>& edits) {
    constexpr std::int64_t kLatest = std::int64_t{1} << 48;
    if (!edits.empty()) {
        const Mp4Edit& edit = edits.front();
        if (edits.size() > 1 || !edit.isAtNormalSpeed || edit.start < 0 || edit.start >= kLatest) {
            return false;
        }
        m_start = edit.start;
        // An edit in a file that was still to grow says nothing of its length.
        if (!m_fragments && m_movie.timeScale > 0 && edit.duration < static_cast<std::uint64_t>(kLatest)) {
            m_editedDuration = rescaled(edit.duration, m_timeScale, m_movie.timeScale);
        }
    }
    m_isPlain = (edits.empty() || m_editedDuration) && isPlainSound(m_fd, m_movie);
    return true;
}

bool Mp4Sound::forEachPacket(std::int64_t time, std::uint64_t preroll,
                             const std::function<bool(std::int64_t, const Mp4Packet&)>& visit) const {
    if (m_fragments) {
        return forEachPacketOfFragments(time, preroll, visit);
    }
    const std::uint64_t first = m_tables.packetAt(time);
    auto place = m_tables.placeBefore(first - std::min(first, preroll));
    std::int64_t start = 0;
    Mp4Packet packet;
    while (place && m_tables.next(*place, start, packet)) {
        if (!visit(start, packet)) {
            return true;
        }
    }
    return place && place->packet == m_tables.packets();
}

bool Mp4Sound::forEachPacketOfFragments(std::int64_t time, std::uint64_t preroll,
                                        const std::function<bool(std::int64_t, const Mp4Packet&)>& visit) const {
    // Packets that have been read and not been visited.
    std::deque<std::pair<std::int64_t, Mp4Packet>> waiting;
    std::int64_t start = 0;
    const auto end = m_fragments->forEachRun([&](const Mp4Run& run) {
        std::int64_t offset = run.offset;
        for (const Mp4Sample& sample : run.samples) {
            waiting.emplace_back(start, Mp4Packet{offset, sample.size, sample.duration});
            offset += sample.size;
            start += sample.duration;
            while (!waiting.empty() && (start > time || waiting.size() > preroll)) {
                if (start > time && !visit(waiting.front().first, waiting.front().second)) {
                    return false;
                }
                waiting.pop_front();
            }
        }
        return true;
    });
    return end.has_value();
}

}  // namespace tavi
