#include "sound/mp4/Mp4Sound.h"

#include <algorithm>
#include <array>
#include <deque>
#include <initializer_list>
#include <string_view>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

std::uint64_t numberAt(std::span<const std::uint8_t> bytes, std::size_t offset, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value = value << 8 | bytes[offset + i];
    }
    return value;
}

std::vector<Mp4Box> boxesIn(int fd, const Mp4Box& parent) {
    return readMp4Boxes(fd, parent.body, parent.end).value_or(std::vector<Mp4Box>{});
}

/// The first box that lies there by a way of types.
std::optional<Mp4Box> boxBelow(int fd, Mp4Box box, std::initializer_list<std::uint32_t> way) {
    for (const std::uint32_t type : way) {
        const auto children = boxesIn(fd, box);
        const Mp4Box* child = findMp4Box(children, type);
        if (child == nullptr) {
            return std::nullopt;
        }
        box = *child;
    }
    return box;
}

/// The first bytes of a box's body, zeros where it has fewer.
template <std::size_t Size>
std::array<std::uint8_t, Size> startOf(int fd, const std::optional<Mp4Box>& box) {
    std::array<std::uint8_t, Size> bytes{};
    if (box) {
        const auto room = static_cast<std::size_t>(std::max<std::int64_t>(0, box->end - box->body));
        readFully(fd, bytes.data(), std::min(Size, room), box->body);
    }
    return bytes;
}

/// A duration in units of another time scale, to the nearest; nothing when it is longer than any sound.
std::optional<std::int64_t> rescaled(std::uint64_t duration, std::uint32_t to, std::uint32_t from) {
    constexpr std::uint64_t kLongest = std::uint64_t{1} << 62;
    const std::uint64_t whole = duration / from;
    if (whole > kLongest / std::max(to, 1U)) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(whole * to + (duration % from * to + from / 2) / from);
}

/// The time scale in a box "mvhd" or "mdhd"; 0 where there is none.
std::uint32_t timeScaleOf(int fd, const std::optional<Mp4Box>& box) {
    const auto bytes = startOf<24>(fd, box);
    return static_cast<std::uint32_t>(numberAt(bytes, bytes[0] == 1 ? 20 : 12, 4));
}

bool isSoundTrack(int fd, const Mp4Box& track) {
    const auto handler = boxBelow(fd, track, {mp4Type("mdia"), mp4Type("hdlr")});
    return numberAt(startOf<12>(fd, handler), 8, 4) == mp4Type("soun");
}

/// Whether each box is of one of these types and none comes twice.
bool areUsual(const std::vector<Mp4Box>& boxes, std::initializer_list<std::uint32_t> types) {
    return std::all_of(boxes.begin(), boxes.end(), [&](const Mp4Box& box) {
        return std::find(types.begin(), types.end(), box.type) != types.end() &&
               findMp4Box(boxes, box.type)->offset == box.offset;
    });
}

/// Whether the only data that the track refers to are in its own file.
bool isSelfContained(int fd, const Mp4Box& information) {
    const auto bytes = startOf<20>(fd, boxBelow(fd, information, {mp4Type("dinf"), mp4Type("dref")}));
    return numberAt(bytes, 4, 4) == 1 && numberAt(bytes, 12, 4) == mp4Type("url ") && numberAt(bytes, 16, 4) == 1;
}

/// Whether a box names the remark in which some programs write how much of the start and end is not to be heard.
bool hasGaplessRemark(int fd, const Mp4Box& box) {
    constexpr std::string_view kName = "iTunSMPB";
    std::array<char, 16384> window{};
    for (std::int64_t at = box.body; at < box.end;) {
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(box.end - at, window.size()));
        const std::size_t count = readFully(fd, window.data(), wanted, at);
        if (std::string_view(window.data(), count).find(kName) != std::string_view::npos) {
            return true;
        }
        if (count < window.size()) {
            break;
        }
        at += static_cast<std::int64_t>(count - kName.size());
    }
    return false;
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
    Mp4Sound sound(fd);
    const auto boxes = readMp4Boxes(fd, 0, size).value_or(std::vector<Mp4Box>{});
    sound.m_isPlain = !boxes.empty() && std::all_of(boxes.begin(), boxes.end(), [&](const Mp4Box& box) {
        constexpr std::array kHarmless = {mp4Type("ftyp"), mp4Type("mdat"), mp4Type("free"), mp4Type("skip"),
                                          mp4Type("wide")};
        return box.offset == movie->offset ||
               std::find(kHarmless.begin(), kHarmless.end(), box.type) != kHarmless.end();
    });
    return sound.readMovie(*movie) ? std::optional(std::move(sound)) : std::nullopt;
}

