#include "sound/mp4/Mp4Fragments.h"

#include <algorithm>
#include <optional>

#include "files/PositionedIo.h"
#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

namespace {

/// More than any header or fragment of a recording, and little enough to hold.
constexpr std::int64_t kMaximumHeaderBytes = std::int64_t{16} << 20;
constexpr std::uint32_t kMaximumRunSamples = 1U << 20;
/// Minutes at any rate, and so short that no sum overflows.
constexpr std::uint32_t kLongestSample = 1U << 24;

std::optional<Mp4Box> findMovie(int fd, std::int64_t size) {
    std::int64_t offset = 0;
    while (const auto box = readMp4Box(fd, offset, size)) {
        const bool isKnown = offset > 0 || box->type == mp4Type("ftyp");
        if (!isKnown || box->end > size) {
            break;
        }
        if (box->type == mp4Type("moov")) {
            return box;
        }
        offset = box->end;
    }
    return std::nullopt;
}

std::vector<std::uint8_t> readBody(int fd, const Mp4Box& box) {
    std::vector<std::uint8_t> body;
    if (box.end - box.body <= kMaximumHeaderBytes) {
        body.resize(static_cast<std::size_t>(box.end - box.body));
        body.resize(readFully(fd, body.data(), body.size(), box.body));
    }
    return body;
}

/// What a file that was cut off can end in: too little for a box, a box that is not whole, or zeros that a file system
/// leaves where the data did not reach the disk.
bool isCutOff(int fd, std::int64_t offset, std::int64_t size) {
    const auto box = readMp4Box(fd, offset, size);
    return size - offset < 8 || !box || box->end > size || box->type == 0;
}

/// Whether the movie header itself tells where samples are, as it does when only later ones are in fragments.
bool hasSamples(const Mp4Child& track) {
    std::span<const std::uint8_t> body = track.body;
    for (const std::uint32_t type : {mp4Type("mdia"), mp4Type("minf"), mp4Type("stbl"), mp4Type("stsz")}) {
        const auto children = mp4Children(body);
        const Mp4Child* child = children ? findMp4Child(*children, type) : nullptr;
        if (child == nullptr) {
            return false;
        }
        body = child->body;
    }
    Mp4Reader reader(body);
    reader.skip(8);
    return reader.u32() > 0;
}

}  // namespace

bool Mp4Fragments::isOrdinary(int fd) {
    const auto movie = findMovie(fd, regularFileSize(fd));
    std::int64_t offset = movie ? movie->body : 0;
    bool hasTrack = false;
    while (movie && offset < movie->end) {
        const auto box = readMp4Box(fd, offset, movie->end);
        if (!box || box->end > movie->end || box->type == mp4Type("mvex")) {
            return false;
        }
        hasTrack = hasTrack || box->type == mp4Type("trak");
        offset = box->end;
    }
    return hasTrack;
}

FileResult<Mp4Fragments> Mp4Fragments::open(int fd) {
    const auto unusable = fileFailure("This is no interrupted recording.");
    const auto movie = findMovie(fd, regularFileSize(fd));
    if (!movie) {
        return unusable;
    }
    Mp4Fragments fragments;
    fragments.m_fd = fd;
    fragments.m_movieOffset = movie->offset;
    fragments.m_movieEnd = movie->end;
    fragments.m_movie = readBody(fd, *movie);
    const auto children = mp4Children(fragments.m_movie);
    if (!children) {
        return unusable;
    }
    const auto isTrack = [](const Mp4Child& child) { return child.type == mp4Type("trak"); };
    const Mp4Child* extends = findMp4Child(*children, mp4Type("mvex"));
    const auto extensions = extends != nullptr ? mp4Children(extends->body) : std::nullopt;
    if (!extensions || std::count_if(children->begin(), children->end(), isTrack) != 1 ||
        hasSamples(*std::find_if(children->begin(), children->end(), isTrack))) {
        return unusable;
    }
    const Mp4Child* defaults = findMp4Child(*extensions, mp4Type("trex"));
    if (defaults == nullptr) {
        return unusable;
    }
    Mp4Reader reader(defaults->body);
    reader.skip(4);
    fragments.m_track = reader.u32();
    reader.skip(4);
    fragments.m_defaults.duration = reader.u32();
    fragments.m_defaults.size = reader.u32();
    if (!reader.ok()) {
        return unusable;
    }
    return fragments;
}

