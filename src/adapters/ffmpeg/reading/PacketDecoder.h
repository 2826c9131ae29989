#pragma once

#include <memory>
#include <optional>

#include "adapters/ffmpeg/reading/PacketReader.h"
#include "sound/alac/AlacDecoder.h"

namespace tavi {

/// Decodes packets, one after the other. One thread at a time.
class PacketDecoder {
public:
    /// Null for what FFmpeg does not decode. The packets are borrowed.
    static std::unique_ptr<PacketDecoder> open(PacketReader& packets);

    /// Makes what the next packets hold the current frame; false at the end, and where nothing can be decoded any more.
    bool next();
    const AVFrame& frame() const { return *m_frame; }
    /// Forgets what has been heard, to go on where the packets are now.
    void flush();

private:
    explicit PacketDecoder(PacketReader& packets) : m_packets(packets) {}

    bool prepare();
    /// Decodes m_packet without libavcodec; false where that is asked instead.
    bool decodeLossless();

    PacketReader& m_packets;
    AvCodec m_decoder;
    /// Faster where the file is one of Apple Lossless as it is recorded.
    std::optional<AlacDecoder> m_lossless;
    AvPacket m_packet;
    AvFrame m_frame;
    bool m_isDraining = false;
};

}  // namespace tavi
