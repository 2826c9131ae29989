#include "sound/mp4/Mp4MovieWriter.h"

#include <algorithm>
#include <limits>

#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

namespace {

constexpr std::uint64_t kLargest32 = std::numeric_limits<std::uint32_t>::max();
/// Players read a chunk at once.
constexpr std::size_t kChunkPackets = 32;
/// What is handed to the sink at once.
constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

void zeros(ByteWriter& writer, int words) {
    for (; words > 0; --words) {
        writer.u32(0);
    }
}

/// The matrix that changes nothing (8.2.2).
void unity(ByteWriter& writer) {
    for (const std::uint32_t word : {0x10000U, 0U, 0U, 0U, 0x10000U, 0U, 0U, 0U, 0x40000000U}) {
        writer.u32(word);
    }
}

void time(ByteWriter& writer, bool isLong, std::uint64_t value) {
    isLong ? writer.u64(value) : writer.u32(value);
}

/// The start of a box "mvhd" or "mdhd": neither is dated.
void beginHeader(Mp4BoxWriter& writer, std::uint32_t type, bool isLong, std::uint32_t timeScale,
                 std::uint64_t duration) {
    writer.beginFull(type, isLong);
    time(writer, isLong, 0);
    time(writer, isLong, 0);
    writer.u32(timeScale);
    time(writer, isLong, duration);
}

void writeTrackHeader(Mp4BoxWriter& writer, bool isLong, std::uint64_t duration) {
    constexpr std::uint32_t kEnabledAndInMovie = 3;
    writer.beginFull(mp4Type("tkhd"), isLong, kEnabledAndInMovie);
    time(writer, isLong, 0);
    time(writer, isLong, 0);
    writer.u32(1);
    writer.u32(0);
    time(writer, isLong, duration);
    zeros(writer, 2);
    writer.u32(1);
    writer.u32(0x1000000);
    unity(writer);
    zeros(writer, 2);
    writer.end();
}

void writeEditList(Mp4BoxWriter& writer, bool isLong, const Mp4MovieDescription& sound) {
    writer.begin(mp4Type("edts"));
    writer.beginFull(mp4Type("elst"), isLong);
    writer.u32(1);
    time(writer, isLong, static_cast<std::uint64_t>(sound.duration));
    time(writer, isLong, static_cast<std::uint64_t>(sound.start));
    writer.u32(0x10000);
    writer.end();
    writer.end();
}

/// What kind of media they are, and that they are in this file.
void writeInformation(Mp4BoxWriter& writer) {
    writer.beginFull(mp4Type("smhd"));
    writer.u32(0);
    writer.end();
    writer.begin(mp4Type("dinf"));
    writer.beginFull(mp4Type("dref"));
    writer.u32(1);
    writer.beginFull(mp4Type("url "), false, 1);
    writer.end();
    writer.end();
    writer.end();
}

void writeHandler(Mp4BoxWriter& writer) {
    writer.beginFull(mp4Type("hdlr"));
    writer.u32(0);
    writer.u32(mp4Type("soun"));
    zeros(writer, 3);
    for (const char letter : "SoundHandler") {
        writer.u8(static_cast<std::uint8_t>(letter));
    }
    writer.end();
}

/// Gathers equal values that follow each other.
class RunLength {
public:
    using Finished = std::function<void(std::uint64_t count, std::uint64_t value)>;

    explicit RunLength(Finished finished) : m_finished(std::move(finished)) {}

    void add(std::uint64_t value) {
        if (value != m_value) {
            finish();
            m_value = value;
        }
        ++m_count;
    }
    void finish() {
        if (m_count > 0) {
            m_finished(m_count, m_value);
        }
        m_count = 0;
    }

private:
    Finished m_finished;
    std::uint64_t m_count = 0;
    std::uint64_t m_value = 0;
};

/// Writes the boxes "stts", "stsc", "stsz" and "co64" (8.6.1.2, 8.7.4, 8.7.3.2, 8.7.5) in blocks.
class TableWriter {
public:
    TableWriter(const Mp4Totals& totals, const Mp4Runs& runs, const Mp4Sink& sink)
        : m_totals(totals), m_runs(runs), m_sink(sink) {}