bool Mp4Sound::readMovie(const Mp4Box& movie) {
    const auto children = boxesIn(m_fd, movie);
    if (findMp4Box(children, mp4Type("mvex")) != nullptr) {
        auto fragments = Mp4Fragments::open(m_fd);
        if (!fragments) {
            return false;
        }
        m_fragments = std::move(*fragments);
        m_isPlain = false;
    }
    const Mp4Box* track = nullptr;
    for (const Mp4Box& child : children) {
        if (child.type == mp4Type("trak") && isSoundTrack(m_fd, child)) {
            if (track != nullptr) {
                return false;
            }
            track = &child;
        }
        m_isPlain = m_isPlain && (child.type == mp4Type("trak") ? &child == track : !hasGaplessRemark(m_fd, child));
    }
    if (const Mp4Box* data = findMp4Box(children, mp4Type("udta"))) {
        m_userData = *data;
    }
    return track != nullptr && readTrack(*track, timeScaleOf(m_fd, boxBelow(m_fd, movie, {mp4Type("mvhd")})));
}

std::vector<std::uint8_t> Mp4Sound::userData() const {
    const auto bytes = m_userData ? readMp4Bytes(m_fd, m_userData->offset, m_userData->end) : std::nullopt;
    return bytes.value_or(std::vector<std::uint8_t>{});
}

bool Mp4Sound::readTrack(const Mp4Box& track, std::uint32_t movieTimeScale) {
    const auto children = boxesIn(m_fd, track);
    const Mp4Box* media = findMp4Box(children, mp4Type("mdia"));
    for (const Mp4Box& child : children) {
        m_isPlain = m_isPlain && (&child == media || !hasGaplessRemark(m_fd, child));
    }
    m_isPlain = m_isPlain && areUsual(children, {mp4Type("tkhd"), mp4Type("edts"), mp4Type("mdia"), mp4Type("udta"),
                                                 mp4Type("meta"), mp4Type("free")});
    const auto list = boxBelow(m_fd, track, {mp4Type("edts"), mp4Type("elst")});
    return media != nullptr && readMedia(*media) && (!list || readEdits(*list, movieTimeScale));
}

bool Mp4Sound::readMedia(const Mp4Box& media) {
    m_timeScale = timeScaleOf(m_fd, boxBelow(m_fd, media, {mp4Type("mdhd")}));
    const auto information = boxBelow(m_fd, media, {mp4Type("minf")});
    const auto tables = boxBelow(m_fd, media, {mp4Type("minf"), mp4Type("stbl")});
    m_isPlain = m_isPlain && information && isSelfContained(m_fd, *information);
    return m_timeScale > 0 && tables && readTables(*tables);
}

