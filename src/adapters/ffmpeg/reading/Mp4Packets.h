#pragma once

#include <memory>

#include "adapters/ffmpeg/reading/PacketReader.h"
#include "sound/mp4/Mp4PacketReader.h"

namespace tavi {

/// The packets of an ordinary MP4 or M4A file of AAC-LC or Apple Lossless, for FFmpeg's decoders. Gives what
/// libavformat gives, without its index: memory does not grow with the sound. Times are in frames.
class Mp4Packets : public PacketReader {
public:
    /// Null for what only libavformat understands; the descriptor is borrowed.
    static std::unique_ptr<Mp4Packets> open(int fd);

    const AVCodecParameters& parameters() const override { return *m_parameters; }
    AVRational timeBase() const override { return {1, m_parameters->sample_rate}; }
    bool hasExactTimes() const override { return true; }
    std::uint32_t maxPacketSize() const override { return m_reader.maxPacketSize(); }
    std::int64_t declaredLength(int rate) override;
    bool next(AVPacket& packet) override;
    bool rewind() override;
    bool seek(std::int64_t time) override;

private:
    explicit Mp4Packets(Mp4PacketReader reader) : m_reader(std::move(reader)) {}

    bool describe();

    Mp4PacketReader m_reader;
    AvParameters m_parameters;
    /// No packet has been read since the place changed.
    bool m_isFresh = true;
};

}  // namespace tavi
