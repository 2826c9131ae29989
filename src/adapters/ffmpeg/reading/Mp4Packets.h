#pragma once

#include <memory>
#include <vector>

#include "adapters/ffmpeg/reading/PacketReader.h"
#include "sound/mp4/Mp4Sound.h"

namespace tavi {

/// The packets of an ordinary MP4 or M4A file of AAC-LC or Apple Lossless, found by the file's own tables. Gives what
/// libavformat gives, without its index: memory does not grow with the sound. Times are in frames.
class Mp4Packets : public PacketReader {
public:
    /// Null for what only libavformat understands: other codecs, fragments, several tracks, tables that do not fit
    /// together or tell of packets that are not there. The descriptor is borrowed.
    static std::unique_ptr<Mp4Packets> open(int fd);

    const AVCodecParameters& parameters() const override { return *m_parameters; }
    AVRational timeBase() const override { return {1, static_cast<int>(m_sound.timeScale())}; }
    bool hasExactTimes() const override { return true; }
    std::uint32_t maxPacketSize() const override { return m_maxPacketSize; }
    std::int64_t declaredLength(int rate) override;
    bool next(AVPacket& packet) override;
    bool rewind() override { return goTo(m_first); }
    bool seek(std::int64_t time) override;

private:
    Mp4Packets(int fd, Mp4Sound sound) : m_fd(fd), m_sound(std::move(sound)) {}

    bool describe();
    /// Looks at every packet, and finds those that are to be decoded.
    bool survey();
    bool goTo(std::uint64_t packet);
    /// The bytes of a packet; null when they cannot be read.
    const std::uint8_t* bytesOf(const Mp4Packet& packet);

    int m_fd;
    Mp4Sound m_sound;
    AvParameters m_parameters;
    std::uint32_t m_maxPacketSize = 0;
    /// The first packet that is to be decoded, and the one behind the last.
    std::uint64_t m_first = 0;
    std::uint64_t m_end = 0;
    Mp4PacketTables::Place m_place;
    /// No packet has been read from that place.
    bool m_isFresh = true;
    std::vector<std::uint8_t> m_window;
    /// Where in the file the window starts.
    std::int64_t m_windowOffset = 0;
    /// How many bytes the next one gets.
    std::size_t m_windowBytes = 0;
};

}  // namespace tavi