FileResult<std::int64_t> Mp4Fragments::forEachRun(const std::function<bool(const Mp4Run&)>& visit) const {
    const std::int64_t size = regularFileSize(m_fd);
    m_bytesLeft = size;
    std::int64_t offset = m_movieEnd;
    std::int64_t end = m_movieEnd;
    while (offset < size && !isCutOff(m_fd, offset, size)) {
        const Mp4Box box = *readMp4Box(m_fd, offset, size);
        if (box.type == mp4Type("moov") && box.end == size) {
            break;
        }
        offset = box.end;
        if (box.type != mp4Type("moof")) {
            continue;
        }
        if (offset == size || isCutOff(m_fd, offset, size)) {
            break;
        }
        const Mp4Box data = *readMp4Box(m_fd, offset, size);
        if (!readFragment(readBody(m_fd, box), box.offset) || data.type != mp4Type("mdat")) {
            return fileFailure("The recording is damaged in its midst.");
        }
        for (const StoredRun& run : m_runs) {
            const auto samples = std::span<const Mp4Sample>(m_samples).subspan(run.first, run.count);
            std::int64_t runEnd = run.offset;
            for (const Mp4Sample& sample : samples) {
                runEnd += sample.size;
            }
            if (run.offset < data.body || runEnd > data.end) {
                return fileFailure("The recording is damaged in its midst.");
            }
            if (!visit({run.offset, samples})) {
                return data.end;
            }
        }
        offset = data.end;
        end = data.end;
    }
    return end;
}

bool Mp4Fragments::readFragment(std::span<const std::uint8_t> body, std::int64_t offset) const {
    m_samples.clear();
    m_runs.clear();
    const auto children = mp4Children(body);
    if (!children) {
        return false;
    }
    return std::all_of(children->begin(), children->end(), [&](const Mp4Child& child) {
        return child.type != mp4Type("traf") || readTrackFragment(child.body, offset);
    });
}

bool Mp4Fragments::readTrackFragment(std::span<const std::uint8_t> body, std::int64_t offset) const {
    const auto children = mp4Children(body);
    const Mp4Child* header = children ? findMp4Child(*children, mp4Type("tfhd")) : nullptr;
    if (header == nullptr) {
        return false;
    }
    Mp4Reader reader(header->body);
    const std::uint32_t flags = reader.u32();
    const std::uint32_t track = reader.u32();
    std::int64_t base = offset;
    Defaults defaults = m_defaults;
    if ((flags & 0x1) != 0) {
        base = static_cast<std::int64_t>(reader.u64());
    }
    if ((flags & 0x2) != 0) {
        reader.skip(4);
    }
    if ((flags & 0x8) != 0) {
        defaults.duration = reader.u32();
    }
    if ((flags & 0x10) != 0) {
        defaults.size = reader.u32();
    }
    if (!reader.ok() || track != m_track || base < 0 || base > regularFileSize(m_fd)) {
        return false;
    }
    std::int64_t position = base;
    return std::all_of(children->begin(), children->end(), [&](const Mp4Child& child) {
        return child.type != mp4Type("trun") || readRun(child.body, defaults, base, position);
    });
}

bool Mp4Fragments::readRun(std::span<const std::uint8_t> body, const Defaults& defaults, std::int64_t base,
                           std::int64_t& position) const {
    Mp4Reader reader(body);
    const std::uint32_t flags = reader.u32();
    const std::uint32_t count = reader.u32();
    if ((flags & 0x1) != 0) {
        position = base + static_cast<std::int32_t>(reader.u32());
    }
    if ((flags & 0x4) != 0) {
        reader.skip(4);
    }
    if (count > kMaximumRunSamples || m_samples.size() > kMaximumRunSamples) {
        return false;
    }
    const std::int64_t start = position;
    const std::size_t first = m_samples.size();
    for (std::uint32_t i = 0; i < count && reader.ok(); ++i) {
        Mp4Sample sample{defaults.size, defaults.duration};
        if ((flags & 0x100) != 0) {
            sample.duration = reader.u32();
        }
        if ((flags & 0x200) != 0) {
            sample.size = reader.u32();
        }
        reader.skip(((flags & 0x400) != 0 ? 4U : 0U) + ((flags & 0x800) != 0 ? 4U : 0U));
        m_bytesLeft -= sample.size;
        if (sample.size == 0 || sample.duration > kLongestSample || m_bytesLeft < 0) {
            return false;
        }
        m_samples.push_back(sample);
        position += sample.size;
    }
    if (count > 0) {
        m_runs.push_back({start, first, count});
    }
    return reader.ok();
}

}  // namespace tavi
