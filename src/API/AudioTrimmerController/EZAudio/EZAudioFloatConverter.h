#pragma once

#include <memory>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudioMemory.h"
#include "platform/AudioConverter.h"

namespace tavi {

/// Turns buffers of a format into float arrays, one a channel, at the same rate. One thread at a time.
class EZAudioFloatConverter {
public:
    /// A format that cannot be converted is reported by checkResult(); nothing is converted then.
    static std::unique_ptr<EZAudioFloatConverter> converterWithInputFormat(
        const AudioStreamBasicDescription& inputFormat, AudioConverters& converters);

    EZAudioFloatConverter(const EZAudioFloatConverter&) = delete;
    EZAudioFloatConverter& operator=(const EZAudioFloatConverter&) = delete;

    const AudioStreamBasicDescription& inputFormat() const { return m_info->inputFormat; }
    const AudioStreamBasicDescription& outputFormat() const { return m_info->outputFormat; }

    /// Converts the list's first frames, and sets its byte sizes to them. buffers has an array of as many floats for
    /// every channel. Without packetDescriptions the converter's own are used.
    void convertDataFromAudioBufferList(AudioBufferList* audioBufferList, std::uint32_t frames, float** buffers,
                                        AudioStreamPacketDescription* packetDescriptions = nullptr);

private:
    struct Info {
        std::unique_ptr<AudioConverter> converter;
        OwnedBufferList floatAudioBufferList;
        AudioStreamBasicDescription inputFormat;
        AudioStreamBasicDescription outputFormat;
        /// Empty but for formats with packets of varying size.
        std::vector<AudioStreamPacketDescription> packetDescriptions;
        std::uint32_t packetsPerBuffer = 0;
    };

    EZAudioFloatConverter(const AudioStreamBasicDescription& inputFormat, AudioConverters& converters);

    std::unique_ptr<Info> m_info = std::make_unique<Info>();
};

}  // namespace tavi
