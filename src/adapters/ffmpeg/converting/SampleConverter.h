#pragma once

#include <cstdint>
#include <vector>

#include "adapters/ffmpeg/AvHandles.h"
#include "adapters/ffmpeg/recording/RecordingFormat.h"
#include "platform/AudioInput.h"

namespace tavi {

/// Turns captured sound into the encoder's rate, channels and sample format. One thread at a time.
///
/// Mono goes to both channels at full level, stereo to mono as the mean; stereo stays as it is. Nothing is dithered.
/// Where the rates agree no frame is filtered, only its format changes.
class SampleConverter {
public:
    static Result<SampleConverter> create(const AudioInputFormat& input, const RecordingFormat& output);

    /// Takes interleaved frames and gives at most capacity frames; keeps what does not fit. Call it again without
    /// frames for that. Values that are no numbers become silence. At most kMaximumFrames at once.
    int convert(const float* interleaved, int frames, std::uint8_t** planes, int capacity);
    /// Gives what is left after the last frames.
    int drain(std::uint8_t** planes, int capacity);
    /// How many frames the converted sound has in all, rounded to the nearest.
    std::int64_t expectedFrames() const;

    static constexpr int kMaximumFrames = 4096;

private:
    SampleConverter() = default;

    AvResampler m_resampler;
    std::vector<float> m_input;
    int m_inputRate = 0;
    int m_inputChannels = 0;
    int m_outputRate = 0;
    std::int64_t m_framesIn = 0;
};

}  // namespace tavi
