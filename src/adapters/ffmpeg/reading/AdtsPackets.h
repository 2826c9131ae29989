#pragma once

#include <memory>
#include <stop_token>

#include "adapters/ffmpeg/reading/PacketReader.h"
#include "sound/adts/AdtsStream.h"

namespace tavi {

/// The frames of an ADTS stream, for FFmpeg's decoder. Times are in blocks of 1024 samples of the core coder.
class AdtsPackets : public PacketReader {
public:
    /// Null for what is no ADTS stream, and where the stop is asked for meanwhile; the descriptor is borrowed.
    static std::unique_ptr<AdtsPackets> open(int fd, const std::stop_token& stop = {});

    const AVCodecParameters& parameters() const override { return *m_parameters; }
    AVRational timeBase() const override { return {1024, m_reader.stream().rate()}; }
    bool hasExactTimes() const override { return true; }
    std::uint32_t maxPacketSize() const override { return m_reader.stream().largestFrame(); }
    std::int64_t declaredLength(int rate) override;
    bool next(AVPacket& packet) override;
    bool rewind() override { return seek(0); }
    bool seek(std::int64_t time) override;

private:
    explicit AdtsPackets(AdtsPacketReader reader) : m_reader(std::move(reader)) {}

    AdtsPacketReader m_reader;
    AvParameters m_parameters;
};

}  // namespace tavi
