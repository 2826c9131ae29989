#include "adapters/ffmpeg/exporting/Mp4SoundWriter.h"

#include <algorithm>
#include <limits>

#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

namespace {

/// Packets of a chunk: players read a chunk at once.
constexpr std::size_t kChunkPackets = 32;
constexpr std::size_t kDataHeaderBytes = 16;

std::span<const std::uint8_t> bytesOf(const char* text, std::size_t size) {
    return {reinterpret_cast<const std::uint8_t*>(text), size};
}

void zeros(Mp4Writer& writer, int words) {
    for (; words > 0; --words) {
        writer.u32(0);
    }
}

/// The matrix that changes nothing (8.2.2).
void unity(Mp4Writer& writer) {
    for (const std::uint32_t word : {0x10000U, 0U, 0U, 0U, 0x10000U, 0U, 0U, 0U, 0x40000000U}) {
        writer.u32(word);
    }
}

/// Begins a box of version 1 where long is set, with those flags.
void beginFull(Mp4Writer& writer, std::uint32_t type, bool isLong = false, std::uint32_t flags = 0) {
    writer.begin(type);
    writer.u32((isLong ? 1U << 24 : 0U) | flags);
}

/// A time in a box of version 0 or, where long is set, 1.
void writeTime(Mp4Writer& writer, bool isLong, std::int64_t value) {
    isLong ? writer.u64(static_cast<std::uint64_t>(value)) : writer.u32(static_cast<std::uint64_t>(value));
}

void writeMovieHeader(Mp4Writer& writer, bool isLong, const Mp4SoundDescription& sound) {
    beginFull(writer, mp4Type("mvhd"), isLong);
    writeTime(writer, isLong, 0);
    writeTime(writer, isLong, 0);
    writer.u32(sound.timeScale);
    writeTime(writer, isLong, sound.duration);
    writer.u32(0x10000);
    writer.u32(0x1000000);
    zeros(writer, 2);
    unity(writer);
    zeros(writer, 6);
    writer.u32(2);
    writer.end();
}

/// The track's header and its edit list.
void writeTrackHeaders(Mp4Writer& writer, bool isLong, const Mp4SoundDescription& sound) {
    // Enabled, and part of the movie.
    beginFull(writer, mp4Type("tkhd"), isLong, 3);
    writeTime(writer, isLong, 0);
    writeTime(writer, isLong, 0);
    writer.u32(1);
    writer.u32(0);
    writeTime(writer, isLong, sound.duration);
    zeros(writer, 2);
    writer.u32(1);
    writer.u32(0x1000000);
    unity(writer);
    zeros(writer, 2);
    writer.end();
    writer.begin(mp4Type("edts"));
    beginFull(writer, mp4Type("elst"), isLong);
    writer.u32(1);
    writeTime(writer, isLong, sound.duration);
    writeTime(writer, isLong, sound.start);
    writer.u32(0x10000);
    writer.end();
    writer.end();
}

/// The media's header, of which kind they are, and where.
void writeMediaHeaders(Mp4Writer& writer, bool isLong, std::uint32_t timeScale, std::int64_t duration) {
    beginFull(writer, mp4Type("mdhd"), isLong);
    writeTime(writer, isLong, 0);
    writeTime(writer, isLong, 0);
    writer.u32(timeScale);
    writeTime(writer, isLong, duration);
    // No language.
    writer.u32(0x55c40000);
    writer.end();
    beginFull(writer, mp4Type("hdlr"));
    writer.u32(0);
    writer.u32(mp4Type("soun"));
    zeros(writer, 3);
    writer.bytes(bytesOf("SoundHandler\0", 13));
    writer.end();
}

void writeInformation(Mp4Writer& writer) {
    beginFull(writer, mp4Type("smhd"));
    writer.u32(0);
    writer.end();
    writer.begin(mp4Type("dinf"));
    beginFull(writer, mp4Type("dref"));
    writer.u32(1);
    beginFull(writer, mp4Type("url "), false, 1);
    writer.end();
    writer.end();
    writer.end();
}

}  // namespace

Mp4SoundWriter::Mp4SoundWriter(ExportFile& file) : m_file(file) {
    Mp4Writer writer;
    writer.begin(mp4Type("ftyp"));
    writer.u32(mp4Type("M4A "));
    writer.u32(512);
    for (const std::uint32_t brand : {mp4Type("M4A "), mp4Type("isom"), mp4Type("iso2")}) {
        writer.u32(brand);
    }
    writer.end();
    m_dataOffset = static_cast<std::int64_t>(writer.data().size());
    writer.u32(1);
    writer.u32(mp4Type("mdat"));
    writer.u64(0);
    m_file.append(writer.data());
}

void Mp4SoundWriter::add(std::uint32_t size, std::uint32_t duration) {
    m_packets.push_back({size, duration});
    m_duration += duration;
}

