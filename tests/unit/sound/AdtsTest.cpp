#include <numeric>

#include "sound/HeaderDuration.h"
#include "sound/adts/AdtsStream.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

constexpr unsigned k8000 = 11;
constexpr unsigned k16000 = 8;

/// A frame of that many bytes and blocks, filled with a value.
Bytes frame(std::size_t size, int blocks, std::uint8_t filling, unsigned rateIndex = k8000) {
    Bytes bytes(size, filling);
    const Bytes header = {0xff,
                          0xf1,
                          static_cast<std::uint8_t>(0x40 | rateIndex << 2),
                          static_cast<std::uint8_t>(0x40 | size >> 11),
                          static_cast<std::uint8_t>(size >> 3),
                          static_cast<std::uint8_t>(size << 5 | 0x1f),
                          static_cast<std::uint8_t>(0xfc | (blocks - 1))};
    std::copy(header.begin(), header.end(), bytes.begin());
    return bytes;
}

Bytes joined(const std::vector<Bytes>& parts) {
    return std::accumulate(parts.begin(), parts.end(), Bytes{}, [](Bytes all, const Bytes& part) {
        all.insert(all.end(), part.begin(), part.end());
        return all;
    });
}

TEST(AdtsTest, everyFrameIsFoundFromAnyBlock) {
    // Long enough for several windows. What lies between is skipped, though it looks like a header now and then.
    std::vector<Bytes> parts;
    std::vector<std::pair<std::int64_t, Bytes>> wanted;
    std::int64_t blocks = 0;
    for (int i = 0; i < 900; ++i) {
        const int count = i % 5 == 0 ? 3 : 1;
        const std::size_t size = i == 300 ? 8191 : 100 + static_cast<std::size_t>(i) % 700;
        parts.push_back(frame(size, count, static_cast<std::uint8_t>(i)));
        wanted.emplace_back(blocks, parts.back());
        blocks += count;
        if (i % 100 == 50) {
            parts.push_back(Bytes(static_cast<std::size_t>(i), 0xff));
            parts.push_back(frame(60, 1, 0));
            parts.back().resize(50);
            parts.push_back(frame(60, 1, 0, k16000));
        }
    }
    // The last one is cut off.
    parts.push_back(frame(90, 1, 0));
    parts.back().pop_back();
    const FileDescriptor file = memoryFile(joined(parts));
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

TEST(AdtsTest, whatOnlyBeginsLikeAStreamIsNone) {
    const Bytes one = frame(40, 1, 0);
    EXPECT_TRUE(AdtsStream::read(memoryFile(one).get()));
    EXPECT_TRUE(AdtsStream::read(memoryFile(joined({one, one, Bytes(9)})).get()));
    for (const Bytes& bytes : {Bytes(), Bytes(one.begin(), one.begin() + 6), Bytes(one.begin(), one.end() - 1),
                               joined({one, Bytes(9)}), joined({Bytes(1), one, one}), Bytes(100, 0xff)}) {
        EXPECT_FALSE(AdtsStream::read(memoryFile(bytes).get())) << bytes.size();
    }
}

}  // namespace

}  // namespace tavi::test
