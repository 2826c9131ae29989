#include "sound/mp4/Mp4TableReader.h"

#include <algorithm>

namespace tavi {

namespace {

/// Two days of AAC at 44.1 kHz.
constexpr std::uint64_t kMaximumPackets = std::uint64_t{8} << 20;
constexpr std::uint64_t kMaximumRuns = std::uint64_t{1} << 20;
/// More than any time or offset in a file, and so little that no sum overflows.
constexpr std::uint64_t kMost = std::uint64_t{1} << 60;

/// The entries of a table, after version, flags and count; nothing when the table is too short for them.
std::optional<Mp4Numbers> numbersOf(int fd, const Mp4Box& box, std::size_t bytes) {
    const auto count = Mp4Numbers(fd, box.body, 2, 4).at(1);
    const auto room = static_cast<std::uint64_t>(std::max<std::int64_t>(0, box.end - box.body - 8));
    return count && *count <= room / bytes ? std::optional(Mp4Numbers(fd, box.body + 8, *count, bytes)) : std::nullopt;
}

/// The numbers of a table of runs, which is short, so many in each entry.
std::optional<std::vector<std::uint32_t>> runsOf(int fd, const Mp4Box& box, std::uint32_t numbers) {
    const auto body = readMp4Bytes(fd, box.body, box.end);
    ByteReader reader(body ? std::span<const std::uint8_t>(*body) : std::span<const std::uint8_t>{});
    reader.skip(4);
    const std::uint64_t count = reader.u32();
    if (!reader.ok() || count > kMaximumRuns || count * numbers * 4 > reader.rest().size()) {
        return std::nullopt;
    }
    std::vector<std::uint32_t> runs(count * numbers);
    std::generate(runs.begin(), runs.end(), [&] { return reader.u32(); });
    return runs;
}

}  // namespace

std::optional<std::uint64_t> Mp4Numbers::at(std::uint64_t index) const {
    if (index >= m_count) {
        return std::nullopt;
    }
    ByteReader number(m_file.at(m_offset + static_cast<std::int64_t>(index * m_bytes), m_bytes));
    const std::uint64_t value = m_bytes == 8 ? number.u64() : number.u32();
    return number.ok() ? std::optional(value) : std::nullopt;
}

std::optional<Mp4TableReader> Mp4TableReader::open(int fd, const std::vector<Mp4Box>& boxes) {
    const Mp4Box* times = findMp4Box(boxes, mp4Type("stts"));
    const Mp4Box* runs = findMp4Box(boxes, mp4Type("stsc"));
    const Mp4Box* sizes = findMp4Box(boxes, mp4Type("stsz"));
    const Mp4Box* shortOffsets = findMp4Box(boxes, mp4Type("stco"));
    const Mp4Box* offsets = shortOffsets != nullptr ? shortOffsets : findMp4Box(boxes, mp4Type("co64"));
    if (times == nullptr || runs == nullptr || sizes == nullptr || offsets == nullptr) {
        return std::nullopt;
    }
    Mp4TableReader tables;
    const auto chunks = numbersOf(fd, *offsets, shortOffsets != nullptr ? 4 : 8);
    if (!chunks) {
        return std::nullopt;
    }
    tables.m_chunks = *chunks;
    if (!tables.readTimes(fd, *times) || !tables.readChunks(fd, *runs) || !tables.readSizes(fd, *sizes)) {
        return std::nullopt;
    }
    const std::uint64_t sized = tables.m_packets;
    tables.m_packets = std::min({sized, tables.m_timedPackets, tables.m_chunkedPackets});
    tables.m_isWhole = tables.m_isWhole && sized == tables.m_timedPackets && sized == tables.m_chunkedPackets;
    return tables;
}

bool Mp4TableReader::readTimes(int fd, const Mp4Box& box) {
    const auto runs = runsOf(fd, box, 2);
    std::int64_t start = 0;
    for (std::size_t i = 0; runs && i < runs->size(); i += 2) {
        const std::uint32_t count = (*runs)[i];
        const std::uint32_t duration = (*runs)[i + 1];
        if (count > kMaximumPackets || start > static_cast<std::int64_t>(kMost)) {
            return false;
        }
        m_isWhole = m_isWhole && count > 0 && duration > 0;
        m_timeRuns.push_back({m_timedPackets, start, count, duration});
        m_timedPackets += count;
        start += std::int64_t{count} * duration;
    }
    return runs.has_value();
}

bool Mp4TableReader::readChunks(int fd, const Mp4Box& box) {
    const auto runs = runsOf(fd, box, 3);
    const std::uint64_t chunks = m_chunks.count();
    for (std::size_t i = 0; runs && i < runs->size(); i += 3) {
        const std::uint32_t first = (*runs)[i];
        const std::uint32_t perChunk = (*runs)[i + 1];
        const std::uint64_t next = i + 3 < runs->size() ? (*runs)[i + 3] : chunks + 1;
        if (first < 1 || next <= first || next > chunks + 1 || perChunk == 0 || m_chunkedPackets > kMost >> 16) {
            return false;
        }
        m_isWhole = m_isWhole && (i > 0 || first == 1) && (*runs)[i + 2] == 1;
        m_chunkRuns.push_back({m_chunkedPackets, first - 1, perChunk});
        m_chunkedPackets += std::min((next - first) * perChunk, kMost >> 16);
    }
    return runs.has_value();
}

bool Mp4TableReader::readSizes(int fd, const Mp4Box& box) {
    const Mp4Numbers head(fd, box.body, 3, 4);
    const auto size = head.at(1);
    const auto count = head.at(2);
    const std::int64_t room = box.end - box.body - 12;
    if (!size || !count || room < 0 || *count > kMaximumPackets ||
        (*size == 0 && *count > static_cast<std::uint64_t>(room) / 4)) {
        return false;
    }
    m_packetSize = static_cast<std::uint32_t>(*size);
    m_packets = *count;
    m_sizes = Mp4Numbers(fd, box.body + 12, *count, 4);
    return true;
}

std::optional<std::uint64_t> Mp4TableReader::sizeOf(std::uint64_t packet) const {
    return m_packetSize > 0 ? m_packetSize : m_sizes.at(packet);
}

std::uint64_t Mp4TableReader::packetAt(std::int64_t time) const {
    const auto behind = std::upper_bound(m_timeRuns.begin(), m_timeRuns.end(), time,
                                         [](std::int64_t at, const TimeRun& run) { return at < run.start; });
    for (auto run = behind; run != m_timeRuns.begin();) {
        --run;
        if (run->duration > 0 && run->count > 0) {
            const auto passed = static_cast<std::uint64_t>((time - run->start) / run->duration);
            return run->packet + std::min<std::uint64_t>(passed, run->count - 1);
        }
    }
    return 0;
}

std::optional<Mp4TableReader::Place> Mp4TableReader::placeBefore(std::uint64_t packet) const {
    Place place;
    place.packet = std::min(packet, m_packets);
    if (place.packet == m_packets) {
        return place;
    }
    const auto last = [&](const auto& runs) {
        const auto behind = std::upper_bound(runs.begin(), runs.end(), place.packet,
                                             [](std::uint64_t at, const auto& run) { return at < run.packet; });
        return static_cast<std::size_t>(behind - runs.begin()) - 1;
    };
    place.timeRun = last(m_timeRuns);
    place.chunkRun = last(m_chunkRuns);
    const ChunkRun& run = m_chunkRuns[place.chunkRun];
    const std::uint64_t before = (place.packet - run.packet) % run.perChunk;
    const auto offset = m_chunks.at(run.chunk + (place.packet - run.packet) / run.perChunk);
    if (!offset || *offset > kMost) {
        return std::nullopt;
    }
    place.offset = static_cast<std::int64_t>(*offset);
    for (std::uint64_t i = place.packet - before; i < place.packet; ++i) {
        const auto size = sizeOf(i);
        if (!size) {
            return std::nullopt;
        }
        place.offset += static_cast<std::int64_t>(*size);
    }
    return place;
}

bool Mp4TableReader::next(Place& place, std::int64_t& start, Mp4Packet& packet) const {
    if (place.packet >= m_packets) {
        return false;
    }
    while (place.timeRun + 1 < m_timeRuns.size() && m_timeRuns[place.timeRun + 1].packet <= place.packet) {
        ++place.timeRun;
    }
    while (place.chunkRun + 1 < m_chunkRuns.size() && m_chunkRuns[place.chunkRun + 1].packet <= place.packet) {
        ++place.chunkRun;
    }
    const ChunkRun& chunks = m_chunkRuns[place.chunkRun];
    const std::uint64_t inRun = place.packet - chunks.packet;
    if (inRun % chunks.perChunk == 0) {
        const auto offset = m_chunks.at(chunks.chunk + inRun / chunks.perChunk);
        if (!offset || *offset > kMost) {
            return false;
        }
        place.offset = static_cast<std::int64_t>(*offset);
    }
    const auto size = sizeOf(place.packet);
    if (!size) {
        return false;
    }
    const TimeRun& times = m_timeRuns[place.timeRun];
    packet = {place.offset, static_cast<std::uint32_t>(*size), times.duration};
    start = times.start + static_cast<std::int64_t>(place.packet - times.packet) * times.duration;
    place.offset += packet.size;
    ++place.packet;
    return true;
}

}  // namespace tavi
