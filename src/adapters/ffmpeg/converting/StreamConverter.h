#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi {

/// The shape of a stream of float planes.
struct StreamShape {
    int rate = 0;
    int channels = 0;
    /// Which loudspeakers the channels are for, as FFmpeg numbers them; 0 for the usual ones.
    std::uint64_t channelMask = 0;
};

/// Changes rate and channels of a stream of float planes. Frame k of the output stands at the time of frame k * from /
/// to of the input. One thread at a time.
class StreamConverter {
public:
    /// Nothing for rates and channels that FFmpeg does not take.
    static std::optional<StreamConverter> create(const StreamShape& from, const StreamShape& to);

    /// Starts anew before an output frame, and returns the input frame to go on from. What is read first is that output
    /// frame, and it is what it would be had everything before been put in.
    std::int64_t startAt(std::int64_t outputFrame);
    /// Takes frames; what comes out of them is kept until it is read.
    void write(const float* const* planes, std::size_t frames);
    /// Tells that no more frames come.
    void finish();
    /// Gives up to that many frames; 0 when it needs more input, or after finish() at the end.
    std::size_t read(float* const* planes, std::size_t frames);

    /// How many output frames stand before an input frame; so the number of the first that does not.
    std::int64_t outputFrames(std::int64_t inputFrames) const;
    /// The last input frame that does not stand behind an output frame.
    std::int64_t inputFrameFor(std::int64_t outputFrame) const;

private:
    StreamConverter() = default;
    bool restart();
    /// More input frames than the filter looks back or ahead: some tens of frames of the lower rate.
    std::int64_t reach() const { return m_from == m_to ? 0 : 64 + std::int64_t{64} * m_from / m_to; }

    AvResampler m_resampler;
    int m_from = 0;
    int m_to = 0;
    int m_inputs = 0;
    int m_outputs = 0;
    /// See channelMatrix(); empty where the channels stay as they are.
    std::vector<double> m_matrix;
    /// Output frames still to be thrown away.
    std::int64_t m_skip = 0;
    /// Frames of the whole stream up to here.
    std::int64_t m_framesIn = 0;
    std::int64_t m_framesOut = 0;
    bool m_isFinished = false;
};

}  // namespace tavi
