#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace tavi {

/// Some floats a channel, such as the points of a waveform. Owns them.
class EZAudioFloatData {
public:
    /// Copies bufferSize floats of each channel; the caller keeps what it passed.
    static std::unique_ptr<EZAudioFloatData> dataWithNumberOfChannels(int numberOfChannels, const float* const* buffers,
                                                                      std::uint32_t bufferSize);

    EZAudioFloatData(const EZAudioFloatData&) = delete;
    EZAudioFloatData& operator=(const EZAudioFloatData&) = delete;

    int numberOfChannels() const { return static_cast<int>(m_buffers.size()); }
    /// One array a channel, of bufferSize() floats each.
    float** buffers() { return m_buffers.data(); }
    std::uint32_t bufferSize() const { return m_bufferSize; }
    /// Null for a channel that there is not.
    float* bufferForChannel(int channel) const;

private:
    EZAudioFloatData() = default;

    std::vector<float> m_samples;
    std::vector<float*> m_buffers;
    std::uint32_t m_bufferSize = 0;
};

}  // namespace tavi
