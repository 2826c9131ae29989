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

/// A file by its chunks; nothing tells the length of the whole.
Bytes chunks(std::initializer_list<std::pair<const char*, Bytes>> all, const char* form = "RIFF") {
    Bytes file(form, form + 4);
    const std::string rest("\0\0\0\0WAVE", 8);
    file.insert(file.end(), rest.begin(), rest.end());
    for (const auto& [name, body] : all) {
        ByteWriter writer(std::endian::little);
        writer.u32(body.size());
        file.insert(file.end(), name, name + 4);
        file.insert(file.end(), writer.data().begin(), writer.data().end());
        file.insert(file.end(), body.begin(), body.end());
        file.resize(file.size() + body.size() % 2);
    }
    return file;
}

/// Two frames of two channels: 1, a half, and their negatives, near full scale.
struct Samples {
    const char* name;
    std::uint32_t tag;
    std::uint32_t bits;
    Bytes bytes;
};

TEST(WavTest, everyKindOfSampleIsReadFromAnyFrame) {
    const Samples kinds[] = {
        {"unsigned 8", 1, 8, {255, 192, 1, 64}},
        {"signed 16", 1, 16, {0xff, 0x7f, 0, 0x40, 0, 0x81, 0, 0xc0}},
        {"signed 24", 1, 24, {0xff, 0xff, 0x7f, 0, 0, 0x40, 0, 0, 0x81, 0, 0, 0xc0}},
        {"float", 3, 32, {0, 0, 0x7f, 0x3f, 0, 0, 0, 0x3f, 0, 0, 0x7f, 0xbf, 0, 0, 0, 0xbf}},
    };
    for (const auto& [name, tag, bits, bytes] : kinds) {
        SCOPED_TRACE(name);
        // An odd chunk before, and one behind that is no sound.
        FileDescriptor file = memoryFile(
            chunks({{"note", Bytes(3)}, {"fmt ", format(tag, 2, 8000, bits)}, {"data", bytes}, {"LIST", Bytes(8, 9)}}));
        EXPECT_EQ(headerDuration(file.get()), 2 / 8000.0);
        const auto source = WavSource::open(file);
        ASSERT_TRUE(source);
        EXPECT_EQ(source->length(), 2);
        const auto sound = readFrom(*source, 0);
        ASSERT_EQ(sound[0].size(), 2U);
        EXPECT_NEAR(sound[0][0], 1, 0.01);
        EXPECT_EQ(sound[1][0], 0.5F);
        EXPECT_NEAR(sound[0][1], -1, 0.01);
        EXPECT_EQ(readFrom(*source, 1)[1], std::vector<float>{-0.5F});
    }
}

TEST(WavTest, lengthsAreThoseOfWhatIsThere) {
    const Bytes whole = chunks({{"fmt ", format(1, 1, 8000, 16)}, {"data", Bytes(100)}});
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
    // Another codec, no channel's bytes, no rate, no format, no data.
    for (const Bytes& bytes : {with(20, 2), with(32, 0), with(24, 0, 4), with(12, 'x'), with(36, 'x'), Bytes()}) {
        EXPECT_EQ(framesOf(bytes), -1);
    }
    // A million chunks that say nothing do not keep the reader busy.
    Bytes empty(std::size_t{8} << 20);
    std::copy_n(whole.begin(), 12, empty.begin());
    EXPECT_EQ(framesOf(empty), -1);
}

TEST(WavTest, extensibleFormatsNameTheLoudspeakers) {
    Bytes extensible = format(0xfffe, 6, 48000, 16);
    const Bytes more = {22, 0, 16, 0, 0x3f, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0x10, 0, 0x80, 0, 0, 0xaa, 0, 0x38, 0x9b, 0x71};
    extensible.insert(extensible.end(), more.begin(), more.end());
    FileDescriptor file = memoryFile(chunks({{"fmt ", extensible}, {"data", Bytes(24)}}));
    const auto source = WavSource::open(file);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->channelMask(), 0x3fU);
    EXPECT_EQ(source->length(), 2);
}

TEST(WavTest, whatIsWrittenIsReadAlsoBeyondFourGigabytes) {
    const Bytes pcm = format(1, 1, 8000, 16);
    for (const std::int64_t frames : {std::int64_t{3}, std::int64_t{1} << 32}) {
        const Bytes header = wavHeader(pcm, static_cast<std::uint64_t>(frames) * 2, static_cast<std::uint64_t>(frames));
        FileDescriptor file = memoryFile(header, std::ssize(header) + frames * 2 + 40);
        ByteReader reader(header, std::endian::little);
        EXPECT_EQ(reader.code(), fourCharacterCode(frames == 3 ? "RIFF" : "RF64"));
        // All that follows.
        EXPECT_EQ(reader.u32(), frames == 3 ? header.size() - 8 + 6 : 0xffffffff);
        EXPECT_EQ(headerDuration(file.get()), static_cast<double>(frames) / 8000);
        const auto source = WavSource::open(file);
        ASSERT_TRUE(source);
        EXPECT_EQ(source->length(), frames);
        EXPECT_EQ(readFrom(*source, frames - 2)[0].size(), 2U);
    }
}

}  // namespace

}  // namespace tavi::test
