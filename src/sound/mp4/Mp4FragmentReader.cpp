#include "sound/mp4/Mp4FragmentReader.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// More than any fragment of a recording has before its packets, and little enough to hold.
constexpr std::int64_t kMaximumHeaderBytes = std::int64_t{16} << 20;
constexpr std::uint32_t kMaximumRunSamples = 1U << 20;
/// Minutes at any rate, and so short that no sum overflows.
constexpr std::uint32_t kLongestSample = 1U << 24;

/// The packets that one box "moof" tells of.
class Fragment {
public:
    /// The samples of all fragments together may have so many bytes.
    Fragment(const Mp4FragmentDefaults& defaults, std::int64_t fileBytes)
        : m_defaults(defaults), m_fileBytes(fileBytes), m_bytesLeft(fileBytes) {}

    /// Takes the body of a box that stands at that offset before its data; false when it makes no sense.
    bool read(std::span<const std::uint8_t> body, std::int64_t offset, const Mp4Box& data);

    struct StoredRun {
        std::int64_t offset = 0;
        std::int64_t end = 0;
        std::size_t first = 0;
        std::size_t count = 0;
    };
    const std::vector<StoredRun>& runs() const { return m_runs; }
    std::span<const Mp4Sample> samplesOf(const StoredRun& run) const {
        return std::span(m_samples).subspan(run.first, run.count);
    }

private:
    bool readTrack(std::span<const std::uint8_t> body, std::int64_t offset);
    bool readRun(std::span<const std::uint8_t> body, const Mp4FragmentDefaults& defaults, std::int64_t base,
                 std::int64_t& position);

    Mp4FragmentDefaults m_defaults;
    std::int64_t m_fileBytes;
    std::int64_t m_bytesLeft;
    std::vector<Mp4Sample> m_samples;
    std::vector<StoredRun> m_runs;
};

bool Fragment::read(std::span<const std::uint8_t> body, std::int64_t offset, const Mp4Box& data) {
    m_samples.clear();
    m_runs.clear();
    const std::int64_t bytesLeft = m_bytesLeft;
    const auto children = mp4Children(body);
    const bool isRead =
        children &&
        std::all_of(
            children->begin(), children->end(),
            [&](const Mp4Child& child) { return child.type != mp4Type("traf") || readTrack(child.body, offset); }) &&
        std::all_of(m_runs.begin(), m_runs.end(),
                    [&](const StoredRun& run) { return run.offset >= data.body && run.end <= data.end; });
    m_bytesLeft = isRead ? m_bytesLeft : bytesLeft;
    return isRead;
}

bool Fragment::readTrack(std::span<const std::uint8_t> body, std::int64_t offset) {
    const auto children = mp4Children(body);
    const Mp4Child* header = children ? findMp4Child(*children, mp4Type("tfhd")) : nullptr;
    if (header == nullptr) {
        return false;
    }
    ByteReader reader(header->body);
    const std::uint32_t flags = reader.u32();
    const std::uint32_t track = reader.u32();
    std::int64_t base = offset;
    Mp4FragmentDefaults defaults = m_defaults;
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
    if (!reader.ok() || track != m_defaults.track || base < 0 || base > m_fileBytes) {
        return false;
    }
    std::int64_t position = base;
    return std::all_of(children->begin(), children->end(), [&](const Mp4Child& child) {
        return child.type != mp4Type("trun") || readRun(child.body, defaults, base, position);
    });
}

bool Fragment::readRun(std::span<const std::uint8_t> body, const Mp4FragmentDefaults& defaults, std::int64_t base,
                       std::int64_t& position) {
    ByteReader reader(body);
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
    StoredRun run{position, position, m_samples.size(), count};
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
        run.end += sample.size;
    }
    position = run.end;
    if (count > 0) {
        m_runs.push_back(run);
    }
    return reader.ok();
}

/// The box at an offset; nothing for what a file that was cut off can end in: too little for a box, a box that is not
/// whole, or zeros that a file system leaves where the data did not reach the disk.
std::optional<Mp4Box> wholeBoxAt(FileWindow& file, std::int64_t offset, std::int64_t size) {
    const auto box = size - offset >= 8 ? readMp4Box(file, offset, size) : std::nullopt;
    return box && box->end <= size && box->type != 0 ? box : std::nullopt;
}

/// Whether the header itself tells where packets are, as it does when only later ones are in fragments.
bool hasPackets(int fd, const Mp4Track& track) {
    const Mp4Box* sizes = findMp4Box(track.tables, mp4Type("stsz"));
    FileWindow file(fd);
    ByteReader count(sizes != nullptr ? file.at(sizes->body + 8, 4) : std::span<const std::uint8_t>{});
    return count.u32() > 0;
}

}  // namespace

FileResult<Mp4FragmentReader> Mp4FragmentReader::open(int fd, const Mp4Movie& movie) {
    if (!movie.isFragmented || !movie.defaults || movie.tracks.size() != 1 || hasPackets(fd, movie.tracks.front())) {
        return fileFailure("This is no interrupted recording.");
    }
    Mp4FragmentReader fragments;
    fragments.m_fd = fd;
    fragments.m_movieEnd = movie.box.end;
    fragments.m_defaults = *movie.defaults;
    return fragments;
}

FileResult<std::int64_t> Mp4FragmentReader::forEachRun(const std::function<bool(const Mp4Run&)>& visit) const {
    const std::int64_t size = regularFileSize(m_fd);
    FileWindow file(m_fd);
    Fragment fragment(m_defaults, size);
    std::int64_t end = m_movieEnd;
    bool isDamaged = false;
    for (auto box = wholeBoxAt(file, end, size); box; box = wholeBoxAt(file, box->end, size)) {
        if (box->type == mp4Type("moov") && box->end == size) {
            break;
        }
        if (box->type != mp4Type("moof")) {
            continue;
        }
        const auto data = wholeBoxAt(file, box->end, size);
        if (!data) {
            break;
        }
        const Mp4Box header = *std::exchange(box, data);
        const std::int64_t bytes = header.end - header.body;
        if (data->type != mp4Type("mdat") || bytes > kMaximumHeaderBytes ||
            !fragment.read(file.at(header.body, static_cast<std::size_t>(bytes)), header.offset, *data)) {
            isDamaged = true;
            continue;
        }
        for (const Fragment::StoredRun& run : fragment.runs()) {
            if (!visit({run.offset, fragment.samplesOf(run)})) {
                return data->end;
            }
        }
        end = data->end;
    }
    return isDamaged && end == m_movieEnd ? fileFailure("The recording is damaged.") : FileResult<std::int64_t>(end);
}

}  // namespace tavi
