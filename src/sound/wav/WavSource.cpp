#include "sound/wav/WavSource.h"

#include <algorithm>

#include "files/PositionedIo.h"

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

std::size_t WavSource::readFrames(void* target, std::size_t room, std::size_t frames) {
    const std::size_t frameBytes = m_header.frameBytes;
    const auto left = static_cast<std::size_t>(std::max<std::int64_t>(0, m_header.frames - m_position));
    const std::size_t wanted = std::min({frames, left, room / frameBytes});
    const std::int64_t offset = m_header.dataOffset + m_position * static_cast<std::int64_t>(frameBytes);
    const std::size_t count = readFully(m_file.get(), target, wanted * frameBytes, offset) / frameBytes;
    m_position += static_cast<std::int64_t>(count);
    return count;
}

std::size_t WavSource::read(float* const* planes, std::size_t frames) {
    const std::size_t count = readFrames(m_bytes.data(), m_bytes.size(), frames);
    for (std::uint32_t channel = 0; channel < m_header.channels; ++channel) {
        unpackPcm(m_encoding, m_bytes.data() + channel * m_encoding.bytes(), m_header.channels, planes[channel], count);
    }
    return count;
}

std::size_t WavSource::read16(std::int16_t* samples, std::size_t frames) {
    if (m_encoding.kind == PcmEncoding::Kind::Signed16) {
        return readFrames(samples, frames * m_header.frameBytes, frames);
    }
    const std::size_t count = readFrames(m_bytes.data(), m_bytes.size(), frames);
    std::transform(m_bytes.data(), m_bytes.data() + count * m_header.channels, samples,
                   [](std::uint8_t byte) { return static_cast<std::int16_t>((byte - 128) * 256); });
    return count;
}

}  // namespace tavi
