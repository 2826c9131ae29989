#pragma once

#include <cstdint>
#include <optional>

namespace tavi {

/// What a WAV or RF64 file (EBU Tech 3306) of linear PCM says about itself.
struct WavHeader {
    bool isFloat = false;
    std::uint32_t sampleRate = 0;
    std::uint32_t channels = 0;
    std::uint32_t bitsPerSample = 0;
    std::uint32_t frameBytes = 0;
    /// Which loudspeakers the channels are for (WAVE_FORMAT_EXTENSIBLE); 0 where that is not said.
    std::uint32_t channelMask = 0;
    /// The body of the chunk "fmt ".
    std::int64_t formatOffset = 0;
    std::uint32_t formatBytes = 0;
    std::int64_t dataOffset = 0;
    /// Whole frames. Where the length is not filled in, or goes beyond the end of the file, the frames up to that end.
    std::int64_t frames = 0;
    /// The lengths of the sound and of the file are filled in, and the file has all of the sound.
    bool isWhole = false;
};

/// Reads the header; nothing for files of another type or codec, and for headers that make no sense.
std::optional<WavHeader> readWavHeader(int fd);

}  // namespace tavi
