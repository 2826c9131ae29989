#pragma once

#include <vector>

#include "adapters/ffmpeg/converting/FormatConverter.h"
#include "platform/AudioConverter.h"

namespace tavi {

/// Converts linear PCM by way of 32-bit floats, in which integers of up to 24 bits keep every bit.
class FfmpegAudioConverter : public AudioConverter {
public:
    FfmpegAudioConverter(const AudioStreamBasicDescription& input, PcmEncoding encoding, FormatConverter converter);

    AudioStatus fillComplexBuffer(const InputProcedure& input, std::uint32_t& packets, AudioBufferList& output,
                                  AudioStreamPacketDescription* descriptions) override;
    AudioStatus maximumOutputPacketSize(std::uint32_t& bytes) const override;

private:
    std::size_t take(const InputProcedure& input, float* const* planes, std::size_t frames);

    AudioStreamBasicDescription m_input;
    PcmEncoding m_encoding;
    FormatConverter m_converter;
    /// What was handed over last, and how much of it has been taken.
    const AudioBufferList* m_data = nullptr;
    std::size_t m_available = 0;
    std::size_t m_used = 0;
    AudioStatus m_status = kAudioNoError;
};

class FfmpegAudioConverters : public AudioConverters {
public:
    AudioStatus create(const AudioStreamBasicDescription& input, const AudioStreamBasicDescription& output,
                       std::unique_ptr<AudioConverter>& converter) override;
    /// iLBC is that of RFC 3951 with 30 ms a packet, unless the description already says 160 frames, which is 20 ms.
    AudioStatus formatInfo(AudioStreamBasicDescription& format) const override;
};

}  // namespace tavi
