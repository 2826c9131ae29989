#include "API/AudioTrimmerController/EZAudio/EZAudioFloatConverter.h"

#include <algorithm>
#include <cstring>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

namespace tavi {

namespace {

constexpr std::uint32_t kBufferBytes = 4096;
constexpr std::uint32_t kDefaultPacketBytes = 2048;

}  // namespace

std::unique_ptr<EZAudioFloatConverter> EZAudioFloatConverter::converterWithInputFormat(
    const AudioStreamBasicDescription& inputFormat, AudioConverters& converters) {
    return std::unique_ptr<EZAudioFloatConverter>(new EZAudioFloatConverter(inputFormat, converters));
}

EZAudioFloatConverter::EZAudioFloatConverter(const AudioStreamBasicDescription& inputFormat,
                                             AudioConverters& converters) {
    m_info->inputFormat = inputFormat;
    m_info->outputFormat =
        EZAudioUtilities::floatFormatWithNumberOfChannels(inputFormat.channelsPerFrame, inputFormat.sampleRate);
    EZAudioUtilities::checkResult(converters.create(inputFormat, m_info->outputFormat, m_info->converter),
                                  "Failed to create new audio converter");
    if (inputFormat.bytesPerPacket > 0) {
        m_info->packetsPerBuffer = kBufferBytes / inputFormat.bytesPerPacket;
    } else {
        std::uint32_t packetBytes = 0;
        const bool isKnown =
            m_info->converter && m_info->converter->maximumOutputPacketSize(packetBytes) == kAudioNoError;
        packetBytes = isKnown && packetBytes > 0 ? packetBytes : kDefaultPacketBytes;
        m_info->packetsPerBuffer = std::max(packetBytes, kBufferBytes) / packetBytes;
        m_info->packetDescriptions.resize(m_info->packetsPerBuffer);
    }
    // A packet may be larger than the buffer is meant to be.
    m_info->packetsPerBuffer = std::max(m_info->packetsPerBuffer, 1U);
    m_info->floatAudioBufferList.reset(EZAudioUtilities::audioBufferListWithNumberOfFrames(
        m_info->packetsPerBuffer, m_info->outputFormat.channelsPerFrame,
        EZAudioUtilities::isInterleaved(m_info->outputFormat)));
}

void EZAudioFloatConverter::convertDataFromAudioBufferList(AudioBufferList* audioBufferList, std::uint32_t frames,
                                                           float** buffers,
                                                           AudioStreamPacketDescription* packetDescriptions) {
    if (frames == 0 || !m_info->converter) {
        return;
    }
    if (packetDescriptions == nullptr && !m_info->packetDescriptions.empty()) {
        packetDescriptions = m_info->packetDescriptions.data();
    }
    for (std::uint32_t i = 0; i < audioBufferList->numberBuffers; ++i) {
        audioBufferList->buffers[i].dataByteSize = frames * m_info->inputFormat.bytesPerFrame;
    }
    const AudioConverter::InputProcedure handOver = [&](std::uint32_t& packets, const AudioBufferList*& data) {
        packets = frames;
        data = audioBufferList;
        return kAudioNoError;
    };
    // The buffer may be smaller than what is to be converted.
    AudioBufferList& list = *m_info->floatAudioBufferList;
    for (std::uint32_t done = 0; done < frames;) {
        std::uint32_t packets = std::min(frames - done, m_info->packetsPerBuffer);
        EZAudioUtilities::checkResult(m_info->converter->fillComplexBuffer(handOver, packets, list, packetDescriptions),
                                      "Failed to fill complex buffer in float converter");
        if (packets == 0) {
            break;
        }
        for (std::uint32_t i = 0; i < list.numberBuffers; ++i) {
            std::memcpy(buffers[i] + done, list.buffers[i].data, list.buffers[i].dataByteSize);
        }
        done += packets;
    }
}

}  // namespace tavi