bool Mp4Sound::readTables(const Mp4Box& box) {
    const auto children = boxesIn(m_fd, box);
    const Mp4Box* description = findMp4Box(children, mp4Type("stsd"));
    if (description == nullptr || findMp4Box(children, mp4Type("ctts")) != nullptr) {
        return false;
    }
    m_isPlain = m_isPlain && areUsual(children, {mp4Type("stsd"), mp4Type("stts"), mp4Type("stsc"), mp4Type("stsz"),
                                                 mp4Type("stco"), mp4Type("co64"), mp4Type("sgpd"), mp4Type("sbgp")});
    auto bytes = readMp4Bytes(m_fd, description->offset, description->end);
    auto tables = Mp4PacketTables::open(m_fd, children);
    // One way of coding, in this file.
    const auto header = static_cast<std::size_t>(description->body - description->offset);
    if (!bytes || !tables || bytes->size() < header + 16 || numberAt(*bytes, header + 4, 4) != 1) {
        return false;
    }
    m_coding = static_cast<std::uint32_t>(numberAt(*bytes, header + 12, 4));
    m_description = std::move(*bytes);
    m_tables = std::move(*tables);
    return true;
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

/// The AudioSpecificConfig in the body of a box "esds"; empty where there is none.
std::span<const std::uint8_t> aacConfiguration(std::span<const std::uint8_t> body) {
    Mp4Reader reader(body);
    reader.skip(4);
    descriptor(reader, 3);
    reader.skip(3);
    descriptor(reader, 4);
    constexpr std::uint8_t kMpeg4Audio = 0x40;
    const bool isAac = reader.u8() == kMpeg4Audio;
    reader.skip(12);
    const auto config = descriptor(reader, 5);
    return reader.ok() && isAac ? config : std::span<const std::uint8_t>{};
}

/// AAC-LC by its AudioSpecificConfig (ISO/IEC 14496-3, 1.6.2.1).
std::optional<AudioStreamBasicDescription> aacFormat(std::span<const std::uint8_t> config, std::uint32_t timeScale) {
    constexpr std::array<std::uint32_t, 13> kRates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                                      22050, 16000, 12000, 11025, 8000,  7350};
    constexpr std::uint32_t kHighestRateWithReplication = 24000;
    if (config.size() < 2) {
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

std::span<const std::uint8_t> Mp4Sound::configuration() const {
    // The entry's own fields (ISO/IEC 14496-12, 12.2.3.2), behind the headers of both boxes.
    constexpr std::size_t kEntry = 16;
    constexpr std::size_t kFields = 8 + 28;
    const auto entry = std::span<const std::uint8_t>(m_description).subspan(kEntry);
    if (entry.size() < kFields || numberAt(entry, 0, 4) != entry.size() || numberAt(entry, 16, 2) != 0) {
        return {};
    }
    const bool isAac = m_coding == mp4Type("mp4a");
    const std::uint32_t type = isAac ? mp4Type("esds") : mp4Type("alac");
    const auto children = mp4Children(entry.subspan(kFields));
    const Mp4Child* child = children ? findMp4Child(*children, type) : nullptr;
    // Others, but for the bit rate, say more about the sound.
    if (child == nullptr || !std::all_of(children->begin(), children->end(), [&](const Mp4Child& other) {
            return other.type == type || other.type == mp4Type("btrt");
        })) {
        return {};
    }
    return isAac ? aacConfiguration(child->body) : child->whole;
}

std::optional<AudioStreamBasicDescription> Mp4Sound::format() const {
    const auto configuration = this->configuration();
    if (m_coding == mp4Type("mp4a")) {
        return aacFormat(configuration, m_timeScale);
    }
    // Behind the header of the box, and its version and flags.
    constexpr std::size_t kHeader = 12;
    AudioStreamBasicDescription format;
    format.formatID = kAudioFormatAppleLossless;
    if (m_coding != mp4Type("alac") || configuration.size() < kHeader + 24) {
        return std::nullopt;
    }
    format.framesPerPacket = static_cast<std::uint32_t>(numberAt(configuration, kHeader, 4));
    format.channelsPerFrame = configuration[kHeader + 9];
    format.sampleRate = static_cast<double>(numberAt(configuration, kHeader + 20, 4));
    const bool isSound = format.channelsPerFrame >= 1 && format.sampleRate == m_timeScale;
    return isSound ? std::optional(format) : std::nullopt;
}

bool Mp4Sound::readEdits(const Mp4Box& list, std::uint32_t movieTimeScale) {
    const auto bytes = startOf<28>(m_fd, list);
    Mp4Reader reader(std::span<const std::uint8_t>(bytes).first(
        static_cast<std::size_t>(std::clamp<std::int64_t>(list.end - list.body, 0, 28))));
    const bool isLong = reader.u32() >> 24 == 1;
    const std::uint32_t count = reader.u32();
    const std::uint64_t duration = isLong ? reader.u64() : reader.u32();
    m_start = isLong ? static_cast<std::int64_t>(reader.u64()) : static_cast<std::int32_t>(reader.u32());
    constexpr std::int64_t kLatest = std::int64_t{1} << 48;
    const bool isAtNormalSpeed = reader.u32() == 1U << 16;
    // An edit in a file that was still to grow says nothing of its length.
    if (!m_fragments && movieTimeScale > 0 && duration < static_cast<std::uint64_t>(kLatest)) {
        m_editedDuration = rescaled(duration, m_timeScale, movieTimeScale);
    }
    m_isPlain = m_isPlain && m_editedDuration.has_value();
    return reader.ok() && count == 1 && isAtNormalSpeed && m_start >= 0 && m_start < kLatest;
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
