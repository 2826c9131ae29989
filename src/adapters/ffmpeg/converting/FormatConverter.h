#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "adapters/ffmpeg/converting/StreamConverter.h"
#include "sound/io/PcmSamples.h"

namespace tavi {

/// Brings planes of floats into a client's format: channels and rate, then the type of the samples. What agrees is left
/// alone. One thread at a time.
class FormatConverter {
public:
    /// Gives up to that many frames of the input, one plane a channel; 0 at the end only.
    using Source = std::function<std::size_t(float* const* planes, std::size_t frames)>;

    /// channelMask is that of channelMatrix(). Nothing where the client's format is no linear PCM of 1 to 8 channels,
    /// or a rate is not a whole number that FFmpeg takes.
    static std::optional<FormatConverter> create(int channels, std::uint64_t channelMask, double rate,
                                                 const AudioStreamBasicDescription& client);

    const AudioStreamBasicDescription& client() const { return m_client; }
    /// Number of the first output frame that does not stand before an input frame.
    std::int64_t outputFrameFor(std::int64_t inputFrame) const;
    /// Number of the last input frame that does not stand behind an output frame.
    std::int64_t inputFrameFor(std::int64_t outputFrame) const;
    /// Goes to an output frame; the source must go on from the input frame that is returned.
    std::int64_t startAt(std::int64_t outputFrame);

    /// Fills the buffers of a list of the client's layout with up to that many frames, and sets every dataByteSize.
    /// Fewer come at the end only.
    std::size_t read(const Source& source, AudioBufferList& data, std::size_t frames);

    /// Whether a list has the buffers that a format wants.
    static bool fits(const AudioBufferList& data, const AudioStreamBasicDescription& format);

private:
    /// Planes of floats for one chunk.
    class Planes {
    public:
        void resize(int channels, std::size_t frames);
        float* const* data() { return m_planes.data(); }

    private:
        std::vector<float> m_samples;
        std::vector<float*> m_planes;
    };

    FormatConverter() = default;

    /// In the client's channels and at its rate.
    std::size_t readPlanes(const Source& source, float* const* planes, std::size_t frames);

    AudioStreamBasicDescription m_client;
    PcmEncoding m_encoding;
    /// Nothing where rate and channels are the client's already.
    std::optional<StreamConverter> m_stream;
    bool m_isFinished = false;
    Planes m_inputPlanes;
    Planes m_clientPlanes;
};

}  // namespace tavi
