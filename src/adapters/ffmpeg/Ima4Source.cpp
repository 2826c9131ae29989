#include "adapters/ffmpeg/Ima4Source.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace tavi {

namespace {

constexpr std::size_t kPacketBytes = 34;
constexpr std::size_t kPacketFrames = 64;
constexpr std::size_t kBlockPackets = 256;
constexpr std::size_t kBlockFrames = kBlockPackets * kPacketFrames;
constexpr int kSteps = 89;

constexpr std::array<int, kSteps> kStepSizes = {
    7,    8,     9,     10,    11,    12,    13,    14,    16,    17,    19,    21,    23,    25,   28,
    31,   34,    37,    41,    45,    50,    55,    60,    66,    73,    80,    88,    97,    107,  118,
    130,  143,   157,   173,   190,   209,   230,   253,   279,   307,   337,   371,   408,   449,  494,
    544,  598,   658,   724,   796,   876,   963,   1060,  1166,  1282,  1411,  1552,  1707,  1878, 2066,
    2272, 2499,  2749,  3024,  3327,  3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845, 8630,
    9493, 10442, 11487, 12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};

/// What a code does in a step: how far it goes, and where the next step is looked up.
struct Move {
    std::int32_t difference = 0;
    std::int32_t next = 0;
};

constexpr auto kMoves = [] {
    constexpr std::array<int, 8> kIndexChanges = {-1, -1, -1, -1, 2, 4, 6, 8};
    std::array<Move, std::size_t{kSteps} * 16> moves{};
    for (int step = 0; step < kSteps; ++step) {
        for (int code = 0; code < 16; ++code) {
            const int size = kStepSizes[static_cast<std::size_t>(step)];
            int difference = size >> 3;
            difference += (code & 4) != 0 ? size : 0;
            difference += (code & 2) != 0 ? size >> 1 : 0;
            difference += (code & 1) != 0 ? size >> 2 : 0;
            const int next = std::clamp(step + kIndexChanges[static_cast<std::size_t>(code & 7)], 0, kSteps - 1);
            moves[static_cast<std::size_t>(step * 16 + code)] = {(code & 8) != 0 ? -difference : difference, next * 16};
        }
    }
    return moves;
}();

/// Takes over the state that a packet's header names, unless it is the one carried, rounded.
void readHeader(const std::uint8_t* packet, Ima4Source::State& state) {
    const int header = static_cast<std::int16_t>(static_cast<std::uint16_t>(packet[0] << 8 | packet[1]));
    const int step = header & 0x7f;
    const int sample = header & ~0x7f;
    if (step != state.step || std::abs(sample - state.sample) > 0x7f) {
        state.step = std::min(step, kSteps - 1);
        state.sample = sample;
    }
}

/// Decodes one packet of kCount channels side by side: each is a chain of dependent steps, and the processor works on
/// all of them at the same time.
template <std::size_t kCount>
void decodePackets(const std::uint8_t* packets, Ima4Source::State* states, float* samples) {
    constexpr float kScale = 1.0F / 32768;
    std::array<int, kCount> sample;
    std::array<int, kCount> row;
    for (std::size_t channel = 0; channel < kCount; ++channel) {
        readHeader(packets + channel * kPacketBytes, states[channel]);
        sample[channel] = states[channel].sample;
        row[channel] = states[channel].step * 16;
    }
    const auto decode = [&](std::size_t channel, int code, std::size_t at) {
        const Move move = kMoves[static_cast<std::size_t>(row[channel] + code)];
        sample[channel] = std::clamp(sample[channel] + move.difference, -32768, 32767);
        row[channel] = move.next;
        samples[channel * kBlockFrames + at] = static_cast<float>(sample[channel]) * kScale;
    };
    for (std::size_t byte = 0; byte < kPacketFrames / 2; ++byte) {
        for (std::size_t channel = 0; channel < kCount; ++channel) {
            const int codes = packets[channel * kPacketBytes + 2 + byte];
            decode(channel, codes & 15, byte * 2);
            decode(channel, codes >> 4, byte * 2 + 1);
        }
    }
    for (std::size_t channel = 0; channel < kCount; ++channel) {
        states[channel] = {sample[channel], row[channel] / 16};
    }
}

}  // namespace

std::unique_ptr<Ima4Source> Ima4Source::open(FileDescriptor& file) {
    constexpr std::uint32_t kMaximumChannels = 8;
    const auto header = readCafHeader(file.get());
    if (!header || header->formatID != kAudioFormatAppleIMA4 || header->channels < 1 ||
        header->channels > kMaximumChannels || header->packetBytes != kPacketBytes * header->channels ||
        header->packetFrames != kPacketFrames || header->primingFrames != 0) {
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
    for (std::size_t packet = 0; packet < packets; ++packet) {
        const std::uint8_t* bytes = m_bytes.data() + packet * m_header.packetBytes;
        float* samples = m_samples.data() + packet * kPacketFrames;
        std::size_t channel = 0;
        for (; channel + 2 <= channels; channel += 2) {
            decodePackets<2>(bytes + channel * kPacketBytes, &m_states[channel], samples + channel * kBlockFrames);
        }
        if (channel < channels) {
            decodePackets<1>(bytes + channel * kPacketBytes, &m_states[channel], samples + channel * kBlockFrames);
        }
    }
    ++m_block;
    return true;
}

std::size_t Ima4Source::read(float* const* planes, std::size_t frames) {
    const auto left = static_cast<std::size_t>(std::max<std::int64_t>(0, m_header.frames - m_position));
    if (left == 0 || (m_used == m_available && !decodeBlock())) {
        return 0;
    }
    const std::size_t count = std::min({frames, left, m_available - m_used});
    for (std::size_t channel = 0; channel < m_states.size(); ++channel) {
        const float* from = m_samples.data() + channel * kBlockFrames + m_used;
        std::copy(from, from + count, planes[channel]);
    }
    m_used += count;
    m_position += static_cast<std::int64_t>(count);
    return count;
}

void Ima4Source::seek(std::int64_t frame) {
    const std::size_t channels = m_states.size();
    const std::int64_t target = frame / static_cast<std::int64_t>(kBlockFrames);
    const auto known = static_cast<std::int64_t>(m_history.size() / channels);
    m_block = std::clamp<std::int64_t>(known - 1, 0, target);
    m_states.assign(channels, State{});
    if (known > 0) {
        std::copy_n(m_history.begin() + m_block * static_cast<std::int64_t>(channels), channels, m_states.begin());
    }
    m_used = m_available = 0;
    while (m_block <= target && decodeBlock()) {
    }
    m_used = std::min(m_available, static_cast<std::size_t>(frame % static_cast<std::int64_t>(kBlockFrames)));
    m_position = frame;
}

}  // namespace tavi