    static std::uint64_t bytes(const Mp4Totals& totals) {
        return timesBytes(totals) + chunksBytes(totals) + sizesBytes(totals) + offsetsBytes(totals);
    }
    FileResult<void> write() {
        FileResult<void> result = writeTimes();
        result = result ? writeChunks() : result;
        result = result ? writeSizes() : result;
        result = result ? writeOffsets() : result;
        flush();
        return result;
    }

private:
    static std::uint64_t timesBytes(const Mp4Totals& totals) { return 16 + 8 * totals.timeRuns; }
    static std::uint64_t chunksBytes(const Mp4Totals& totals) { return 16 + 12 * totals.chunkRuns; }
    static std::uint64_t sizesBytes(const Mp4Totals& totals) { return 20 + 4 * totals.samples; }
    static std::uint64_t offsetsBytes(const Mp4Totals& totals) { return 16 + 8 * totals.chunks; }

    void begin(std::uint32_t type, std::uint64_t bytes) {
        m_block.u32(bytes);
        m_block.u32(type);
        m_block.u32(0);
    }
    void flush() { m_sink(m_block.release()); }
    void flushIfFull() {
        if (m_block.size() >= kBlockBytes) {
            flush();
        }
    }
    FileResult<void> writeTimes();
    FileResult<void> writeChunks();
    FileResult<void> writeSizes();
    FileResult<void> writeOffsets();

    const Mp4Totals& m_totals;
    const Mp4Runs& m_runs;
    const Mp4Sink& m_sink;
    ByteWriter m_block;
};

FileResult<void> TableWriter::writeTimes() {
    begin(mp4Type("stts"), timesBytes(m_totals));
    m_block.u32(m_totals.timeRuns);
    RunLength times([this](std::uint64_t count, std::uint64_t duration) {
        m_block.u32(count);
        m_block.u32(duration);
        flushIfFull();
    });
    FileResult<void> result = m_runs([&](const Mp4Run& run) {
        for (const Mp4Sample& sample : run.samples) {
            times.add(sample.duration);
        }
    });
    times.finish();
    return result;
}

FileResult<void> TableWriter::writeChunks() {
    begin(mp4Type("stsc"), chunksBytes(m_totals));
    m_block.u32(m_totals.chunkRuns);
    std::uint64_t firstChunk = 1;
    RunLength chunks([&](std::uint64_t count, std::uint64_t samples) {
        m_block.u32(firstChunk);
        m_block.u32(samples);
        m_block.u32(1);
        firstChunk += count;
        flushIfFull();
    });
    FileResult<void> result = m_runs([&](const Mp4Run& run) { chunks.add(run.samples.size()); });
    chunks.finish();
    return result;
}

FileResult<void> TableWriter::writeSizes() {
    begin(mp4Type("stsz"), sizesBytes(m_totals));
    m_block.u32(0);
    m_block.u32(m_totals.samples);
    return m_runs([&](const Mp4Run& run) {
        for (const Mp4Sample& sample : run.samples) {
            m_block.u32(sample.size);
        }
        flushIfFull();
    });
}

FileResult<void> TableWriter::writeOffsets() {
    begin(mp4Type("co64"), offsetsBytes(m_totals));
    m_block.u32(m_totals.chunks);
    return m_runs([&](const Mp4Run& run) {
        m_block.u64(static_cast<std::uint64_t>(run.offset));
        flushIfFull();
    });
}

/// The whole header but for the tables, which are the last thing in every box around them.
std::vector<std::uint8_t> headerBefore(std::uint64_t tableBytes, const Mp4MovieDescription& sound,
                                       std::uint64_t mediaDuration) {
    const bool isLong = mediaDuration > kLargest32;
    const auto duration = static_cast<std::uint64_t>(sound.duration);
    Mp4BoxWriter writer;
    writer.begin(mp4Type("moov"));
    beginHeader(writer, mp4Type("mvhd"), isLong, sound.timeScale, duration);
    writer.u32(0x10000);
    writer.u32(0x1000000);
    zeros(writer, 2);
    unity(writer);
    zeros(writer, 6);
    writer.u32(2);
    writer.end();
    writer.bytes(sound.userData);
    writer.begin(mp4Type("trak"));
    writeTrackHeader(writer, isLong, duration);
    if (duration > 0) {
        writeEditList(writer, isLong, sound);
    }
    writer.begin(mp4Type("mdia"));
    beginHeader(writer, mp4Type("mdhd"), isLong, sound.timeScale, mediaDuration);
    constexpr std::uint32_t kNoLanguage = 0x55c40000;
    writer.u32(kNoLanguage);
    writer.end();
    writeHandler(writer);
    writer.begin(mp4Type("minf"));
    writeInformation(writer);
    writer.begin(mp4Type("stbl"));
    writer.bytes(sound.description);
    for (int open = 5; open > 0; --open) {
        writer.end(tableBytes);
    }
    return writer.release();
}

}  // namespace

