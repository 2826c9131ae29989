#include "adapters/ffmpeg/Mp4Sound.h"

#include <array>

#include "adapters/ffmpeg/PositionedIo.h"

namespace tavi {

namespace {

/// Tables of a day of sound, and little enough to hold.
constexpr std::int64_t kMaximumMovieBytes = std::int64_t{24} << 20;
constexpr std::uint64_t kMaximumPackets = std::uint64_t{8} << 20;
/// Longer and larger than any file: sums of these do not overflow.
constexpr std::int64_t kMost = std::int64_t{1} << 60;

std::uint64_t numberAt(std::span<const std::uint8_t> bytes, std::size_t offset, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value = value << 8 | bytes[offset + i];
    }
    return value;
}

/// The entries of a table with a version, flags and a count before them; nothing when they do not fit.
std::optional<std::span<const std::uint8_t>> entriesOf(const std::vector<Mp4Child>& tables, std::uint32_t type,
                                                       std::size_t entryBytes) {
    const Mp4Child* table = findMp4Child(tables, type);
    if (table == nullptr || table->body.size() < 8) {
        return std::nullopt;
    }
    const std::uint64_t count = numberAt(table->body, 4, 4);
    const auto entries = table->body.subspan(8);
    return count <= entries.size() / entryBytes ? std::optional(entries.first(count * entryBytes)) : std::nullopt;
}

std::vector<Mp4Child> childrenOf(const std::vector<Mp4Child>& parents, std::uint32_t type) {
    const Mp4Child* parent = findMp4Child(parents, type);
    return parent != nullptr ? mp4Children(parent->body).value_or(std::vector<Mp4Child>{}) : std::vector<Mp4Child>{};
}

bool isSoundTrack(const std::vector<Mp4Child>& track) {
    const auto media = childrenOf(track, mp4Type("mdia"));
    const Mp4Child* handler = findMp4Child(media, mp4Type("hdlr"));
    return handler != nullptr && handler->body.size() >= 12 && numberAt(handler->body, 8, 4) == mp4Type("soun");
}

}  // namespace

std::optional<Mp4Sound> Mp4Sound::open(int fd) {
    const std::int64_t size = regularFileSize(fd);
    std::optional<Mp4Box> movie;
    for (std::int64_t offset = 0; !movie;) {
        const auto box = readMp4Box(fd, offset, size);
        if (!box || box->end > size || (offset == 0 && box->type != mp4Type("ftyp"))) {
            return std::nullopt;
        }
        movie = box->type == mp4Type("moov") ? box : std::nullopt;
        offset = box->end;
    }
    if (movie->end - movie->body > kMaximumMovieBytes) {
        return std::nullopt;
    }
    Mp4Sound sound;
    sound.m_movie.resize(static_cast<std::size_t>(movie->end - movie->body));
    if (readFully(fd, sound.m_movie.data(), sound.m_movie.size(), movie->body) < sound.m_movie.size()) {
        return std::nullopt;
    }
    const auto children = mp4Children(sound.m_movie);
    if (!children || findMp4Child(*children, mp4Type("mvex")) != nullptr) {
        return std::nullopt;
    }
    const Mp4Child* track = nullptr;
    for (const Mp4Child& child : *children) {
        if (child.type == mp4Type("trak") && isSoundTrack(mp4Children(child.body).value_or(std::vector<Mp4Child>{}))) {
            if (track != nullptr) {
                return std::nullopt;
            }
            track = &child;
        }
    }
    if (const Mp4Child* data = findMp4Child(*children, mp4Type("udta"))) {
        sound.m_userData = data->whole;
    }
    // Moving the vector keeps its bytes where they are, and with them the spans.
    return track != nullptr && sound.readTrack(track->body) ? std::optional(std::move(sound)) : std::nullopt;
}

bool Mp4Sound::readTrack(std::span<const std::uint8_t> track) {
    const auto children = mp4Children(track);
    const auto media = children ? childrenOf(*children, mp4Type("mdia")) : std::vector<Mp4Child>{};
    const Mp4Child* header = findMp4Child(media, mp4Type("mdhd"));
    const auto information = childrenOf(media, mp4Type("minf"));
    const Mp4Child* tables = findMp4Child(information, mp4Type("stbl"));
    if (header == nullptr || tables == nullptr) {
        return false;
    }
    Mp4Reader reader(header->body);
    reader.skip(reader.u32() >> 24 == 1 ? 16 : 8);
    m_timeScale = reader.u32();
    return reader.ok() && m_timeScale > 0 && readTables(tables->body) && readEdits(track);
}

