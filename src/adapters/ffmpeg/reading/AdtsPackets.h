#pragma once

#include <memory>
#include <vector>

#include "adapters/ffmpeg/reading/PacketReader.h"
#include "files/PositionedIo.h"
#include "sound/adts/AdtsStream.h"

namespace tavi {

/// The frames of an ADTS stream. Times are in blocks of 1024 samples of the core coder.
class AdtsPackets : public PacketReader {
public:
    /// Null for what is no ADTS stream; the descriptor is borrowed.
    static std::unique_ptr<AdtsPackets> open(int fd);

    const AVCodecParameters& parameters() const override { return *m_parameters; }
    AVRational timeBase() const override { return {1024, m_stream.rate()}; }
    bool hasExactTimes() const override { return true; }
    std::uint32_t maxPacketSize() const override { return m_stream.largestFrame(); }
    std::int64_t declaredLength(int rate) override;
    bool next(AVPacket& packet) override;
    bool rewind() override { return seek(0); }
    bool seek(std::int64_t time) override;

private:
    AdtsPackets(int fd, AdtsStream stream) : m_fd(fd), m_stream(std::move(stream)) {}

    /// Where the next frame's header stands in m_bytes, or nothing at the end.
    std::optional<AdtsFrame> findFrame();

    int m_fd;
    AdtsStream m_stream;
    AvParameters m_parameters;
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_used = 0;
    /// Where in the file m_bytes starts.
    std::int64_t m_offset = 0;
    std::int64_t m_block = 0;
};

}  // namespace tavi
