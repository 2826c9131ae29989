#include "API/AudioTrimmerController/EZAudio/EZAudioFloatData.h"

#include <algorithm>

namespace tavi {

std::unique_ptr<EZAudioFloatData> EZAudioFloatData::dataWithNumberOfChannels(int numberOfChannels,
                                                                             const float* const* buffers,
                                                                             std::uint32_t bufferSize) {
    std::unique_ptr<EZAudioFloatData> data(new EZAudioFloatData);
    const auto channels = static_cast<std::size_t>(std::max(0, numberOfChannels));
    data->m_bufferSize = bufferSize;
    data->m_samples.resize(channels * bufferSize);
    for (std::size_t channel = 0; channel < channels; ++channel) {
        data->m_buffers.push_back(data->m_samples.data() + channel * bufferSize);
        std::copy_n(buffers[channel], bufferSize, data->m_buffers.back());
    }
    return data;
}

float* EZAudioFloatData::bufferForChannel(int channel) const {
    return channel >= 0 && channel < numberOfChannels() ? m_buffers[static_cast<std::size_t>(channel)] : nullptr;
}

}  // namespace tavi
