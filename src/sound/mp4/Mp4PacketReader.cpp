#include "sound/mp4/Mp4PacketReader.h"

#include <algorithm>
#include <limits>

#include "files/PositionedIo.h"
#include "sound/mp4/Mp4Length.h"

namespace tavi {

namespace {

/// How much is read at once: little after a seek, more and more where one packet after the other is wanted.
constexpr std::size_t kFirstWindowBytes = std::size_t{16} * 1024;
constexpr std::size_t kWindowBytes = std::size_t{64} * 1024;
/// Many times what a packet of these codecs can have, in bytes and in frames.
constexpr std::uint32_t kLargestPacket = 1 << 20;
constexpr std::uint32_t kMostFrames = 1 << 20;
/// The box "alac" with its header.
constexpr std::size_t kLosslessConfigurationBytes = 36;

}  // namespace

std::optional<Mp4PacketReader> Mp4PacketReader::open(int fd) {
    auto sound = Mp4Sound::open(fd);
    const auto format = sound ? sound->format() : std::nullopt;
    const auto seconds = format ? mp4Seconds(fd, sound->movie()) : std::nullopt;
    if (!seconds || !sound->isPlain() || !sound->tables().isWhole() || format->channelsPerFrame > 2) {
        return std::nullopt;
    }
    Mp4PacketReader reader(fd, std::move(*sound));
    if (format->formatID == kAudioFormatAppleLossless && reader.configuration().size() != kLosslessConfigurationBytes) {
        return std::nullopt;
    }
    reader.m_format = *format;
    reader.m_seconds = *seconds;
    reader.m_file = FileWindow(fd, kFirstWindowBytes, kWindowBytes);
    return reader.survey() && reader.rewind() ? std::optional(std::move(reader)) : std::nullopt;
}

bool Mp4PacketReader::survey() {
    const Mp4TableReader& tables = m_sound.tables();
    const std::int64_t size = regularFileSize(m_fd);
    const auto edited = m_sound.editedDuration();
    const std::int64_t heardEnd = edited ? m_sound.start() + *edited : std::numeric_limits<std::int64_t>::max();
    // A short packet that says to last long would make hours of silence of a small file.
    const std::uint32_t longest = 2 * std::clamp(m_format.framesPerPacket, 4096U, kMostFrames);
    // The decoder gets a second before the start, as it would from libavformat.
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

bool Mp4PacketReader::goTo(std::uint64_t packet) {
    const auto place = m_sound.tables().placeBefore(packet);
    m_place = place.value_or(Mp4TableReader::Place{});
    return place.has_value();
}

bool Mp4PacketReader::seek(std::int64_t time) {
    return goTo(std::clamp(m_sound.tables().packetAt(time + m_sound.start()), m_first, m_end - 1));
}

std::optional<Mp4PacketReader::Packet> Mp4PacketReader::next() {
    std::int64_t start = 0;
    Mp4Packet found;
    // The file may have been changed since it was surveyed.
    if (m_place.packet >= m_end || !m_sound.tables().next(m_place, start, found) || found.size == 0 ||
        found.size > kLargestPacket) {
        return std::nullopt;
    }
    const auto bytes = m_file.at(found.offset, found.size);
    return bytes.size() == found.size ? std::optional(Packet{start - m_sound.start(), found.duration, bytes})
                                      : std::nullopt;
}

}  // namespace tavi
