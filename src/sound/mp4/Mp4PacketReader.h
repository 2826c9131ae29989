#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "sound/mp4/Mp4Sound.h"

namespace tavi {

/// Hands out the packets of an ordinary MP4 or M4A file of AAC-LC or Apple Lossless one after the other, from any
/// place. Its memory does not grow with the sound. Borrows the descriptor. One thread at a time.
class Mp4PacketReader {
public:
    /// Nothing for what it does not understand completely: other codecs, fragments, several tracks, tables that do not
    /// fit together or name packets that the file does not have.
    static std::optional<Mp4PacketReader> open(int fd);

    /// What the packets are, with one or two channels, and what their decoder has to know.
    const AudioStreamBasicDescription& format() const { return m_format; }
    std::span<const std::uint8_t> configuration() const { return m_sound.description().configuration(); }
    /// Seconds that are meant to be heard.
    double seconds() const { return m_seconds; }
    std::uint32_t maxPacketSize() const { return m_maxPacketSize; }

    struct Packet {
        /// In frames, from the first one that is meant to be heard on; a decoder may have to hear some before it.
        std::int64_t start = 0;
        std::uint32_t duration = 0;
        /// Valid until the next packet is read.
        std::span<const std::uint8_t> bytes;
    };
    /// The next packet; nothing at the end, and when the file cannot be read any more.
    std::optional<Packet> next();
    /// Goes to the packet at or before a time, and to the first one. False when the file cannot be read any more.
    bool seek(std::int64_t time);
    bool rewind() { return goTo(m_first); }

private:
    Mp4PacketReader(int fd, Mp4Sound sound) : m_fd(fd), m_sound(std::move(sound)) {}

    /// Looks at every packet, and finds those that are to be decoded.
    bool survey();
    bool goTo(std::uint64_t packet);

    int m_fd;
    Mp4Sound m_sound;
    AudioStreamBasicDescription m_format;
    double m_seconds = 0;
    std::uint32_t m_maxPacketSize = 0;
    /// The first packet that is to be decoded, and the one behind the last.
    std::uint64_t m_first = 0;
    std::uint64_t m_end = 0;
    Mp4TableReader::Place m_place;
    FileWindow m_file;
};

}  // namespace tavi
