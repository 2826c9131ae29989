#include "sound/caf/Ima4Source.h"

#include <algorithm>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr std::size_t kPacketBytes = kIma4PacketBytes;
constexpr std::size_t kPacketFrames = kIma4PacketFrames;
constexpr std::size_t kBlockPackets = 256;
constexpr std::size_t kBlockFrames = kBlockPackets * kPacketFrames;
constexpr float kScale = 1.0F / 32768;

}  // namespace

std::unique_ptr<Ima4Source> Ima4Source::open(FileDescriptor& file) {
    constexpr std::uint32_t kMaximumChannels = 8;
    const auto header = readCafHeader(file.get());
    if (!header || header->formatID != kAudioFormatAppleIMA4 || header->channels < 1 ||
        header->channels > kMaximumChannels || header->packetBytes != kPacketBytes * header->channels ||
        header->packetFrames != kPacketFrames) {
        return nullptr;
    }
    std::unique_ptr<Ima4Source> source(new Ima4Source);
    source->m_file = std::move(file);
    source->m_header = *header;
    source->m_format.sampleRate = header->sampleRate;
    source->m_format.formatID = kAudioFormatAppleIMA4;
    source->m_format.bytesPerPacket = header->packetBytes;
    source->m_format.framesPerPacket = kPacketFrames;
    source->m_format.channelsPerFrame = header->channels;
    source->m_bytes.resize(kBlockPackets * header->packetBytes);
    source->m_samples.resize(kBlockFrames * header->channels);
    source->m_states.resize(header->channels);
    if (header->primingFrames > 0) {
        source->seek(0);
    }
    return source;
}

bool Ima4Source::decodeBlock() {
    const std::size_t channels = m_states.size();
    const auto blockBytes = static_cast<std::int64_t>(m_bytes.size());
    const std::int64_t start = m_block * blockBytes;
    const auto wanted = static_cast<std::size_t>(std::clamp<std::int64_t>(m_header.dataBytes - start, 0, blockBytes));
    const std::size_t packets =
        readFully(m_file.get(), m_bytes.data(), wanted, m_header.dataOffset + start) / m_header.packetBytes;
    m_used = 0;
    m_available = packets * kPacketFrames;
    if (packets == 0) {
        return false;
    }
    if (m_history.size() == static_cast<std::size_t>(m_block) * channels) {
        m_history.insert(m_history.end(), m_states.begin(), m_states.end());
    }
    for (std::size_t channel = 0; channel < channels; ++channel) {
        decodeIma4Packets(m_bytes.data() + channel * kPacketBytes, m_header.packetBytes, packets, m_states[channel],
                          m_samples.data() + channel * kBlockFrames);
    }
    ++m_block;
    return true;
}

std::size_t Ima4Source::takeDecoded(std::size_t frames) {
    const auto left = static_cast<std::size_t>(std::max<std::int64_t>(0, m_header.frames - m_position));
    if (left == 0 || (m_used == m_available && !decodeBlock())) {
        return 0;
    }
    const std::size_t count = std::min({frames, left, m_available - m_used});
    m_used += count;
    m_position += static_cast<std::int64_t>(count);
    return count;
}

std::size_t Ima4Source::read(float* const* planes, std::size_t frames) {
    const std::size_t count = takeDecoded(frames);
    for (std::size_t channel = 0; channel < m_states.size(); ++channel) {
        const std::int16_t* from = m_samples.data() + channel * kBlockFrames + m_used - count;
        std::transform(from, from + count, planes[channel],
                       [](std::int16_t sample) { return static_cast<float>(sample) * kScale; });
    }
    return count;
}

std::size_t Ima4Source::read16(std::int16_t* samples, std::size_t frames) {
    const std::size_t count = takeDecoded(frames);
    const std::size_t channels = m_states.size();
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const std::int16_t* from = m_samples.data() + channel * kBlockFrames + m_used - count;
        for (std::size_t i = 0; i < count; ++i) {
            samples[i * channels + channel] = from[i];
        }
    }
    return count;
}

void Ima4Source::seek(std::int64_t frame) {
    const std::size_t channels = m_states.size();
    const std::int64_t decoded = frame + m_header.primingFrames;
    const std::int64_t target = decoded / static_cast<std::int64_t>(kBlockFrames);
    const auto known = static_cast<std::int64_t>(m_history.size() / channels);
    m_block = std::clamp<std::int64_t>(known - 1, 0, target);
    m_states.assign(channels, Ima4State{});
    if (known > 0) {
        std::copy_n(m_history.begin() + m_block * static_cast<std::int64_t>(channels), channels, m_states.begin());
    }
    m_used = m_available = 0;
    while (m_block <= target && decodeBlock()) {
    }
    m_used = std::min(m_available, static_cast<std::size_t>(decoded % static_cast<std::int64_t>(kBlockFrames)));
    m_position = frame;
}

}  // namespace tavi
