#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "sound/mp4/Mp4Movie.h"

namespace tavi {

/// How the packets of a track of sound are coded: the box "stsd" (ISO/IEC 14496-12, 8.5.2) with one entry.
class Mp4Description {
public:
    Mp4Description() = default;
    /// Nothing when the track has no such box, and when that has not one entry that is whole.
    static std::optional<Mp4Description> read(int fd, const Mp4Track& track);

    /// The box as it is.
    std::span<const std::uint8_t> box() const { return m_box; }
    /// The name of the coding, such as "mp4a".
    std::uint32_t coding() const { return m_coding; }
    /// What the decoder has to know: an AudioSpecificConfig, or the box "alac" with its header. Empty where the entry
    /// has more to say than that.
    std::span<const std::uint8_t> configuration() const;
    /// Rate and channels, where it is certain what is decoded: for Apple Lossless, and for AAC without the chance of
    /// spectral band replication, which only a decoder finds out. The rate must be the media's time scale.
    std::optional<AudioStreamBasicDescription> format(std::uint32_t timeScale) const;

private:
    std::vector<std::uint8_t> m_box;
    /// Where in the box the entry's own boxes are.
    std::size_t m_boxes = 0;
    std::uint32_t m_coding = 0;
    /// Whether the entry is of the first version, the only one that is understood.
    bool m_isPlain = false;
};

/// The box "stsd" of AAC (ISO/IEC 14496-14, 5.6): its AudioSpecificConfig is that of ISO/IEC 14496-3, 1.6.2.1.
std::vector<std::uint8_t> mp4AacDescription(std::span<const std::uint8_t> audioSpecificConfig, std::uint32_t channels,
                                            std::uint32_t sampleRate);

}  // namespace tavi