bool Mp4Sound::readTables(std::span<const std::uint8_t> body) {
    const auto tables = mp4Children(body);
    if (!tables || findMp4Child(*tables, mp4Type("ctts")) != nullptr) {
        return false;
    }
    const Mp4Child* description = findMp4Child(*tables, mp4Type("stsd"));
    const Mp4Child* sizes = findMp4Child(*tables, mp4Type("stsz"));
    const auto times = entriesOf(*tables, mp4Type("stts"), 8);
    const auto chunkRuns = entriesOf(*tables, mp4Type("stsc"), 12);
    auto chunks = entriesOf(*tables, mp4Type("stco"), 4);
    if (!chunks) {
        m_chunkBytes = 8;
        chunks = entriesOf(*tables, mp4Type("co64"), 8);
    }
    // One way of coding, in this file.
    const bool isSingle =
        description != nullptr && description->body.size() >= 16 && numberAt(description->body, 4, 4) == 1;
    if (!isSingle || sizes == nullptr || sizes->body.size() < 12 || !times || !chunkRuns || !chunks) {
        return false;
    }
    m_description = description->whole;
    m_coding = static_cast<std::uint32_t>(numberAt(description->body, 12, 4));
    m_packetSize = static_cast<std::uint32_t>(numberAt(sizes->body, 4, 4));
    m_packets = numberAt(sizes->body, 8, 4);
    m_sizes = sizes->body.subspan(12);
    m_times = *times;
    m_chunkRuns = *chunkRuns;
    m_chunks = *chunks;
    return m_packets <= kMaximumPackets && (m_packetSize > 0 || m_packets <= m_sizes.size() / 4);
}

namespace {

/// The contents of the descriptor in which others lie, by the way of their tags (ISO/IEC 14496-1, 7.2.6).
std::span<const std::uint8_t> descriptor(Mp4Reader& reader, std::uint8_t tag) {
    std::size_t length = 0;
    bool isRight = reader.u8() == tag;
    for (int i = 0; i < 4; ++i) {
        const std::uint8_t byte = reader.u8();
        length = length << 7 | (byte & 0x7fU);
        if ((byte & 0x80) == 0) {
            break;
        }
    }
    isRight = isRight && length <= reader.rest().size();
    return isRight ? reader.rest().first(length) : std::span<const std::uint8_t>{};
}

/// AAC-LC by its AudioSpecificConfig (ISO/IEC 14496-3, 1.6.2.1).
std::optional<AudioStreamBasicDescription> aacFormat(std::span<const std::uint8_t> body, std::uint32_t timeScale) {
    constexpr std::array<std::uint32_t, 13> kRates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                                      22050, 16000, 12000, 11025, 8000,  7350};
    constexpr std::uint32_t kHighestRateWithReplication = 24000;
    Mp4Reader reader(body);
    reader.skip(4);
    descriptor(reader, 3);
    reader.skip(3);
    descriptor(reader, 4);
    reader.skip(13);
    const auto config = descriptor(reader, 5);
    if (!reader.ok() || config.size() < 2) {
        return std::nullopt;
    }
    const unsigned bits = static_cast<unsigned>(config[0]) << 8 | config[1];
    const std::size_t rate = bits >> 7 & 15;
    const bool isLowComplexity = bits >> 11 == 2 && (bits & 7) == 0;
    // The extension that says so, or a rate that has none.
    const bool isWithout = config.size() >= 5 && config[2] == 0x56 && config[3] == 0xe5 && (config[4] & 0x80) == 0;
    AudioStreamBasicDescription format;
    format.formatID = kAudioFormatMPEG4AAC;
    format.channelsPerFrame = bits >> 3 & 15;
    format.framesPerPacket = 1024;
    format.sampleRate = rate < kRates.size() ? kRates[rate] : 0;
    const bool isCertain = isWithout || (config.size() == 2 && format.sampleRate > kHighestRateWithReplication);
    const bool isUsual = format.channelsPerFrame == 1 || format.channelsPerFrame == 2;
    return isLowComplexity && isCertain && isUsual && format.sampleRate == timeScale ? std::optional(format)
                                                                                     : std::nullopt;
}

}  // namespace

std::optional<AudioStreamBasicDescription> Mp4Sound::format() const {
    // The entry's own fields (ISO/IEC 14496-12, 12.2.3.2), behind the headers of both boxes.
    constexpr std::size_t kEntry = 16;
    constexpr std::size_t kFields = 8 + 28;
    const auto entry = m_description.subspan(kEntry);
    if (entry.size() < kFields || numberAt(entry, 0, 4) != entry.size() || numberAt(entry, 16, 2) != 0) {
        return std::nullopt;
    }
    const auto children = mp4Children(entry.subspan(kFields));
    const bool isAac = m_coding == mp4Type("mp4a");
    const Mp4Child* child = children ? findMp4Child(*children, isAac ? mp4Type("esds") : mp4Type("alac")) : nullptr;
    if (child == nullptr) {
        return std::nullopt;
    }
    if (isAac) {
        return aacFormat(child->body, m_timeScale);
    }
    AudioStreamBasicDescription format;
    format.formatID = kAudioFormatAppleLossless;
    const bool isWhole = m_coding == mp4Type("alac") && child->body.size() >= 28;
    format.framesPerPacket = isWhole ? static_cast<std::uint32_t>(numberAt(child->body, 4, 4)) : 0;
    format.channelsPerFrame = isWhole ? child->body[13] : 0;
    format.sampleRate = isWhole ? static_cast<double>(numberAt(child->body, 24, 4)) : 0;
    const bool isSound = format.channelsPerFrame >= 1 && format.sampleRate == m_timeScale;
    return isSound ? std::optional(format) : std::nullopt;
}

