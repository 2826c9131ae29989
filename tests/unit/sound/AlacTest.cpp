#include <bit>
#include <string_view>

#include "sound/alac/AlacDecoder.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

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

// That sound as libavcodec's encoder packs it.
constexpr std::string_view kStereo =
    "200010000000a03e020f080157ffd3ffdbffd2130800760058002ffffea7fe11d1fd09e8c8d25bf4ad5999ef317c2ec3d4b619d4bc394025d3"
    "ba608ecf8a0ec3c91b4384e76c13478075bc3933611d1fbd773e7da11468881663b8f126a4db9a82ef86466c38526cb914ffc0bcfff02837f5"
    "6cef127a3becbfd01c99e0de8358d710298216cb4d7831c6ce166b0e02c862ad389f78edaf9c11e0bec7442b285507385dff4ffc6c78f18383"
    "0f0ffcadaa3c111581dc2ac6048c8abcbd4b70a5884c580240113c";
constexpr std::string_view kFromEight =
    "000010000000a000001310018200fa007a0013ffc5ff91ff77ff72a7fe2f73ff0e12dbd2331737db70b16223ffc519fe14fd2575279967a887"
    "6dbb842effb22dca5712db14477930c2915f23ff5b3c07b0f2c062b6320757e094ffd034748ade5e6f84fccab555256a142d78f806f473e54d"
    "3459cb0e2a64726d8bf01b8e";

TEST(AlacTest, PacketsAreDecodedBitByBitOrRefused) {
    for (const auto& [channels, hexadecimal] :
         {std::pair<std::uint8_t, std::string_view>{2, kStereo}, {1, kFromEight}}) {
        auto decoder = AlacDecoder::create(losslessBox(channels));
        ASSERT_TRUE(decoder);
        const Bytes whole = packet(hexadecimal);
        for (std::size_t size = 0; size <= whole.size(); ++size) {
            ASSERT_EQ(decode(*decoder, Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))),
                      size < whole.size() ? 0 : 80);
        }
        for (int channel = 0; channel < channels; ++channel) {
            EXPECT_EQ(std::vector(decoder->samples(channel), decoder->samples(channel) + 80), wanted(channel));
        }
        auto other = AlacDecoder::create(losslessBox(static_cast<std::uint8_t>(3 - channels)));
        EXPECT_EQ(decode(*other, whole), 0);
    }
    // More channels, another depth, longer codes than there are, no samples, another box, too few bytes.
    for (const auto& [at, value] : {std::pair(21, 3), {17, 24}, {20, 25}, {14, 0}, {4, 'x'}}) {
        Bytes changed = losslessBox(1);
        changed[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(value);
        EXPECT_FALSE(AlacDecoder::create(changed)) << at;
    }
    EXPECT_FALSE(AlacDecoder::create(Bytes(35)));
}

TEST(AlacTest, HostileNumbersNeverLeaveTheRangeOfTheirType) {
    // The largest number of each code, so that the history grows until one of millions fits.
    constexpr std::uint32_t kSamples = 400;
    constexpr std::uint32_t kFactor = 7 * 255 / 4;
    Bytes bytes;
    std::size_t size = 0;
    const auto put = [&](std::uint64_t value, unsigned count) {
        for (; count > 0; --count, ++size) {
            bytes.resize(size / 8 + 1);
            bytes.back() = static_cast<std::uint8_t>(bytes.back() | (value >> (count - 1) & 1) << (7 - size % 8));
        }
    };
    // Two channels of so many samples, mixed by 127, predicted from none.
    put(1, 3);
    put(8, 20);
    put(kSamples, 32);
    put(127, 16);
    put(0x01e001e0, 32);
    for (int channel = 0; channel < 2; ++channel) {
        std::uint32_t history = 255;
        for (std::uint32_t left = kSamples; left > 0; --left) {
            const auto k = static_cast<unsigned>(std::bit_width((history >> 9) + 3)) - 1;
            const std::uint32_t base = (1U << k) - 1;
            const std::uint32_t value = std::min(left > 1 ? 0xffffU : 0xffffffffU, 9 * base - 1);
            put((2U << value / base) - 2, value / base + 1);
            if (k > 1) {
                put(value % base == 0 ? 0 : value % base + 1, value % base == 0 ? k - 1 : k);
            }
            history += value * kFactor - (history * kFactor >> 9);
        }
    }
    put(7, 3);
    auto decoder = AlacDecoder::create(losslessBox(2, 255, 255, 24));
    EXPECT_EQ(decode(*decoder, bytes), static_cast<int>(kSamples));
}

}  // namespace

}  // namespace tavi::test
