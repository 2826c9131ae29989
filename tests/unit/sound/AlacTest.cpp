#include <array>
#include <string_view>

#include "sound/alac/AlacDecoder.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

/// The box "alac" for 16 bits; the last bytes are the rate.
Bytes cookie(std::uint8_t channels, std::uint8_t historyFactor = 40, std::uint8_t initialHistory = 10,
             std::uint8_t riceLimit = 14) {
    return {
        0,         0,        0, 36, 'a', 'l', 'a', 'c', 0, 0, 0, 0, 0, 0, 16, 0, 0, 16, historyFactor, initialHistory,
        riceLimit, channels, 0, 0,  0,   0,   64,  4,   0, 0, 0, 0, 0, 0, 31, 64};
}

/// With what the decoder may read behind it.
Bytes packet(std::string_view hexadecimal) {
    Bytes bytes;
    for (std::size_t i = 0; i < hexadecimal.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(std::string(hexadecimal.substr(i, 2)), nullptr, 16)));
    }
    return bytes;
}

/// Decodes a packet and says how many samples came.
int decode(AlacDecoder& decoder, Bytes bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + AlacDecoder::kPadding, 0xff);
    return decoder.decode(std::span(bytes).first(size));
}

/// 80 samples: silence, then a tone that is less loud on the right under a little noise, with a crack on the left.
std::vector<std::int32_t> wanted(int channel) {
    std::vector<std::int32_t> samples;
    for (int i = 0, before = 0, now = 900; i < 80; ++i) {
        const int next = (31304 * now >> 14) - before;
        before = now;
        now = next;
        const int tone = i < 24 ? 0 : now;
        samples.push_back(channel == 0 ? tone + (i == 60 ? 20000 : 0) : tone * 3 / 4 + (i < 24 ? 0 : i * 37 % 17));
    }
    return samples;
}

// That sound as libavcodec's encoder packs it: predicted from so many samples.
constexpr std::string_view kStereo =
    "200010000000a03e020f080157ffd3ffdbffd2130800760058002ffffea7fe11d1fd09e8c8d25bf4ad5999ef317c2ec3d4b619d4bc394025d3"
    "ba608ecf8a0ec3c91b4384e76c13478075bc3933611d1fbd773e7da11468881663b8f126a4db9a82ef86466c38526cb914ffc0bcfff02837f5"
    "6cef127a3becbfd01c99e0de8358d710298216cb4d7831c6ce166b0e02c862ad389f78edaf9c11e0bec7442b285507385dff4ffc6c78f18383"
    "0f0ffcadaa3c111581dc2ac6048c8abcbd4b70a5884c580240113c";
constexpr std::string_view kFromFive =
    "000010000000a00000110a0104009e0037ffd7ff80a7fe2f73ff0af84971f33f8f0fd06fe09f35fbfcc964c99904df3a98edd9df0c5c1f6b7f"
    "0ef2986dcf146bdcae723601b0ccfb5f0c879d22fb039521ffa4e6f7946cdc4c04851aaeef310658a40a787a44c029a14688ee3610fd034891"
    "d28780";
constexpr std::string_view kFromSeven =
    "000010000000a00000130e019e010e00860011ffb1ff6bff3ea7fe2f73ff0d6cca575358b87f9ace87fc4837d2d78e4e77733511234e6db48f"
    "cfc7859c47703bae748816542850ea0df403b40de4ee3b531906b000bf184ffe8c9ba81efd747028be6d4bb3b09bf6e28628ad89025f536f9c"
    "70d485851f187a4069e0";
constexpr std::string_view kFromEight =
    "000010000000a000001310018200fa007a0013ffc5ff91ff77ff72a7fe2f73ff0e12dbd2331737db70b16223ffc519fe14fd2575279967a887"
    "6dbb842effb22dca5712db14477930c2915f23ff5b3c07b0f2c062b6320757e094ffd034748ade5e6f84fccab555256a142d78f806f473e54d"
    "3459cb0e2a64726d8bf01b8e";

