#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/AudioTypes.h"

namespace tavi {

/// The sound of an open file as it is: its own rate and channels, as 32-bit floats, one plane a channel. One thread.
///
/// Positions are frames that are meant to be heard, from 0 to length(): priming and padding are left out.
class SoundSource {
public:
    virtual ~SoundSource() = default;

    virtual const AudioStreamBasicDescription& format() const = 0;
    /// Which loudspeakers the channels are for, by the bits of WAVE_FORMAT_EXTENSIBLE; 0 for the usual ones of that
    /// count.
    virtual std::uint64_t channelMask() const { return 0; }
    /// May read through the file when first called.
    virtual std::int64_t length() = 0;
    virtual std::uint32_t maxPacketSize() const = 0;
    /// Whether seek() costs much less than reading up to there.
    virtual bool isRandomAccess() const { return true; }

    /// Reads up to that many frames and returns how many came: fewer may come at any time, 0 at the end only.
    virtual std::size_t read(float* const* planes, std::size_t frames) = 0;
    /// Whether read16() is there: the sound has no more than 16 bits, and gets to them without floats in between.
    virtual bool has16Bits() const { return false; }
    /// The same as read(), as 16-bit samples with the channels interleaved.
    virtual std::size_t read16(std::int16_t* /*samples*/, std::size_t /*frames*/) { return 0; }
    /// Exact to the sample. A frame from 0 to length().
    virtual void seek(std::int64_t frame) = 0;
};

}  // namespace tavi
