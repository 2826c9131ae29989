#include <limits>
#include <random>

#include "sound/HeaderDuration.h"
#include "sound/caf/CafHeader.h"
#include "sound/caf/CafWriter.h"
#include "sound/caf/Ima4Cut.h"
#include "sound/caf/Ima4Source.h"
#include "sound/io/Bytes.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

constexpr std::size_t kFrames = kIma4PacketFrames;

/// Decodes a packet one code after the other, as the format is written down; clipped where it must be.
void decodePacket(const std::uint8_t* packet, Ima4State& state, std::vector<float>& sound) {
    readIma4Header(packet, state);
    for (std::size_t i = 0; i < kFrames; ++i) {
        const auto& move = kIma4Moves[static_cast<std::size_t>(state.step * 16 + ima4Code(packet, i))];
        state.sample = std::clamp(state.sample + move.difference, -32768, 32767);
        state.step = move.next / 16;
        sound.push_back(static_cast<float>(state.sample) / 32768);
    }
}

/// A channel of a stream, from a packet on, as a decoder that starts there hears it.
std::vector<float> decoded(std::span<const std::uint8_t> packets, std::size_t channels, std::size_t channel) {
    Ima4State state;
    std::vector<float> sound;
    const std::size_t stride = channels * kIma4PacketBytes;
    for (std::size_t at = 0; at + stride <= packets.size(); at += stride) {
        decodePacket(packets.data() + at + channel * kIma4PacketBytes, state, sound);
    }
    return sound;
}

/// Packets as an encoder makes them: each names the rounded sample before it. Codes are chosen at random.
Bytes packets(std::size_t count, std::size_t channels, unsigned loudest) {
    std::mt19937 random(5);
    Bytes bytes(count * channels * kIma4PacketBytes);
    std::vector<Ima4State> states(channels);
    for (std::size_t at = 0; at < count * channels; ++at) {
        Ima4State& state = states[at % channels];
        std::uint8_t* packet = bytes.data() + at * kIma4PacketBytes;
        const auto header = static_cast<std::uint16_t>((state.sample & ~0x7f) | state.step);
        packet[0] = static_cast<std::uint8_t>(header >> 8);
        packet[1] = static_cast<std::uint8_t>(header);
        for (std::size_t i = 2; i < kIma4PacketBytes; ++i) {
            packet[i] = static_cast<std::uint8_t>(random() % loudest | random() % loudest << 4 | (random() & 0x88));
        }
        std::vector<float> sound;
        decodePacket(packet, state, sound);
    }
    return bytes;
}

struct Caf {
    double rate = 8000;
    std::uint32_t channels = 1;
    std::uint32_t packetBytes = 34 * channels;
    std::uint32_t packetFrames = 64;
    /// As a number that stands for none.
    std::int64_t validFrames = -1;
    std::uint32_t priming = 0;
    /// What is said of the length of the data, where it is not that of the packets.
    std::optional<std::int64_t> dataBytes = {};
};

Bytes cafFile(const Caf& caf, const Bytes& packets) {
    ByteWriter writer;
    const auto begin = [&writer](const char* type, std::int64_t bytes) {
        writer.bytes(Bytes(type, type + 4));
        writer.u64(static_cast<std::uint64_t>(bytes));
    };
    writer.bytes("caff\0\1\0\0"_bytes);
    begin("desc", 32);
    writer.u64(std::bit_cast<std::uint64_t>(caf.rate));
    for (const std::uint32_t value :
         {std::uint32_t{kAudioFormatAppleIMA4}, 0U, caf.packetBytes, caf.packetFrames, caf.channels, 0U}) {
        writer.u32(value);
    }
    if (caf.validFrames >= 0) {
        begin("pakt", 24);
        writer.u64(0);
        writer.u64(static_cast<std::uint64_t>(caf.validFrames));
        writer.u32(caf.priming);
        writer.u32(0);
    }
    begin("data", caf.dataBytes.value_or(std::ssize(packets) + 4));
    writer.u32(0);
    writer.bytes(packets);
    return writer.release();
}

TEST(CafTest, Ima4IsReadExactlyFromAnyFrame) {
    // So loud that samples are clipped, and packets beyond one block.
    for (const auto& [count, channels, loudest] : {std::tuple(600U, 1U, 8U), {300, 2, 5}, {3, 3, 2}}) {
        const Bytes sound = packets(count, channels, loudest);
        for (const std::uint32_t priming : {0U, 70U}) {
            SCOPED_TRACE(testing::Message() << count << " packets, priming " << priming);
            const std::int64_t frames = std::int64_t{count} * 64 - 71;
            FileDescriptor file =
                memoryFile(cafFile({.channels = channels, .validFrames = frames, .priming = priming}, sound));
            EXPECT_EQ(headerDuration(file.get()), static_cast<double>(frames) / 8000);
            const auto source = Ima4Source::open(file);
            ASSERT_TRUE(source);
            ASSERT_EQ(source->length(), frames);
            for (const std::int64_t from : {frames / 2, std::int64_t{0}, frames - 1, frames / 3}) {
                const auto heard = readFrom(*source, from);
                for (std::size_t channel = 0; channel < heard.size(); ++channel) {
                    const auto all = decoded(sound, heard.size(), channel);
                    const auto begin = all.begin() + priming;
                    EXPECT_EQ(heard[channel], std::vector<float>(begin + from, begin + frames)) << from;
                }
            }
        }
    }
}

