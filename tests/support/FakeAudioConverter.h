#pragma once

#include <memory>

#include "platform/AudioConverter.h"

namespace tavi::test {

/// Hands 32-bit floats through, from one layout into the other, at one rate.
struct FakeAudioConverter : AudioConverter {
    FakeAudioConverter(const AudioStreamBasicDescription& input, const AudioStreamBasicDescription& output)
        : m_input(input), m_output(output) {}

    AudioStatus fillComplexBuffer(const InputProcedure& input, std::uint32_t& packets, AudioBufferList& output,
                                  AudioStreamPacketDescription*) override {
        const std::uint32_t wanted = std::exchange(packets, 0);
        AudioStatus status = kAudioNoError;
        for (; packets < wanted; ++packets, ++m_used) {
            if (m_used == m_available) {
                m_available = wanted - packets;
                m_used = 0;
                status = input(m_available, m_data);
                if (status != kAudioNoError || m_available == 0) {
                    m_available = 0;
                    break;
                }
            }
            for (std::uint32_t channel = 0; channel < m_input.channelsPerFrame; ++channel) {
                *sample(output, m_output, packets, channel) = *sample(*m_data, m_input, m_used, channel);
            }
        }
        for (std::uint32_t i = 0; i < output.numberBuffers; ++i) {
            output.buffers[i].dataByteSize = packets * m_output.bytesPerFrame;
        }
        return status;
    }
    AudioStatus maximumOutputPacketSize(std::uint32_t& bytes) const override {
        bytes = m_output.bytesPerPacket;
        return kAudioNoError;
    }

private:
    static float* sample(const AudioBufferList& list, const AudioStreamBasicDescription& format, std::uint32_t frame,
                         std::uint32_t channel) {
        const bool isPlanar = (format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
        auto* samples = static_cast<float*>(list.buffers[isPlanar ? channel : 0].data);
        return samples + (isPlanar ? frame : frame * format.channelsPerFrame + channel);
    }

    AudioStreamBasicDescription m_input;
    AudioStreamBasicDescription m_output;
    const AudioBufferList* m_data = nullptr;
    std::uint32_t m_available = 0;
    std::uint32_t m_used = 0;
};

struct FakeAudioConverters : AudioConverters {
    AudioStatus create(const AudioStreamBasicDescription& input, const AudioStreamBasicDescription& output,
                       std::unique_ptr<AudioConverter>& converter) override {
        converter.reset();
        if (input.formatID != kAudioFormatLinearPCM || output.formatID != kAudioFormatLinearPCM) {
            return kAudioFileUnsupportedDataFormatError;
        }
        converter = std::make_unique<FakeAudioConverter>(input, output);
        return kAudioNoError;
    }
    AudioStatus formatInfo(AudioStreamBasicDescription& format) const override {
        if (format.formatID != kAudioFormatMPEG4AAC) {
            return kAudioFileUnsupportedDataFormatError;
        }
        format.framesPerPacket = 1024;
        return kAudioNoError;
    }
};

}  // namespace tavi::test
