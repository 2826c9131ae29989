#pragma once

#include <cstdint>
#include <optional>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi {

/// The packets of a compressed sound file. One thread at a time.
class PacketReader {
public:
    virtual ~PacketReader() = default;

    virtual const AVCodecParameters& parameters() const = 0;
    virtual AVRational timeBase() const = 0;
    /// Whether the times of packets tell to the sample where their sound belongs.
    virtual bool hasExactTimes() const = 0;
    virtual std::uint32_t maxPacketSize() const = 0;
    /// Frames that the file declares at a rate; less than 0 where it does not tell. May read through the file, and
    /// leave its place.
    virtual std::int64_t declaredLength(int rate) = 0;
    /// Frames at the start of the decoded sound that are not meant to be heard, beside those that the packets
    /// themselves tell the decoder to leave out.
    virtual std::int64_t primingFrames() const { return 0; }
    /// The time at which the sound begins, where that is not the first one that the decoder tells.
    virtual std::optional<std::int64_t> startTime() const { return std::nullopt; }

    /// The next packet; false at the end.
    virtual bool next(AVPacket& packet) = 0;
    /// Goes to the first packet. False when the file cannot be read any more.
    virtual bool rewind() = 0;
    /// Goes to the last packet at or before a time; false when that cannot be done, and the place is unknown then.
    virtual bool seek(std::int64_t time) = 0;
};

}  // namespace tavi
