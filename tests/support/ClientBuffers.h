#pragma once

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "platform/ExtAudioFile.h"

namespace tavi::test {

/// A client format of 32-bit floats, or of 16-bit integers.
inline AudioStreamBasicDescription clientFormat(double rate, std::uint32_t channels, bool interleaved = false,
                                                bool isFloat = true) {
    AudioStreamBasicDescription format;
    format.sampleRate = rate;
    format.formatID = kAudioFormatLinearPCM;
    format.formatFlags = kAudioFormatFlagIsPacked |
                         (isFloat ? kAudioFormatFlagIsFloat : kAudioFormatFlagIsSignedInteger) |
                         (interleaved ? 0 : kAudioFormatFlagIsNonInterleaved);
    format.bitsPerChannel = isFloat ? 32 : 16;
    format.framesPerPacket = 1;
    format.channelsPerFrame = channels;
    format.bytesPerFrame = format.bytesPerPacket = format.bitsPerChannel / 8 * (interleaved ? channels : 1);
    return format;
}

/// A buffer list with room for so many frames of a format, filled with a pattern.
struct ClientBuffers {
    ClientBuffers(const AudioStreamBasicDescription& format, std::uint32_t frames) {
        const bool isPlanar = (format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
        const std::uint32_t count = isPlanar ? format.channelsPerFrame : 1;
        m_list.reset(
            static_cast<AudioBufferList*>(std::calloc(1, sizeof(AudioBufferList) + count * sizeof(AudioBuffer))));
        m_list->numberBuffers = count;
        for (std::uint32_t i = 0; i < count; ++i) {
            m_blocks.emplace_back(std::size_t{frames} * format.bytesPerFrame, std::uint8_t{0x55});
            m_list->buffers[i] = {isPlanar ? 1 : format.channelsPerFrame,
                                  static_cast<std::uint32_t>(m_blocks.back().size()), m_blocks.back().data()};
        }
    }

    AudioBufferList& list() { return *m_list; }
    /// Samples of a buffer, as many as it says.
    template <class T>
    std::vector<T> samples(std::uint32_t buffer) const {
        std::vector<T> values(m_list->buffers[buffer].dataByteSize / sizeof(T));
        if (!values.empty()) {
            std::memcpy(values.data(), m_list->buffers[buffer].data, values.size() * sizeof(T));
        }
        return values;
    }

private:
    struct Free {
        void operator()(AudioBufferList* list) const { std::free(list); }
    };
    std::unique_ptr<AudioBufferList, Free> m_list;
    std::vector<std::vector<std::uint8_t>> m_blocks;
};

/// Reads on in blocks until frames have come or the end has; one plane a channel. The client format is of floats, not
/// interleaved.
inline std::vector<std::vector<float>> readPlanes(ExtAudioFile& file, const AudioStreamBasicDescription& format,
                                                  std::size_t frames = ~std::size_t{0}, std::uint32_t block = 1000) {
    std::vector<std::vector<float>> planes(format.channelsPerFrame);
    ClientBuffers buffers(format, block);
    while (planes[0].size() < frames) {
        auto count = static_cast<std::uint32_t>(std::min<std::size_t>(block, frames - planes[0].size()));
        if (file.read(count, buffers.list()) != kAudioNoError || count == 0) {
            break;
        }
        for (std::uint32_t channel = 0; channel < format.channelsPerFrame; ++channel) {
            const auto samples = buffers.samples<float>(channel);
            planes[channel].insert(planes[channel].end(), samples.begin(), samples.end());
        }
    }
    return planes;
}

}  // namespace tavi::test