bool Mp4Sound::readEdits(std::span<const std::uint8_t> track) {
    const auto children = mp4Children(track);
    const Mp4Child* list = nullptr;
    const auto edits = children ? childrenOf(*children, mp4Type("edts")) : std::vector<Mp4Child>{};
    if ((list = findMp4Child(edits, mp4Type("elst"))) == nullptr) {
        return true;
    }
    Mp4Reader reader(list->body);
    const bool isLong = reader.u32() >> 24 == 1;
    const std::uint32_t count = reader.u32();
    reader.skip(isLong ? 8 : 4);
    m_start = isLong ? static_cast<std::int64_t>(reader.u64()) : static_cast<std::int32_t>(reader.u32());
    constexpr std::int64_t kLatest = std::int64_t{1} << 48;
    const bool isAtNormalSpeed = reader.u32() == 1U << 16;
    return reader.ok() && count == 1 && isAtNormalSpeed && m_start >= 0 && m_start < kLatest;
}

std::uint32_t Mp4Sound::sizeOf(std::uint64_t packet) const {
    return m_packetSize > 0 ? m_packetSize : static_cast<std::uint32_t>(numberAt(m_sizes, packet * 4, 4));
}

std::optional<std::vector<Mp4Sound::TimeRun>> Mp4Sound::timeRuns() const {
    std::vector<TimeRun> runs;
    std::uint64_t packet = 0;
    std::int64_t start = 0;
    for (std::size_t at = 0; at < m_times.size(); at += 8) {
        const std::uint64_t count = numberAt(m_times, at, 4);
        const auto duration = static_cast<std::uint32_t>(numberAt(m_times, at + 4, 4));
        if (count > kMaximumPackets || start > kMost) {
            return std::nullopt;
        }
        runs.push_back({packet, count, start, duration});
        packet += count;
        start += static_cast<std::int64_t>(count) * duration;
    }
    return runs;
}

bool Mp4Sound::forEachPacket(std::int64_t time, std::uint64_t preroll,
                             const std::function<bool(std::int64_t, const Mp4Packet&)>& visit) const {
    const auto runs = timeRuns();
    if (!runs || runs->empty()) {
        return runs.has_value();
    }
    std::uint64_t first = 0;
    for (const TimeRun& run : *runs) {
        if (time >= run.start && run.duration > 0 && run.count > 0) {
            first = run.packet + std::min(static_cast<std::uint64_t>((time - run.start) / run.duration), run.count - 1);
        }
    }
    first -= std::min(first, preroll);
    const std::uint64_t end = std::min(runs->back().packet + runs->back().count, m_packets);

    const std::size_t chunks = m_chunks.size() / m_chunkBytes;
    std::size_t timeRun = 0;
    std::uint64_t packet = 0;
    for (std::size_t at = 0; at < m_chunkRuns.size(); at += 12) {
        const std::uint64_t firstChunk = numberAt(m_chunkRuns, at, 4);
        const std::uint64_t perChunk = numberAt(m_chunkRuns, at + 4, 4);
        const std::uint64_t nextChunk = at + 12 < m_chunkRuns.size() ? numberAt(m_chunkRuns, at + 12, 4) : chunks + 1;
        if (firstChunk < 1 || nextChunk <= firstChunk || nextChunk > chunks + 1 || perChunk == 0) {
            return false;
        }
        // Whole chunks before the first packet are passed over at once.
        std::uint64_t chunk = firstChunk;
        if (first > packet) {
            const std::uint64_t passed = std::min((first - packet) / perChunk, nextChunk - firstChunk);
            chunk += passed;
            packet += passed * perChunk;
        }
        for (; chunk < nextChunk; ++chunk) {
            auto offset = static_cast<std::int64_t>(numberAt(m_chunks, (chunk - 1) * m_chunkBytes, m_chunkBytes));
            if (offset < 0 || offset > kMost) {
                return false;
            }
            for (std::uint64_t i = 0; i < perChunk; ++i, ++packet) {
                if (packet >= end) {
                    return true;
                }
                const std::uint32_t size = sizeOf(packet);
                while (timeRun + 1 < runs->size() && (*runs)[timeRun + 1].packet <= packet) {
                    ++timeRun;
                }
                const TimeRun& run = (*runs)[timeRun];
                const std::int64_t begin = run.start + static_cast<std::int64_t>(packet - run.packet) * run.duration;
                if (packet >= first && !visit(begin, {offset, size, run.duration})) {
                    return true;
                }
                offset += size;
            }
        }
    }
    return true;
}

}  // namespace tavi