std::vector<std::uint8_t> mp4FileHead(std::uint64_t dataBytes) {
    constexpr std::uint64_t kDataHeaderBytes = 16;
    Mp4BoxWriter writer;
    writer.begin(mp4Type("ftyp"));
    writer.u32(mp4Type("M4A "));
    writer.u32(512);
    for (const std::uint32_t brand : {mp4Type("M4A "), mp4Type("isom"), mp4Type("iso2")}) {
        writer.u32(brand);
    }
    writer.end();
    // The length that says that a long one follows.
    writer.u32(1);
    writer.u32(mp4Type("mdat"));
    writer.u64(kDataHeaderBytes + dataBytes);
    return writer.release();
}

Mp4Runs mp4RunsOf(std::span<const Mp4Sample> samples, std::int64_t offset) {
    return [samples, offset](const std::function<void(const Mp4Run&)>& visit) -> FileResult<void> {
        Mp4Run run{offset, {}};
        for (std::size_t at = 0; at < samples.size(); at += kChunkPackets) {
            run.samples = samples.subspan(at, std::min(kChunkPackets, samples.size() - at));
            visit(run);
            for (const Mp4Sample& sample : run.samples) {
                run.offset += sample.size;
            }
        }
        return {};
    };
}

FileResult<Mp4Totals> Mp4Totals::of(const Mp4Runs& runs) {
    Mp4Totals totals;
    RunLength times([&](std::uint64_t, std::uint64_t) { ++totals.timeRuns; });
    RunLength chunks([&](std::uint64_t, std::uint64_t) { ++totals.chunkRuns; });
    const FileResult<void> read = runs([&](const Mp4Run& run) {
        ++totals.chunks;
        chunks.add(run.samples.size());
        totals.samples += run.samples.size();
        for (const Mp4Sample& sample : run.samples) {
            times.add(sample.duration);
            totals.duration += sample.duration;
        }
    });
    if (!read) {
        return tl::unexpected(read.error());
    }
    times.finish();
    chunks.finish();
    return totals;
}

FileResult<void> writeMp4Movie(const Mp4MovieDescription& sound, const Mp4Totals& totals, const Mp4Runs& runs,
                               const Mp4Sink& sink) {
    const std::uint64_t tableBytes = TableWriter::bytes(totals);
    if (tableBytes > kLargest32 / 2) {
        return fileFailure("The sound has too many packets for a file of this kind.");
    }
    sink(headerBefore(tableBytes, sound, totals.duration));
    return TableWriter(totals, runs, sink).write();
}

}  // namespace tavi
