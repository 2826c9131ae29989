#include "sound/wav/WavSource.h"

#include <algorithm>

namespace tavi {

namespace {

constexpr std::size_t kReadBytes = std::size_t{64} * 1024;
constexpr std::uint32_t kMaximumChannels = 64;

AudioStreamBasicDescription describe(const WavHeader& header) {
    AudioStreamBasicDescription format;
    format.sampleRate = header.sampleRate;
    format.formatID = kAudioFormatLinearPCM;
    format.formatFlags = kAudioFormatFlagIsPacked;
    if (header.isFloat) {
        format.formatFlags |= kAudioFormatFlagIsFloat;
    } else if (header.bitsPerSample > 8) {
        format.formatFlags |= kAudioFormatFlagIsSignedInteger;
    }
    format.bytesPerPacket = header.frameBytes;
    format.framesPerPacket = 1;
    format.bytesPerFrame = header.frameBytes;
    format.channelsPerFrame = header.channels;
    format.bitsPerChannel = header.bitsPerSample;
    return format;
}

}  // namespace

std::unique_ptr<WavSource> WavSource::open(FileDescriptor& file) {
    const auto header = readWavHeader(file.get());
    if (!header || header->channels < 1 || header->channels > kMaximumChannels) {
        return nullptr;
    }
    const AudioStreamBasicDescription format = describe(*header);
    const auto encoding = PcmEncoding::of(format);
    if (!encoding) {
        return nullptr;
    }
    std::unique_ptr<WavSource> source(new WavSource);
    source->m_file = std::move(file);
    source->m_header = *header;
    source->m_format = format;
    source->m_encoding = *encoding;
    source->m_bytes.resize(kReadBytes);
    return source;
}

std::size_t WavSource::read(float* const* planes, std::size_t frames) {
    const std::size_t frameBytes = m_header.frameBytes;
    const auto left = static_cast<std::size_t>(std::max<std::int64_t>(0, m_header.frames - m_position));
    const std::size_t wanted = std::min({frames, left, m_bytes.size() / frameBytes});
    const std::int64_t offset = m_header.dataOffset + m_position * static_cast<std::int64_t>(frameBytes);
    const std::size_t count = readFully(m_file.get(), m_bytes.data(), wanted * frameBytes, offset) / frameBytes;
    for (std::uint32_t channel = 0; channel < m_header.channels; ++channel) {
        unpackPcm(m_encoding, m_bytes.data() + channel * m_encoding.bytes(), m_header.channels, planes[channel], count);
    }
    m_position += static_cast<std::int64_t>(count);
    return count;
}

}  // namespace tavi
