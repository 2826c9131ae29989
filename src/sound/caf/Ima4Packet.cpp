#include "sound/caf/Ima4Packet.h"

#include <algorithm>
#include <cstdlib>

namespace tavi {

namespace {

constexpr std::array<int, kIma4Steps> kStepSizes = {
    7,    8,     9,     10,    11,    12,    13,    14,    16,    17,    19,    21,    23,    25,   28,
    31,   34,    37,    41,    45,    50,    55,    60,    66,    73,    80,    88,    97,    107,  118,
    130,  143,   157,   173,   190,   209,   230,   253,   279,   307,   337,   371,   408,   449,  494,
    544,  598,   658,   724,   796,   876,   963,   1060,  1166,  1282,  1411,  1552,  1707,  1878, 2066,
    2272, 2499,  2749,  3024,  3327,  3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845, 8630,
    9493, 10442, 11487, 12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};

/// Sums of the codes of a packet. The step of a code depends on the codes before it in the packet only, and on no
/// sample, so several packets can be summed at the same time.
class Sums {
public:
    explicit Sums(const std::uint8_t* packet)
        : m_packet(packet), m_row(static_cast<unsigned int>(ima4Header(packet).step) * 16) {}

    /// Adds up the two codes of a byte.
    void add(std::size_t byte) {
        const unsigned int codes = m_packet[2 + byte];
        addCode(codes & 15, byte * 2);
        addCode(codes >> 4, byte * 2 + 1);
    }

    /// Turns the packet into samples, and the state before it into the state after it.
    void finish(Ima4State& state, std::int16_t* samples) const {
        readIma4Header(m_packet, state);
        int outside = 0;
        for (std::size_t i = 0; i < kIma4PacketFrames; ++i) {
            const int sample = state.sample + m_sums[i];
            outside |= (sample + 32768) & ~0xffff;
            samples[i] = static_cast<std::int16_t>(sample);
        }
        if (outside != 0) {
            clip(state.sample, samples);
        }
        state = {samples[kIma4PacketFrames - 1], static_cast<int>(m_row / 16)};
    }

private:
    void addCode(unsigned int code, std::size_t at) {
        const Ima4Move& move = kIma4Moves[m_row + code];
        m_sum += move.difference;
        m_sums[at] = m_sum;
        m_row = static_cast<unsigned int>(move.next);
    }

    /// Computes the samples again where one is out of range: it is clipped, and the next one counts from there.
    void clip(int sample, std::int16_t* samples) const {
        int before = 0;
        for (std::size_t i = 0; i < kIma4PacketFrames; ++i) {
            sample = std::clamp(sample + m_sums[i] - before, -32768, 32767);
            before = m_sums[i];
            samples[i] = static_cast<std::int16_t>(sample);
        }
    }

    const std::uint8_t* m_packet;
    unsigned int m_row;
    int m_sum = 0;
    std::array<int, kIma4PacketFrames> m_sums;
};

}  // namespace

constexpr std::array<Ima4Move, std::size_t{kIma4Steps}* 16> kIma4Moves = [] {
    constexpr std::array<int, 8> kIndexChanges = {-1, -1, -1, -1, 2, 4, 6, 8};
    std::array<Ima4Move, std::size_t{kIma4Steps} * 16> moves{};
    for (int step = 0; step < kIma4Steps; ++step) {
        for (int code = 0; code < 16; ++code) {
            const int size = kStepSizes[static_cast<std::size_t>(step)];
            int difference = size >> 3;
            difference += (code & 4) != 0 ? size : 0;
            difference += (code & 2) != 0 ? size >> 1 : 0;
            difference += (code & 1) != 0 ? size >> 2 : 0;
            const int next = std::clamp(step + kIndexChanges[static_cast<std::size_t>(code & 7)], 0, kIma4Steps - 1);
            const auto place = static_cast<unsigned int>(step * 16 + code);
            moves[place] = {(code & 8) != 0 ? -difference : difference, next * 16};
        }
    }
    return moves;
}();

Ima4State ima4Header(const std::uint8_t* packet) {
    const int header = static_cast<std::int16_t>(static_cast<std::uint16_t>(packet[0] << 8 | packet[1]));
    return {header & ~0x7f, std::min(header & 0x7f, kIma4Steps - 1)};
}

void readIma4Header(const std::uint8_t* packet, Ima4State& state) {
    const Ima4State header = ima4Header(packet);
    if (header.step != state.step || std::abs(header.sample - state.sample) > 0x7f) {
        state = header;
    }
}

void decodeIma4Packets(const std::uint8_t* packets, std::size_t stride, std::size_t count, Ima4State& state,
                       std::int16_t* samples) {
    std::size_t packet = 0;
    for (; packet + 4 <= count; packet += 4) {
        const std::uint8_t* bytes = packets + packet * stride;
        Sums first(bytes);
        Sums second(bytes + stride);
        Sums third(bytes + 2 * stride);
        Sums fourth(bytes + 3 * stride);
        for (std::size_t byte = 0; byte < kIma4PacketFrames / 2; ++byte) {
            first.add(byte);
            second.add(byte);
            third.add(byte);
            fourth.add(byte);
        }
        std::int16_t* to = samples + packet * kIma4PacketFrames;
        first.finish(state, to);
        second.finish(state, to + kIma4PacketFrames);
        third.finish(state, to + 2 * kIma4PacketFrames);
        fourth.finish(state, to + 3 * kIma4PacketFrames);
    }
    for (; packet < count; ++packet) {
        Sums only(packets + packet * stride);
        for (std::size_t byte = 0; byte < kIma4PacketFrames / 2; ++byte) {
            only.add(byte);
        }
        only.finish(state, samples + packet * kIma4PacketFrames);
    }
}

}  // namespace tavi
