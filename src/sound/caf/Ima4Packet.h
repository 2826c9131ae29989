#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tavi {

/// IMA 4:1 ADPCM as CAF files have it.
///
/// A packet of a channel is 34 bytes for 64 samples: two bytes with the upper nine bits of the sample before and seven
/// bits of step index, then 64 codes of four bits, the low one of a byte first (Apple, Inside Macintosh: Sound, and the
/// IMA's Recommended Practices of 1992). The header holds that sample rounded. A decoder whose last sample rounds to it
/// goes on with its exact one, so every packet depends on all before it.
inline constexpr std::size_t kIma4PacketBytes = 34;
inline constexpr std::size_t kIma4PacketFrames = 64;
inline constexpr int kIma4Steps = 89;

/// What a channel carries from packet to packet.
struct Ima4State {
    int sample = 0;
    int step = 0;

    bool operator==(const Ima4State&) const = default;
};

/// The effect of a code at a step index: the difference to the next sample, and where in the table of moves the next
/// step index begins.
struct Ima4Move {
    std::int32_t difference = 0;
    std::int32_t next = 0;
};

extern const std::array<Ima4Move, std::size_t{kIma4Steps} * 16> kIma4Moves;

/// The rounded sample that a packet's header names, and its step index.
Ima4State ima4Header(const std::uint8_t* packet);
/// Sets the state to that of a packet's header, unless the header is just the state rounded.
void readIma4Header(const std::uint8_t* packet, Ima4State& state);
/// The code of a sample, 0 to 63, in a packet.
inline int ima4Code(const std::uint8_t* packet, std::size_t sample) {
    return packet[2 + sample / 2] >> (sample % 2 * 4) & 15;
}

/// Decodes packets of one channel that begin stride bytes apart into kIma4PacketFrames samples each.
void decodeIma4Packets(const std::uint8_t* packets, std::size_t stride, std::size_t count, Ima4State& state,
                       std::int16_t* samples);

}  // namespace tavi
