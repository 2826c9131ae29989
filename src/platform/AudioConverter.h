#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/AudioTypes.h"

namespace tavi {

/// Converts a stream of samples from one format into another. One thread at a time.
class AudioConverter {
public:
    /// Hands over input: sets data to a list and packets to how many packets it holds, which may be more or fewer than
    /// asked for; 0 at the end. What it hands over must stay valid until its next call, or until the conversion
    /// returns.
    using InputProcedure = std::function<AudioStatus(std::uint32_t& packets, const AudioBufferList*& data)>;

    virtual ~AudioConverter() = default;

    /// Fills output with up to packets packets, calling for input as needed; sets packets and every dataByteSize to
    /// what came. descriptions, where not null, has room for as many packets and is filled for compressed output only.
    virtual AudioStatus fillComplexBuffer(const InputProcedure& input, std::uint32_t& packets, AudioBufferList& output,
                                          AudioStreamPacketDescription* descriptions) = 0;
    /// Bytes of the largest packet that can come out.
    virtual AudioStatus maximumOutputPacketSize(std::uint32_t& bytes) const = 0;
};

/// Makes converters, and knows formats. Any thread.
class AudioConverters {
public:
    virtual ~AudioConverters() = default;

    /// A converter between two linear PCM formats of 32-bit float or of 8-, 16-, 24- or 32-bit integers. Fails with
    /// kAudioFileUnsupportedDataFormatError for any other.
    virtual AudioStatus create(const AudioStreamBasicDescription& input, const AudioStreamBasicDescription& output,
                               std::unique_ptr<AudioConverter>& converter) = 0;
    /// Completes a description of which formatID, sampleRate and channelsPerFrame are set with what its codec says:
    /// frames a packet, bytes a packet (0 where they vary), and the rest. Fails for a codec that is not known.
    virtual AudioStatus formatInfo(AudioStreamBasicDescription& format) const = 0;
};

}  // namespace tavi
