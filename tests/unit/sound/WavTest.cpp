#include "sound/HeaderDuration.h"
#include "sound/io/Bytes.h"
#include "sound/wav/WavSource.h"
#include "sound/wav/WavWriter.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

/// The body of a chunk "fmt ".
Bytes format(std::uint32_t tag, std::uint32_t channels, std::uint32_t rate, std::uint32_t bits) {
    ByteWriter writer(std::endian::little);
    writer.u16(tag);
    writer.u16(channels);
    writer.u32(rate);
    writer.u32(rate * channels * bits / 8);
    writer.u16(channels * bits / 8);
    writer.u16(bits);
    return writer.release();
}

Bytes chunk(const char* name, const Bytes& body) {
    ByteWriter length(std::endian::little);
    length.u32(body.size());
    return Bytes(name, name + 4) + length.release() + body + Bytes(body.size() % 2);
}

/// A file by its chunks; nothing tells the length of the whole.
Bytes riff(const Bytes& chunks) {
    return "RIFF\0\0\0\0WAVE"_bytes + chunks;
}

TEST(WavTest, EveryKindOfSampleIsReadFromAnyFrame) {
    // Two frames of two channels: the loudest and a half, and their negatives.
    struct Samples {
        std::uint32_t tag;
        std::uint32_t bits;
        Bytes bytes;
        float loudest;
    };
    const Samples kinds[] = {
        {1, 8, {255, 192, 1, 64}, 127 / 128.0F},
        {1, 16, {0xff, 0x7f, 0, 0x40, 1, 0x80, 0, 0xc0}, 32767 / 32768.0F},
        {1, 24, {0xff, 0xff, 0x7f, 0, 0, 0x40, 1, 0, 0x80, 0, 0, 0xc0}, 8388607 / 8388608.0F},
        {3, 32, {0, 0, 0x7f, 0x3f, 0, 0, 0, 0x3f, 0, 0, 0x7f, 0xbf, 0, 0, 0, 0xbf}, 255 / 256.0F},
        // No number, and infinity.
        {3, 32, {0, 0, 0xc0, 0x7f, 0, 0, 0, 0x3f, 0, 0, 0x80, 0xff, 0, 0, 0, 0xbf}, 0},
    };
    for (const auto& [tag, bits, bytes, loudest] : kinds) {
        SCOPED_TRACE(bits);
        // An odd chunk before, and one behind that is no sound.
        FileDescriptor file = memoryFile(riff(chunk("note", Bytes(3)) + chunk("fmt ", format(tag, 2, 8000, bits)) +
                                              chunk("data", bytes) + chunk("LIST", Bytes(8, 9))));
        EXPECT_EQ(headerDuration(file.get()), 2 / 8000.0);
        const auto source = WavSource::open(file);
        ASSERT_TRUE(source);
        EXPECT_EQ(source->length(), 2);
        EXPECT_EQ(readFrom(*source, 0), (std::vector<std::vector<float>>{{loudest, -loudest}, {0.5F, -0.5F}}));
        EXPECT_EQ(readFrom(*source, 1)[1], std::vector<float>{-0.5F});
    }
}

TEST(WavTest, LengthsAreThoseOfWhatIsThere) {
    const Bytes whole = riff(chunk("fmt ", format(1, 1, 8000, 16)) + chunk("data", Bytes(100)));
    const auto framesOf = [](const Bytes& bytes) {
        const FileDescriptor file = memoryFile(bytes);
        const auto header = readWavHeader(file.get());
        return header ? header->frames : -1;
    };
    const auto with = [&](std::size_t at, std::uint8_t value, int count = 1) {
        Bytes changed = whole;
        std::fill_n(changed.begin() + static_cast<std::ptrdiff_t>(at), count, value);
        return changed;
    };
    EXPECT_EQ(framesOf(whole), 50);
    // The length was never filled in, reaches behind the end, or cuts a frame.
    EXPECT_EQ(framesOf(with(40, 0xff, 4)), 50);
    EXPECT_EQ(framesOf(with(41, 1)), 50);
    EXPECT_EQ(framesOf(with(40, 99)), 49);
    EXPECT_EQ(framesOf(Bytes(whole.begin(), whole.end() - 51)), 24);
    // Another codec, no channel's bytes, no rate, no format, no data, and a million chunks that say nothing.
    for (const Bytes& bytes : {with(20, 2), with(32, 0), with(24, 0, 4), with(12, 'x'), with(36, 'x'), Bytes(),
                               riff(Bytes(std::size_t{8} << 20))}) {
        EXPECT_EQ(framesOf(bytes), -1);
    }
}

TEST(WavTest, ExtensibleFormatsNameTheLoudspeakers) {
    const Bytes more = "\x16\0\x10\0\x3f\0\0\0\1\0\0\0\0\0\x10\0\x80\0\0\xaa\0\x38\x9b\x71"_bytes;
    FileDescriptor file =
        memoryFile(riff(chunk("fmt ", format(0xfffe, 6, 48000, 16) + more) + chunk("data", Bytes(24))));
    const auto source = WavSource::open(file);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->channelMask(), 0x3fU);
    EXPECT_EQ(source->length(), 2);
}

TEST(WavTest, WhatIsWrittenIsReadAlsoBeyondFourGigabytes) {
    // An odd number of bytes, with the one that pads it.
    for (const std::uint64_t bytes : {std::uint64_t{3}, (std::uint64_t{1} << 32) + 1}) {
        const Bytes header = wavHeader(format(1, 1, 8000, 8), bytes, bytes);
        FileDescriptor file = memoryFile(header, std::ssize(header) + static_cast<std::int64_t>(bytes) + 1);
        ByteReader reader(header, std::endian::little);
        EXPECT_EQ(reader.code(), fourCharacterCode(bytes == 3 ? "RIFF" : "RF64"));
        EXPECT_EQ(reader.u32(), bytes == 3 ? header.size() - 8 + 4 : 0xffffffff);
        reader.skip(12);
        EXPECT_TRUE(bytes == 3 || reader.u64() == header.size() - 8 + bytes + 1);
        EXPECT_EQ(headerDuration(file.get()), static_cast<double>(bytes) / 8000);
        const auto source = WavSource::open(file);
        ASSERT_TRUE(source);
        EXPECT_EQ(readFrom(*source, source->length() - 2)[0].size(), 2U);
    }
}

}  // namespace

}  // namespace tavi::test
