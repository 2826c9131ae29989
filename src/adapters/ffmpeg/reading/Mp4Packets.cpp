#include "adapters/ffmpeg/reading/Mp4Packets.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

#include "files/PositionedIo.h"
#include "sound/HeaderDuration.h"

namespace tavi {

namespace {

/// How much is read at once: little after a seek, more and more where one packet after the other is wanted.
constexpr std::size_t kFirstWindowBytes = std::size_t{16} * 1024;
constexpr std::size_t kWindowBytes = std::size_t{64} * 1024;
/// Many times what a packet of these codecs can have, in bytes and in frames.
constexpr std::uint32_t kLargestPacket = 1 << 20;
constexpr std::uint32_t kMostFrames = 1 << 20;
/// The box with its header.
constexpr std::size_t kLosslessConfigurationBytes = 36;

/// Tells the decoder how much of what comes out at the start to leave out.
bool addSkip(AVPacket& packet, std::int64_t frames) {
    std::uint8_t* data = av_packet_new_side_data(&packet, AV_PKT_DATA_SKIP_SAMPLES, 10);
    for (int i = 0; data != nullptr && i < 10; ++i) {
        data[i] = i < 4 ? static_cast<std::uint8_t>(frames >> (8 * i)) : std::uint8_t{0};
    }
    return data != nullptr;
}

}  // namespace

std::unique_ptr<Mp4Packets> Mp4Packets::open(int fd) {
    auto sound = Mp4Sound::open(fd);
    if (!sound || !sound->isPlain() || !sound->tables().isWhole() || !headerDuration(fd)) {
        return nullptr;
    }
    std::unique_ptr<Mp4Packets> packets(new Mp4Packets(fd, std::move(*sound)));
    return packets->describe() && packets->survey() && packets->rewind() ? std::move(packets) : nullptr;
}

bool Mp4Packets::describe() {
    const auto format = m_sound.format();
    const auto configuration = m_sound.configuration();
    if (!format || format->channelsPerFrame > 2) {
        return false;
    }
    const bool isLossless = format->formatID == kAudioFormatAppleLossless;
    if (isLossless && configuration.size() != kLosslessConfigurationBytes) {
        return false;
    }
    m_parameters.reset(avcodec_parameters_alloc());
    auto* extra = static_cast<std::uint8_t*>(av_mallocz(configuration.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    if (!m_parameters || extra == nullptr) {
        av_free(extra);
        return false;
    }
    std::copy(configuration.begin(), configuration.end(), extra);
    m_parameters->extradata = extra;
    m_parameters->extradata_size = static_cast<int>(configuration.size());
    m_parameters->codec_type = AVMEDIA_TYPE_AUDIO;
    m_parameters->codec_id = isLossless ? AV_CODEC_ID_ALAC : AV_CODEC_ID_AAC;
    m_parameters->sample_rate = static_cast<int>(format->sampleRate);
    m_parameters->frame_size = static_cast<int>(std::min(format->framesPerPacket, kMostFrames));
    av_channel_layout_default(&m_parameters->ch_layout, static_cast<int>(format->channelsPerFrame));
    return true;
}

bool Mp4Packets::survey() {
    const Mp4PacketTables& tables = m_sound.tables();
    const std::int64_t size = regularFileSize(m_fd);
    const auto edited = m_sound.editedDuration();
    const std::int64_t heardEnd = edited ? m_sound.start() + *edited : std::numeric_limits<std::int64_t>::max();
    // A short packet that says to last long would make hours of silence of a small file.
    const std::int64_t frames = 2 * std::max(m_parameters->frame_size, 4096);
    const std::int64_t longest = av_rescale(frames, m_sound.timeScale(), m_parameters->sample_rate);
    // A second for the decoder to hear before the start, as libavformat has it.
    m_first = tables.packetAt(std::max<std::int64_t>(0, m_sound.start() - m_sound.timeScale()));
    m_end = tables.packets();
    std::int64_t bytes = 0;
    std::int64_t start = 0;
    std::int64_t end = 0;
    Mp4Packet packet;
    auto place = tables.placeBefore(0);
    while (place && tables.next(*place, start, packet)) {
        const std::uint64_t index = place->packet - 1;
        bytes += packet.size;
        // Packets that share bytes could make a small file a long one.
        if (packet.size == 0 || packet.size > kLargestPacket || packet.duration > longest ||
            packet.offset > size - packet.size || bytes > size) {
            return false;
        }
        if (index >= m_first && index < m_end) {
            m_maxPacketSize = std::max(m_maxPacketSize, packet.size);
            end = start + packet.duration;
            m_end = end >= heardEnd ? index + 1 : m_end;
        }
    }
    const bool isComplete = place && place->packet == tables.packets();
    return isComplete && end > m_sound.start() && heardEnd > m_sound.start();
}

std::int64_t Mp4Packets::declaredLength(int rate) {
    const auto seconds = headerDuration(m_fd);
    return seconds ? std::llround(std::min(*seconds * rate, 1e15)) : -1;
}

bool Mp4Packets::goTo(std::uint64_t packet) {
    const auto place = m_sound.tables().placeBefore(packet);
    m_isFresh = true;
    m_windowBytes = kFirstWindowBytes;
    m_place = place.value_or(Mp4PacketTables::Place{});
    return place.has_value();
}

bool Mp4Packets::seek(std::int64_t time) {
    return goTo(std::clamp(m_sound.tables().packetAt(time + m_sound.start()), m_first, m_end - 1));
}

const std::uint8_t* Mp4Packets::bytesOf(const Mp4Packet& packet) {
    const std::int64_t windowEnd = m_windowOffset + static_cast<std::int64_t>(m_window.size());
    if (packet.offset < m_windowOffset || packet.offset + packet.size > windowEnd) {
        m_window.resize(std::max<std::size_t>(m_windowBytes, packet.size));
        m_windowBytes = std::min(2 * m_windowBytes, kWindowBytes);
        m_window.resize(readFully(m_fd, m_window.data(), m_window.size(), packet.offset));
        m_windowOffset = packet.offset;
    }
    const auto at = static_cast<std::size_t>(packet.offset - m_windowOffset);
    return at + packet.size <= m_window.size() ? m_window.data() + at : nullptr;
}

bool Mp4Packets::next(AVPacket& packet) {
    av_packet_unref(&packet);
    std::int64_t start = 0;
    Mp4Packet found;
    if (m_place.packet >= m_end || !m_sound.tables().next(m_place, start, found)) {
        return false;
    }
    // The file may have been changed since it was surveyed.
    const std::uint8_t* bytes = found.size > 0 && found.size <= kLargestPacket ? bytesOf(found) : nullptr;
    if (bytes == nullptr || av_new_packet(&packet, static_cast<int>(found.size)) < 0) {
        return false;
    }
    std::memcpy(packet.data, bytes, found.size);
    packet.pts = packet.dts = start - m_sound.start();
    packet.duration = found.duration;
    packet.flags = AV_PKT_FLAG_KEY | (packet.pts + packet.duration <= 0 ? AV_PKT_FLAG_DISCARD : 0);
    if (std::exchange(m_isFresh, false) && packet.pts < 0) {
        return addSkip(packet, -packet.pts);
    }
    return true;
}

}  // namespace tavi
