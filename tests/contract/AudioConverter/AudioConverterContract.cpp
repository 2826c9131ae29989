#include <gmock/gmock.h>

#include <numeric>

#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"
#include "support/ClientBuffers.h"
#include "support/FakeAudioConverter.h"

namespace tavi::test {
namespace {

template <class Converters>
class AudioConverterContract : public ::testing::Test {};

using Both = ::testing::Types<FakeAudioConverters, FfmpegAudioConverters>;
TYPED_TEST_SUITE(AudioConverterContract, Both);

TYPED_TEST(AudioConverterContract, TakesInputAsItComesAndEndsWithIt) {
    const auto input = clientFormat(44100, 2, true);
    const auto output = clientFormat(44100, 2);
    std::unique_ptr<AudioConverter> converter;
    ASSERT_EQ(TypeParam().create(input, output, converter), kAudioNoError);
    // Blocks of 7 frames, whatever is asked for; 70 frames in all.
    ClientBuffers block(input, 7);
    float next = 0;
    const AudioConverter::InputProcedure procedure = [&](std::uint32_t& packets, const AudioBufferList*& data) {
        auto* samples = static_cast<float*>(block.list().buffers[0].data);
        packets = next < 70 ? 7 : 0;
        for (std::uint32_t i = 0; i < packets; ++i, ++next) {
            samples[2 * i] = next;
            samples[2 * i + 1] = -next;
        }
        data = &block.list();
        return kAudioNoError;
    };
    std::vector<float> left;
    for (const std::uint32_t wanted : {5U, 30U, 100U, 100U}) {
        ClientBuffers buffers(output, wanted);
        std::uint32_t packets = wanted;
        ASSERT_EQ(converter->fillComplexBuffer(procedure, packets, buffers.list(), nullptr), kAudioNoError);
        const auto samples = buffers.template samples<float>(0);
        EXPECT_EQ(samples.size(), packets);
        left.insert(left.end(), samples.begin(), samples.end());
        EXPECT_TRUE(packets == 0 || buffers.template samples<float>(1).back() == -samples.back());
    }
    std::vector<float> expected(70);
    std::iota(expected.begin(), expected.end(), 0.0F);
    EXPECT_EQ(left, expected);
}

TYPED_TEST(AudioConverterContract, PassesAFailureOnAndRefusesWhatIsNotLinear) {
    const auto format = clientFormat(44100, 1);
    std::unique_ptr<AudioConverter> converter;
    ASSERT_EQ(TypeParam().create(format, format, converter), kAudioNoError);
    ClientBuffers buffers(format, 10);
    std::uint32_t packets = 10;
    EXPECT_EQ(converter->fillComplexBuffer([](auto&, auto&) { return kAudioFilePermissionsError; }, packets,
                                           buffers.list(), nullptr),
              kAudioFilePermissionsError);
    EXPECT_EQ(packets, 0U);

    AudioStreamBasicDescription compressed;
    compressed.formatID = kAudioFormatMPEG4AAC;
    EXPECT_EQ(TypeParam().create(compressed, format, converter), kAudioFileUnsupportedDataFormatError);
    EXPECT_FALSE(converter);
}

TEST(FfmpegAudioConvertersTest, SamplesOfEverySizeKeepTheirLevel) {
    FfmpegAudioConverters converters;
    const auto floats = clientFormat(8000, 1);
    const std::vector<float> values = {0, 0.25F, -0.5F, -1, 1.5F, -7};
    // No more is taken than the input's buffer holds, whatever is asked for.
    const std::vector<float> clipped = {0, 0.25F, -0.5F, -1, 1, -1, 0, 0.25F, -0.5F};
    for (const std::uint32_t bits : {8U, 16U, 24U, 32U}) {
        auto format = clientFormat(8000, 1, true, false);
        format.bitsPerChannel = bits;
        format.bytesPerFrame = format.bytesPerPacket = bits / 8;
        ClientBuffers input(floats, 6);
        ClientBuffers stored(format, 9);
        ClientBuffers result(floats, 9);
        std::memcpy(input.list().buffers[0].data, values.data(), 24);
        const auto convert = [&](auto& from, ClientBuffers& source, auto& to, ClientBuffers& target) {
            std::unique_ptr<AudioConverter> converter;
            ASSERT_EQ(converters.create(from, to, converter), kAudioNoError);
            std::uint32_t packets = 9;
            const auto procedure = [&](auto&, auto& data) { return data = &source.list(), kAudioNoError; };
            ASSERT_EQ(converter->fillComplexBuffer(procedure, packets, target.list(), nullptr), kAudioNoError);
        };
        convert(floats, input, format, stored);
        convert(format, stored, floats, result);
        EXPECT_THAT(result.samples<float>(0),
                    ::testing::Pointwise(::testing::FloatNear(2.0F / (1 << std::min(bits, 24U))), clipped))
            << bits;
    }
}

TEST(FfmpegAudioConvertersTest, CodecsTellTheirPackets) {
    const FfmpegAudioConverters converters;
    AudioStreamBasicDescription unknown = clientFormat(8000, 1);
    unknown.formatID = fourCharacterCode("none");
    EXPECT_EQ(converters.formatInfo(unknown), kAudioFileUnsupportedDataFormatError);
    struct Codec {
        std::uint32_t id;
        double rate;
        std::uint32_t asked;
        std::pair<std::uint32_t, std::uint32_t> packet;
    };
    for (const auto& [id, rate, asked, packet] : {Codec{kAudioFormatMPEG4AAC, 44100, 0, {1024, 0}},
                                                  {kAudioFormatiLBC, 8000, 0, {240, 50}},
                                                  {kAudioFormatiLBC, 8000, 160, {160, 38}},
                                                  {kAudioFormatAppleIMA4, 44100, 0, {64, 34}}}) {
        AudioStreamBasicDescription format = clientFormat(rate, 1);
        format.formatID = id;
        format.framesPerPacket = asked;
        EXPECT_EQ(converters.formatInfo(format), kAudioNoError);
        EXPECT_EQ(std::pair(format.framesPerPacket, format.bytesPerPacket), packet);
    }
}

}  // namespace
}  // namespace tavi::test
