#include "sound/mp4/Mp4Description.h"

#include <algorithm>
#include <array>

namespace tavi {

namespace {

constexpr std::uint32_t kMpeg4Audio = 0x40;
/// Tags of the descriptors of a stream, in which those of its decoder and of what that has to know lie
/// (ISO/IEC 14496-1, 7.2.6).
constexpr std::uint8_t kStreamTag = 3;
constexpr std::uint8_t kDecoderTag = 4;
constexpr std::uint8_t kSpecificTag = 5;
constexpr std::uint8_t kSyncTag = 6;

/// Steps into a descriptor; its contents, empty where there is another or none.
std::span<const std::uint8_t> descriptor(ByteReader& reader, std::uint8_t tag) {
    std::size_t length = 0;
    const bool isRight = reader.u8() == tag;
    for (int i = 0; i < 4; ++i) {
        const std::uint8_t byte = reader.u8();
        length = length << 7 | (byte & 0x7fU);
        if ((byte & 0x80) == 0) {
            break;
        }
    }
    return isRight && length <= reader.rest().size() ? reader.rest().first(length) : std::span<const std::uint8_t>{};
}

/// The AudioSpecificConfig in the body of a box "esds"; empty where there is none.
std::span<const std::uint8_t> aacConfiguration(std::span<const std::uint8_t> body) {
    ByteReader reader(body);
    reader.skip(4);
    descriptor(reader, kStreamTag);
    reader.skip(3);
    descriptor(reader, kDecoderTag);
    const bool isAac = reader.u8() == kMpeg4Audio;
    reader.skip(12);
    const auto config = descriptor(reader, kSpecificTag);
    return reader.ok() && isAac ? config : std::span<const std::uint8_t>{};
}

/// AAC-LC by its AudioSpecificConfig (ISO/IEC 14496-3, 1.6.2.1).
std::optional<AudioStreamBasicDescription> aacFormat(std::span<const std::uint8_t> config) {
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
    return isLowComplexity && isCertain && isUsual ? std::optional(format) : std::nullopt;
}

/// Apple Lossless by the box "alac" with its header, version and flags.
std::optional<AudioStreamBasicDescription> losslessFormat(std::span<const std::uint8_t> configuration) {
    ByteReader reader(configuration);
    reader.skip(12);
    AudioStreamBasicDescription format;
    format.formatID = kAudioFormatAppleLossless;
    format.framesPerPacket = reader.u32();
    reader.skip(5);
    format.channelsPerFrame = reader.u8();
    reader.skip(10);
    format.sampleRate = reader.u32();
    return reader.ok() && format.channelsPerFrame >= 1 ? std::optional(format) : std::nullopt;
}

}  // namespace

std::optional<Mp4Description> Mp4Description::read(int fd, const Mp4Track& track) {
    const Mp4Box* box = findMp4Box(track.tables, mp4Type("stsd"));
    auto bytes = box != nullptr ? readMp4Bytes(fd, box->offset, box->end) : std::nullopt;
    if (!bytes) {
        return std::nullopt;
    }
    Mp4Description description;
    description.m_box = std::move(*bytes);
    const auto boxes = mp4Children(description.m_box);
    if (!boxes || boxes->size() != 1) {
        return std::nullopt;
    }
    // Version and flags, and the number of entries.
    ByteReader body(boxes->front().body);
    body.skip(4);
    const bool isSingle = body.u32() == 1;
    const auto entries = mp4Children(body.rest());
    if (!isSingle || !entries || entries->size() != 1) {
        return std::nullopt;
    }
    // The fields of an entry of sound (12.2.3.2).
    ByteReader entry(entries->front().body);
    entry.skip(8);
    const bool isFirstVersion = entry.u16() == 0;
    entry.skip(18);
    description.m_coding = entries->front().type;
    description.m_isPlain = entry.ok() && isFirstVersion;
    description.m_boxes = description.m_box.size() - entry.rest().size();
    return description;
}

std::span<const std::uint8_t> Mp4Description::configuration() const {
    const bool isAac = m_coding == mp4Type("mp4a");
    const std::uint32_t type = isAac ? mp4Type("esds") : mp4Type("alac");
    const auto children = m_isPlain ? mp4Children(box().subspan(m_boxes)) : std::nullopt;
    const Mp4Child* child = children ? findMp4Child(*children, type) : nullptr;
    // Others, but for the bit rate, say more about the sound.
    if (child == nullptr || !std::all_of(children->begin(), children->end(), [&](const Mp4Child& other) {
            return other.type == type || other.type == mp4Type("btrt");
        })) {
        return {};
    }
    return isAac ? aacConfiguration(child->body) : child->whole;
}

std::optional<AudioStreamBasicDescription> Mp4Description::format(std::uint32_t timeScale) const {
    std::optional<AudioStreamBasicDescription> format;
    if (m_coding == mp4Type("mp4a")) {
        format = aacFormat(configuration());
    } else if (m_coding == mp4Type("alac")) {
        format = losslessFormat(configuration());
    }
    return format && format->sampleRate == timeScale ? format : std::nullopt;
}

std::vector<std::uint8_t> mp4AacDescription(std::span<const std::uint8_t> config, std::uint32_t channels,
                                            std::uint32_t sampleRate) {
    constexpr std::uint32_t kAudioStream = 0x15;
    const std::size_t length = config.size();
    Mp4BoxWriter writer;
    writer.beginFull(mp4Type("stsd"));
    writer.u32(1);
    writer.begin(mp4Type("mp4a"));
    writer.u32(0);
    // The reference to this file, and reserved words.
    writer.u32(1);
    writer.u64(0);
    writer.u16(channels);
    writer.u16(16);
    writer.u32(0);
    writer.u32(sampleRate < 65536 ? sampleRate << 16 : 0);
    writer.beginFull(mp4Type("esds"));
    // Each descriptor is a tag, a length below 128, and contents.
    writer.u8(kStreamTag);
    writer.u8(3 + 2 + 13 + 2 + length + 3);
    writer.u16(1);
    writer.u8(0);
    writer.u8(kDecoderTag);
    writer.u8(13 + 2 + length);
    writer.u8(kMpeg4Audio);
    writer.u8(kAudioStream);
    writer.u8(0);
    writer.u16(0);
    writer.u64(0);
    writer.u8(kSpecificTag);
    writer.u8(length);
    writer.bytes(config);
    writer.u8(kSyncTag);
    writer.u8(1);
    writer.u8(2);
    for (int open = 3; open > 0; --open) {
        writer.end();
    }
    return writer.release();
}

}  // namespace tavi