void Mp4SoundWriter::endAt(std::int64_t time) {
    if (!m_packets.empty() && time < m_duration && m_duration - time < m_packets.back().duration) {
        m_packets.back().duration -= static_cast<std::uint32_t>(m_duration - time);
        m_duration = time;
    }
}

void Mp4SoundWriter::finish(const Mp4SoundDescription& sound) {
    const bool isLong = m_duration > std::numeric_limits<std::uint32_t>::max();
    const std::int64_t movieOffset = m_file.size();
    Mp4Writer writer;
    writer.begin(mp4Type("moov"));
    writeMovieHeader(writer, isLong, sound);
    writer.begin(mp4Type("trak"));
    writeTrackHeaders(writer, isLong, sound);
    writer.begin(mp4Type("mdia"));
    writeMediaHeaders(writer, isLong, sound.timeScale, m_duration);
    writer.begin(mp4Type("minf"));
    writeInformation(writer);
    writer.begin(mp4Type("stbl"));
    writer.bytes(sound.description);
    writeTables(writer);
    for (int open = 5; open > 1; --open) {
        writer.end();
    }
    writer.bytes(sound.userData);
    writer.end();
    m_file.append(writer.data());

    Mp4Writer data;
    data.u32(1);
    data.u32(mp4Type("mdat"));
    data.u64(static_cast<std::uint64_t>(movieOffset - m_dataOffset));
    m_file.overwrite(data.data(), m_dataOffset);
}

void Mp4SoundWriter::writeTables(Mp4Writer& writer) const {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> times;
    for (const Packet& packet : m_packets) {
        if (times.empty() || times.back().second != packet.duration) {
            times.emplace_back(0, packet.duration);
        }
        ++times.back().first;
    }
    beginFull(writer, mp4Type("stts"));
    writer.u32(times.size());
    for (const auto& [count, duration] : times) {
        writer.u32(count);
        writer.u32(duration);
    }
    writer.end();

    const std::size_t chunks = (m_packets.size() + kChunkPackets - 1) / kChunkPackets;
    const std::size_t last = m_packets.size() - (chunks - 1) * kChunkPackets;
    const bool isLastShort = chunks > 1 && last < kChunkPackets;
    beginFull(writer, mp4Type("stsc"));
    writer.u32(isLastShort ? 2 : 1);
    writer.u32(1);
    writer.u32(chunks > 1 ? kChunkPackets : last);
    writer.u32(1);
    if (isLastShort) {
        writer.u32(chunks);
        writer.u32(last);
        writer.u32(1);
    }
    writer.end();

    beginFull(writer, mp4Type("stsz"));
    writer.u32(0);
    writer.u32(m_packets.size());
    for (const Packet& packet : m_packets) {
        writer.u32(packet.size);
    }
    writer.end();

    beginFull(writer, mp4Type("co64"));
    writer.u32(chunks);
    std::uint64_t offset = static_cast<std::uint64_t>(m_dataOffset) + kDataHeaderBytes;
    for (std::size_t i = 0; i < m_packets.size(); ++i) {
        if (i % kChunkPackets == 0) {
            writer.u64(offset);
        }
        offset += m_packets[i].size;
    }
    writer.end();
}

std::vector<std::uint8_t> mp4AacDescription(std::span<const std::uint8_t> config, std::uint32_t channels,
                                            std::uint32_t sampleRate) {
    constexpr std::uint32_t kMpeg4Audio = 0x40;
    constexpr std::uint32_t kAudioStream = 0x15;
    const auto length = static_cast<std::uint32_t>(config.size());
    Mp4Writer writer;
    beginFull(writer, mp4Type("stsd"));
    writer.u32(1);
    writer.begin(mp4Type("mp4a"));
    writer.u32(0);
    // The reference to this file, and reserved words.
    writer.u32(1);
    zeros(writer, 2);
    writer.u32(channels << 16 | 16);
    writer.u32(0);
    writer.u32(sampleRate < 65536 ? sampleRate << 16 : 0);
    beginFull(writer, mp4Type("esds"));
    // Descriptors of ISO/IEC 14496-1, 7.2.6: a tag, a length below 128, contents.
    const auto byte = [&writer](std::uint32_t value) {
        const auto narrow = static_cast<std::uint8_t>(value);
        writer.bytes({&narrow, 1});
    };
    byte(3);
    byte(3 + 2 + 13 + 2 + length + 3);
    writer.bytes(bytesOf("\0\1\0", 3));
    byte(4);
    byte(13 + 2 + length);
    byte(kMpeg4Audio);
    byte(kAudioStream);
    writer.bytes(bytesOf("\0\0\0", 3));
    zeros(writer, 2);
    byte(5);
    byte(length);
    writer.bytes(config);
    writer.bytes(bytesOf("\6\1\2", 3));
    writer.end();
    writer.end();
    writer.end();
    return {writer.data().begin(), writer.data().end()};
}

}  // namespace tavi
