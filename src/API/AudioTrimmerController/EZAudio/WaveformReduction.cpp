// Built with -O3: every sample of a file passes through here.

#include "API/AudioTrimmerController/EZAudio/WaveformReduction.h"

#include <algorithm>
#include <cmath>

#include "API/AudioTrimmerController/EZAudio/EZAudioMemory.h"

namespace tavi {

namespace {

/// What is read at once: it stays in the processor's memory, and a file of hours in one point needs no more.
constexpr std::uint32_t kPieceFrames = 8192;

/// The level of a run that comes in pieces.
class RunningLevel {
public:
    void add(const float* samples, std::uint32_t count) {
        const auto length = static_cast<std::int32_t>(count);
        m_last = EZAudioUtilities::RMS(samples, length);
        if (count > 0) {
            m_sum += static_cast<double>(m_last) * static_cast<double>(m_last) * count;
            m_count += count;
            ++m_pieces;
        }
    }
    /// That of no samples is what RMS() makes of none.
    float value() const {
        return m_pieces > 1 ? static_cast<float>(std::sqrt(m_sum / static_cast<double>(m_count))) : m_last;
    }

private:
    double m_sum = 0;
    std::uint64_t m_count = 0;
    int m_pieces = 0;
    float m_last = EZAudioUtilities::RMS(nullptr, 0);
};

}  // namespace

void WaveformReduction::reduce(std::uint32_t first, std::uint32_t last) const {
    const std::uint32_t channels = clientFormat.channelsPerFrame;
    const bool isInterleaved = EZAudioUtilities::isInterleaved(clientFormat);
    const std::uint32_t capacity = std::min(framesPerPoint, kPieceFrames);
    const OwnedBufferList list(EZAudioUtilities::audioBufferListWithNumberOfFrames(capacity, channels, isInterleaved));
    std::vector<float> scratch(isInterleaved ? capacity : 0);
    // On purpose only this part of a run of interleaved sound: so the waveforms of such clients have always looked.
    const std::uint32_t counted = isInterleaved ? framesPerPoint / channels : framesPerPoint;
    for (std::uint32_t point = first; point < last; ++point) {
        std::vector<RunningLevel> levels(channels);
        std::uint32_t done = 0;
        std::uint32_t wanted = 0;
        std::uint32_t frames = 0;
        do {
            wanted = frames = std::min(framesPerPoint - done, capacity);
            EZAudioUtilities::checkResult(file.read(frames, *list), "Failed to read audio data from file waveform");
            const std::uint32_t used = std::min(frames, counted - std::min(done, counted));
            for (std::uint32_t channel = 0; channel < channels && used > 0; ++channel) {
                const auto* samples = static_cast<const float*>(list->buffers[isInterleaved ? 0 : channel].data);
                for (std::uint32_t i = 0; isInterleaved && i < used; ++i) {
                    scratch[i] = samples[std::size_t{i} * channels + channel];
                }
                levels[channel].add(isInterleaved ? scratch.data() : samples, used);
            }
            done += frames;
        } while (frames > 0 && frames == wanted && done < framesPerPoint);
        for (std::uint32_t channel = 0; channel < channels; ++channel) {
            points[channel][point] = levels[channel].value();
        }
    }
}

}  // namespace tavi
