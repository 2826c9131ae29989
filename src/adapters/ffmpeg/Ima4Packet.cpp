#include "adapters/ffmpeg/Ima4Packet.h"

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

}  // namespace tavi
