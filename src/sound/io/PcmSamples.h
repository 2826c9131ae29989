#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/AudioTypes.h"

namespace tavi {

/// How one sample of linear PCM is stored. Full scale is from -1 to 1; 8-bit samples without a sign are silent at 128.
struct PcmEncoding {
    enum class Kind { Unsigned8, Signed8, Signed16, Signed24, Signed32, Float32 };
    Kind kind = Kind::Signed16;
    bool isBigEndian = false;

    /// The encoding of a format; nothing for other codecs, padded samples, and formats that contradict themselves.
    static std::optional<PcmEncoding> of(const AudioStreamBasicDescription& format);

    std::size_t bytes() const;
    bool operator==(const PcmEncoding&) const = default;
};

/// Reads count samples that lie stride samples apart. NaN and infinity become silence.
void unpackPcm(PcmEncoding encoding, const void* from, std::size_t stride, float* to, std::size_t count);
/// The reverse: rounds to the nearest, and clips what integers cannot hold.
void packPcm(PcmEncoding encoding, const float* from, void* to, std::size_t stride, std::size_t count);

}  // namespace tavi