TEST(AlacTest, packetsAreDecodedBitByBit) {
    for (const auto& [channels, bytes] : {std::pair(2, kStereo), {1, kFromFive}, {1, kFromEight}}) {
        auto decoder = AlacDecoder::create(cookie(static_cast<std::uint8_t>(channels)));
        ASSERT_TRUE(decoder);
        // Every packet stands for itself.
        for (int round = 0; round < 2; ++round) {
            ASSERT_EQ(decode(*decoder, packet(bytes)), 80);
            for (int channel = 0; channel < channels; ++channel) {
                const auto* samples = decoder->samples(channel);
                EXPECT_EQ(std::vector(samples, samples + 80), wanted(channel)) << bytes.substr(0, 20);
            }
        }
    }
}

TEST(AlacTest, whatIsNotUnderstoodOrCutOffIsRefused) {
    auto mono = AlacDecoder::create(cookie(1));
    EXPECT_EQ(decode(*mono, packet(kFromSeven)), 0);
    EXPECT_EQ(decode(*mono, packet(kStereo)), 0);
    for (std::size_t size = 0; size < kFromFive.size(); size += 2) {
        EXPECT_EQ(decode(*mono, packet(kFromFive.substr(0, size))), 0) << size;
    }
    // More channels, another depth, longer codes than there are, no samples.
    for (const auto& [at, value] : {std::pair(21, 3), {17, 24}, {20, 25}, {14, 0}, {4, 'x'}}) {
        Bytes changed = cookie(1);
        changed[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(value);
        EXPECT_FALSE(AlacDecoder::create(changed)) << at;
    }
    EXPECT_FALSE(AlacDecoder::create(Bytes(35)));
}

/// Writes a packet code by code, as a hostile encoder could.
class Packet {
public:
    void bits(std::uint64_t value, int count) {
        for (int i = count - 1; i >= 0; --i) {
            m_bytes.resize(static_cast<std::size_t>(m_size / 8 + 1));
            m_bytes.back() = static_cast<std::uint8_t>(m_bytes.back() | (value >> i & 1) << (7 - m_size++ % 8));
        }
    }
    /// The header of an element of two channels, with so many samples predicted from none.
    void begin(std::uint32_t samples, int mixShift, int mixWeight) {
        bits(1, 3);
        bits(8, 20);
        bits(samples, 32);
        bits(static_cast<std::uint64_t>(mixShift), 8);
        bits(static_cast<std::uint64_t>(mixWeight), 8);
        bits(0x01e0, 16);
        bits(0x01e0, 16);
    }
    /// One number as large as its code allows, up to a limit; the history as the decoder keeps it.
    void number(std::uint32_t most, std::uint32_t factor) {
        const auto k = static_cast<unsigned>(std::bit_width((m_history >> 9) + 3)) - 1;
        const std::uint32_t base = (1U << k) - 1;
        const std::uint32_t value = std::min(most, 8 * base + base - 1);
        bits((1U << (value / base)) - 1, static_cast<int>(value / base));
        bits(0, 1);
        if (k > 1) {
            bits(value % base == 0 ? 0 : value % base + 1, static_cast<int>(value % base == 0 ? k - 1 : k));
        }
        m_history = value > 0xffff ? 0xffff : m_history + value * factor - (m_history * factor >> 9);
    }
    void beginChannel(std::uint32_t history) { m_history = history; }
    const Bytes& bytes() const { return m_bytes; }

private:
    Bytes m_bytes;
    std::uint64_t m_size = 0;
    std::uint32_t m_history = 0;
};

TEST(AlacTest, hostileNumbersNeverLeaveTheRangeOfTheirType) {
    constexpr std::uint32_t kSamples = 400;
    // The history grows until a code of millions fits.
    constexpr std::uint32_t kFactor = 7 * 255 / 4;
    Packet hostile;
    hostile.begin(kSamples, 0, 127);
    for (int channel = 0; channel < 2; ++channel) {
        hostile.beginChannel(255);
        for (std::uint32_t i = 0; i < kSamples; ++i) {
            hostile.number(i + 1 < kSamples ? 0xffff : 0xffffffff, kFactor);
        }
    }
    hostile.bits(7, 3);
    auto decoder = AlacDecoder::create(cookie(2, 255, 255, 24));
    ASSERT_TRUE(decoder);
    EXPECT_EQ(decode(*decoder, hostile.bytes()), static_cast<int>(kSamples));
}

}  // namespace

}  // namespace tavi::test