TEST(CafTest, LengthsAreThoseOfWhatIsThere) {
    constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
    const auto framesOf = [](const Caf& caf, std::int64_t size = 0) {
        const FileDescriptor file = memoryFile(cafFile(caf, Bytes(340)), size);
        const auto header = readCafHeader(file.get());
        return header ? header->frames : -2;
    };
    EXPECT_EQ(framesOf({}), 640);
    // A length that is not filled in, reaches behind the end or makes no sense.
    for (const std::int64_t bytes : {std::int64_t{-1}, std::int64_t{1} << 62, kLowest}) {
        EXPECT_EQ(framesOf({.dataBytes = bytes}), 640) << bytes;
    }
    EXPECT_EQ(framesOf({.dataBytes = 4 + 35}), 64);
    EXPECT_EQ(framesOf({.validFrames = 600, .priming = 9}), 600);
    EXPECT_EQ(framesOf({.validFrames = 1000, .priming = 9}), 631);
    EXPECT_EQ(framesOf({.validFrames = 1, .priming = 700}), 0);
    // Packets that vary: the table alone tells.
    EXPECT_EQ(framesOf({.packetBytes = 0, .validFrames = 77}), 77);
    EXPECT_EQ(framesOf({.packetBytes = 0}), -1);
    for (const double rate : {0.0, -8000.0, 1e9, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(framesOf({.rate = rate}), -2);
    }
    // More frames than numbers for them.
    EXPECT_GT(framesOf({.packetBytes = 1, .packetFrames = 1 << 20, .dataBytes = -1}, std::int64_t{1} << 62), 0);
    for (const Caf& caf : {Caf{.channels = 0}, Caf{.channels = 1U << 20, .packetBytes = 34}, Caf{.packetFrames = 63}}) {
        FileDescriptor file = memoryFile(cafFile(caf, Bytes(340)));
        EXPECT_FALSE(Ima4Source::open(file));
        EXPECT_TRUE(file.isValid());
    }
}

TEST(CafTest, ACutIsHeardAsInTheWholeFromItsSecondPacketOn) {
    for (const auto& [count, channels, loudest] : {std::tuple(2000U, 1U, 3U), {700, 2, 4}, {40, 1, 8}}) {
        const std::size_t width = channels * kIma4PacketBytes;
        const Bytes whole = packets(count, channels, loudest);
        const FileDescriptor file = memoryFile(cafFile({.channels = channels}, whole));
        Ima4Cut cut(file.get(), *readCafHeader(file.get()), [] { return false; });
        for (const std::size_t first : {0U, 1U, count / 2, count - 2}) {
            SCOPED_TRACE(testing::Message() << "from packet " << first << " of " << count);
            const auto changed = cut.firstPackets(static_cast<std::int64_t>(first));
            ASSERT_TRUE(changed);
            ASSERT_LE(changed->size(), 2 * width);
            const std::size_t start = first * width;
            Bytes stretch(whole.begin() + static_cast<std::ptrdiff_t>(start), whole.end());
            std::copy(changed->begin(), changed->end(), stretch.begin());
            for (std::size_t channel = 0; channel < channels; ++channel) {
                const auto all = decoded(whole, channels, channel);
                const auto heard = decoded(stretch, channels, channel);
                const std::size_t same = changed->size() / width * kFrames;
                EXPECT_TRUE(std::equal(heard.begin() + static_cast<std::ptrdiff_t>(same), heard.end(),
                                       all.begin() + static_cast<std::ptrdiff_t>(first * kFrames + same)));
            }
        }
    }
    const FileDescriptor file = memoryFile(cafFile({}, packets(9, 1, 3)));
    Ima4Cut cut(file.get(), *readCafHeader(file.get()), [] { return false; });
    ASSERT_EQ(::ftruncate(file.get(), 200), 0);
    EXPECT_FALSE(cut.firstPackets(8));
}

TEST(CafTest, AHeaderLikeAnothersKeepsItsDescription) {
    const Bytes sound = packets(10, 1, 3);
    const Bytes note = "note\0\0\0\0\0\0\0\2hi"_bytes;
    Bytes other = cafFile({.validFrames = 640}, sound);
    other.insert(other.begin() + 8, note.begin(), note.end());
    const auto header = cafHeaderLike(memoryFile(other).get(), CafPacketTable{2, 100, 20, 8}, 68);
    ASSERT_TRUE(header);
    EXPECT_TRUE(std::search(header->begin(), header->end(), note.begin(), note.end()) != header->end());
    // What follows the packets does not count.
    const auto read = readCafHeader(memoryFile(*header + sound).get());
    ASSERT_TRUE(read);
    EXPECT_EQ(std::tuple(read->frames, read->primingFrames), std::tuple(100, 20));
    EXPECT_EQ(std::tuple(read->dataOffset, read->dataBytes), std::tuple(std::ssize(*header), 68));
    EXPECT_FALSE(cafHeaderLike(memoryFile(Bytes(50)).get(), {}, 0));
}

}  // namespace

}  // namespace tavi::test
