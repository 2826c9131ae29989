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
    /// What comes before time 0 is decoded, but not meant to be heard.
    std::optional<std::int64_t> startTime() const override { return 0; }
    bool next(AVPacket& packet) override;
    bool rewind() override { return m_reader.rewind(); }
    bool seek(std::int64_t time) override { return m_reader.seek(time); }

private:
    explicit Mp4Packets(Mp4PacketReader reader) : m_reader(std::move(reader)) {}

    bool describe();

    Mp4PacketReader m_reader;
    AvParameters m_parameters;
};

}  // namespace tavi
