#include "sound/HeaderDuration.h"
#include "sound/adts/AdtsStream.h"
#include "sound/io/Bytes.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

constexpr unsigned k8000 = 11;
constexpr unsigned k16000 = 8;

/// A frame of that many bytes and blocks, filled with a value.
Bytes frame(std::size_t size, int blocks = 1, std::uint8_t filling = 0, unsigned rateIndex = k8000) {
    ByteWriter header;
    header.u16(0xfff1);
    header.u16(0x4040 | rateIndex << 10 | size >> 11);
    header.u16(size << 5 | 0x1f);
    header.u8(0xfbU + static_cast<unsigned>(blocks));
    return header.release() + Bytes(size - kAdtsHeaderBytes, filling);
}

TEST(AdtsTest, EveryFrameIsFoundFromAnyBlock) {
    // Long enough for several windows. What lies between is skipped, though it looks like a header now and then.
    Bytes stream;
    std::vector<std::pair<std::int64_t, Bytes>> wanted;
    std::int64_t blocks = 0;
    for (int i = 0; i < 900; ++i) {
        const int count = i % 5 == 0 ? 3 : 1;
        const std::size_t size = i == 300 ? 8191 : 100 + static_cast<std::size_t>(i) % 700;
        wanted.emplace_back(blocks, frame(size, count, static_cast<std::uint8_t>(i)));
        stream = std::move(stream) + wanted.back().second;
        blocks += count;
        if (i % 100 == 50) {
            Bytes half = frame(60);
            half.resize(50);
            stream = std::move(stream) + Bytes(static_cast<std::size_t>(i), 0xff) + half + frame(60, 1, 0, k16000);
        }
    }
    // The last one is cut off.
    stream = std::move(stream) + frame(90);
    stream.pop_back();
    const FileDescriptor file = memoryFile(stream);
    EXPECT_EQ(headerDuration(file.get()), static_cast<double>(blocks) * 1024 / 8000);
    auto reader = AdtsPacketReader::open(file.get());
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->stream().largestFrame(), 8191U);
    for (const std::int64_t from :
         {std::int64_t{0}, blocks - 1, blocks / 2, std::int64_t{1}, std::int64_t{64}, blocks}) {
        auto next = std::find_if(wanted.begin(), wanted.end(), [&](const auto& each) { return each.first > from; });
        next = from < blocks ? next - 1 : next;
        reader->seek(from);
        for (; next != wanted.end(); ++next) {
            const auto packet = reader->next();
            ASSERT_TRUE(packet) << from;
            ASSERT_EQ(packet->start, next->first);
            ASSERT_TRUE(std::ranges::equal(packet->bytes, next->second)) << packet->start;
        }
        EXPECT_FALSE(reader->next());
    }
}

TEST(AdtsTest, WhatOnlyBeginsLikeAStreamIsNone) {
    const Bytes one = frame(40);
    EXPECT_TRUE(AdtsStream::read(memoryFile(one).get()));
    EXPECT_TRUE(AdtsStream::read(memoryFile(one + one + Bytes(9)).get()));
    for (const Bytes& bytes : {Bytes(), Bytes(one.begin(), one.begin() + 6), Bytes(one.begin(), one.end() - 1),
                               one + Bytes(9), Bytes(1) + one + one, Bytes(100, 0xff)}) {
        EXPECT_FALSE(AdtsStream::read(memoryFile(bytes).get())) << bytes.size();
    }
}

TEST(AdtsTest, AMegabyteWithoutAFrameEndsTheSoundAndAStopTheSearch) {
    const Bytes sound = frame(40) + frame(40);
    std::stop_source stop;
    for (const auto& [gap, blocks] : {std::pair(1 << 20, 4), {(1 << 20) + 1, 2}}) {
        const FileDescriptor file = memoryFile(sound + Bytes(static_cast<std::size_t>(gap)) + sound);
        EXPECT_EQ(headerDuration(file.get(), stop.get_token()), blocks * 1024 / 8000.0);
    }
    stop.request_stop();
    EXPECT_FALSE(headerDuration(memoryFile(sound).get(), stop.get_token()));
}

}  // namespace

}  // namespace tavi::test
