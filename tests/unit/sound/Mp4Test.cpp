#include <cerrno>
#include <numeric>

#include "files/PositionedIo.h"
#include "sound/HeaderDuration.h"
#include "sound/mp4/Mp4Description.h"
#include "sound/mp4/Mp4Finalizer.h"
#include "sound/mp4/Mp4MovieWriter.h"
#include "sound/mp4/Mp4PacketReader.h"
#include "unit/sound/MemoryFile.h"

namespace tavi::test {

namespace {

constexpr std::uint32_t kRate = 8000;
const Bytes kUserData =
    "\0\0\0\x10"
    "udtaa remark"_bytes;

Bytes words(std::initializer_list<std::uint64_t> values) {
    ByteWriter writer;
    for (const std::uint64_t value : values) {
        writer.u32(value);
    }
    return writer.release();
}

Bytes box(const char* type, const Bytes& body) {
    return words({body.size() + 8}) + Bytes(type, type + 4) + body;
}

/// A description of sound in Apple Lossless.
Bytes lossless() {
    return box("stsd", words({0, 1}) + box("alac", words({0, 1, 0, 0, 0x20010, 0, kRate << 16}) + losslessBox(2)));
}

/// Packets of many sizes; the last one is shorter.
std::vector<Mp4Sample> samples(std::uint32_t count, std::uint32_t duration = 1024) {
    std::vector<Mp4Sample> all;
    for (std::uint32_t i = 0; i < count; ++i) {
        all.push_back({10 + i % 7, i + 1 < count ? duration : duration / 2});
    }
    return all;
}

/// What is in a packet.
Bytes contentsOf(std::size_t packet, std::uint32_t size) {
    return Bytes(size, static_cast<std::uint8_t>(packet * 31));
}

std::int64_t durationOf(std::span<const Mp4Sample> all) {
    return std::accumulate(all.begin(), all.end(), std::int64_t{0},
                           [](std::int64_t sum, const Mp4Sample& sample) { return sum + sample.duration; });
}

/// Packets that play from a time on to their end.
Bytes ordinary(const std::vector<Mp4Sample>& all, std::int64_t start = 0, const Bytes& coding = lossless()) {
    ByteWriter data;
    for (std::size_t i = 0; i < all.size(); ++i) {
        data.bytes(contentsOf(i, all[i].size));
    }
    const Bytes head = mp4FileHead(data.size());
    ByteWriter file;
    file.bytes(head + data.data());
    const Mp4Runs runs = mp4RunsOf(all, std::ssize(head));
    const auto isWritten = writeMp4Movie({kRate, coding, kUserData, start, durationOf(all) - start},
                                         *Mp4Totals::of(runs), runs, [&](auto bytes) { file.bytes(bytes); });
    EXPECT_TRUE(isWritten);
    return file.release();
}

/// The same file with other bytes at a distance behind the name of its last box of a type.
Bytes changed(Bytes file, std::string_view box, std::ptrdiff_t at, std::uint64_t value, int size = 4) {
    const auto found = std::find_end(file.begin(), file.end(), box.begin(), box.end());
    EXPECT_TRUE(found != file.end()) << box;
    for (int i = 0; i < size; ++i) {
        *(found + at + i) = static_cast<std::uint8_t>(value >> (8 * (size - 1 - i)));
    }
    return file;
}

/// The same file with one more box, the first in the innermost of some boxes around it.
Bytes inserted(Bytes file, const Bytes& box, std::initializer_list<std::string_view> around) {
    auto place = file.begin();
    for (const std::string_view name : around) {
        place = std::search(place, file.end(), name.begin(), name.end());
        ByteWriter size;
        size.u32(ByteReader(std::span(&*(place - 4), 4)).u32() + box.size());
        std::copy(size.data().begin(), size.data().end(), place - 4);
        place += std::ssize(name);
    }
    file.insert(place, box.begin(), box.end());
    return file;
}

/// The same file with stretches of the media as its edits: their durations in the movie's time scale and their starts.
Bytes edited(Bytes file, std::initializer_list<std::pair<std::uint32_t, std::uint32_t>> stretches) {
    Bytes list = words({0, stretches.size()});
    for (const auto& [duration, start] : stretches) {
        list = std::move(list) + words({duration, start, 0x10000});
    }
    return inserted(std::move(file), box("edts", box("elst", list)), {"moov", "trak"});
}

void expectPackets(const FileDescriptor& file, std::span<const Mp4Sample> all, std::int64_t start = 0) {
    const auto sound = Mp4Sound::open(file.get());
    ASSERT_TRUE(sound);
    EXPECT_EQ(std::pair(sound->timeScale(), sound->start()), std::pair(kRate, start));
    EXPECT_EQ(headerDuration(file.get()), static_cast<double>(durationOf(all) - start) / kRate);
    EXPECT_EQ(sound->movie().readUserData(file.get()), kUserData);
    for (const auto& [from, preroll] :
         {std::pair(std::size_t{0}, 0U), {1, 5}, {all.size() / 2, 2}, {all.size() - 1, 1}}) {
        std::size_t next = from - std::min<std::size_t>(from, preroll);
        const std::int64_t time = durationOf(all.first(from)) + 1;
        EXPECT_TRUE(sound->forEachPacket(time, preroll, [&](std::int64_t begin, const Mp4Packet& packet) {
            Bytes bytes(packet.size);
            EXPECT_EQ(readFully(file.get(), bytes.data(), bytes.size(), packet.offset), bytes.size());
            const bool isRight = next < all.size() && begin == durationOf(all.first(next)) &&
                                 packet.duration == all[next].duration && bytes == contentsOf(next, all[next].size);
            EXPECT_TRUE(isRight) << "packet " << next;
            ++next;
            return isRight;
        }));
        EXPECT_EQ(next, all.size()) << "from " << from;
    }
}

TEST(Mp4Test, AnOrdinaryFileIsReadAsItWasWritten) {
    for (const std::uint32_t count : {1U, 2U, 32U, 33U, 200U}) {
        for (const std::int64_t start : {0, 300}) {
            SCOPED_TRACE(testing::Message() << count << " packets from " << start);
            const auto all = samples(count);
            expectPackets(memoryFile(ordinary(all, start)), all, start);
        }
    }
}

TEST(Mp4Test, PacketsOfALongFileAreHandedOutFromAnyTime) {
    // Tables beyond every block and window.
    constexpr std::uint32_t kDuration = 1024;
    constexpr std::int64_t kStart = 5000;
    const auto all = samples(20000, kDuration);
    const FileDescriptor file = memoryFile(ordinary(all, kStart));
    auto reader = Mp4PacketReader::open(file.get());
    ASSERT_TRUE(reader);
    EXPECT_EQ(std::pair(reader->format().sampleRate, reader->format().channelsPerFrame), std::pair(double{kRate}, 2U));
    EXPECT_EQ(std::pair(reader->maxPacketSize(), reader->configuration().size()), std::pair(16U, std::size_t{36}));
    EXPECT_EQ(reader->seconds(), headerDuration(file.get()));
    for (const std::size_t from : {std::size_t{0}, std::size_t{19999}, std::size_t{7}, std::size_t{12345}}) {
        ASSERT_TRUE(reader->seek(static_cast<std::int64_t>(from) * kDuration - kStart + 1));
        for (std::size_t i = from; i < all.size(); ++i) {
            const auto packet = reader->next();
            ASSERT_TRUE(packet);
            ASSERT_EQ(packet->start, static_cast<std::int64_t>(i) * kDuration - kStart);
            ASSERT_TRUE(std::ranges::equal(packet->bytes, contentsOf(i, all[i].size))) << i;
        }
        EXPECT_FALSE(reader->next());
    }
    // What is heard ends before the packets do, by the time scale of the movie.
    const FileDescriptor shorter =
        memoryFile(changed(changed(ordinary(all, kStart), "mvhd", 16, kRate / 2), "elst", 12, 5 * kDuration / 2));
    auto part = Mp4PacketReader::open(shorter.get());
    ASSERT_TRUE(part && part->seek(0));
    std::int64_t last = 0;
    while (const auto packet = part->next()) {
        last = packet->start / kDuration;
    }
    EXPECT_EQ(last, 4);
    // Somebody cuts the file meanwhile.
    ASSERT_EQ(::ftruncate(file.get(), 1000), 0);
    reader->rewind();
    int count = 0;
    while (reader->next()) {
        ++count;
    }
    EXPECT_LT(count, 100);
}

TEST(Mp4Test, LengthsAreThoseOfWhatPlays) {
    const auto all = samples(20);
    const double media = static_cast<double>(durationOf(all)) / kRate;
    const Bytes whole = ordinary(all, 1000);
    const auto with = [](Bytes bytes, std::uint64_t movieScale, std::uint64_t duration) {
        return changed(changed(std::move(bytes), "mvhd", 16, movieScale), "elst", 12, duration);
    };
    const std::pair<Bytes, double> files[] = {
        {whole, media - 0.125},
        {changed(whole, "edts", 0, mp4Type("free")), media},
        // A coarse scale: the rest of the media as near as it can be said, and less than that.
        {with(whole, 1000, 2371), media - 0.125},
        {with(whole, 10, 23), media - 0.125},
        {with(whole, 10, 20), 2.0},
        {with(whole, 10, 0), media},
        // Silence, though longer than any file, plays nothing of the sound.
        {changed(with(whole, 10, 0xffffffff), "elst", 16, 0xffffffff), media},
        {edited(changed(with(whole, 10, 0), "edts", 0, mp4Type("free")), {{12, 0}, {10, 2000}}), 2.2},
        {changed(whole, "hdlr", 12, mp4Type("vide")), -1},
        // Beyond what 32 bits hold.
        {ordinary(samples(600, 1 << 23), 1000), ((599.5 * (1 << 23)) - 1000) / kRate},
    };
    for (const auto& [bytes, seconds] : files) {
        const FileDescriptor file = memoryFile(bytes);
        EXPECT_DOUBLE_EQ(headerDuration(file.get()).value_or(-1), seconds);
    }
}

TEST(Mp4Test, WhatIsUnusualOrDamagedIsLeftToOthers) {
    const Bytes file = ordinary(samples(100), 300);
    ASSERT_TRUE(Mp4PacketReader::open(memoryFile(file).get()));
    const std::pair<const char*, Bytes> files[] = {
        {"no file", {}},
        {"cut off", Bytes(file.begin(), file.end() - 10)},
        {"another box first", changed(file, "ftyp", 0, mp4Type("free"))},
        {"encrypted", changed(file, "stsd", 16, mp4Type("enca"))},
        {"another codec", changed(file, "alac", 0, mp4Type("none"))},
        {"another rate", changed(file, "alac", 28, 44100)},
        {"many channels", changed(file, "alac", 17, 3, 1)},
        {"two descriptions", changed(file, "stsd", 8, 2)},
        {"two edits", edited(changed(file, "edts", 0, mp4Type("free")), {{100, 0}, {200, 500}})},
        {"edits that are not there", changed(file, "elst", 8, 2)},
        {"at half speed", changed(file, "elst", 20, 0x8000)},
        {"from before its start", changed(file, "elst", 16, 0x80000000)},
        {"in another file", changed(file, "url ", 4, 0)},
        {"a packet more in one table", changed(file, "stsz", 12, 101)},
        {"a packet less in one table", changed(file, "stts", 12, 98)},
        {"more packets than bytes", changed(file, "stsz", 12, 0xffffffff)},
        {"a packet too large", changed(file, "stsz", 20, 0x7fffffff)},
        {"an empty packet", changed(file, "stsz", 20, 0)},
        {"packets without duration", changed(file, "stts", 16, 0)},
        {"packets of two seconds", changed(file, "stts", 16, 2 * kRate)},
        {"chunks out of order", changed(file, "stsc", 24, 0)},
        {"endless chunks", changed(file, "stsc", 16, 0xffffffff)},
        {"a chunk behind the end", changed(file, "co64", 16, 0x7fffff00)},
        {"a chunk behind every end", changed(file, "co64", 12, 0x7fffff00)},
        {"a table that is unknown", changed(file, "stts", 0, mp4Type("ctts"))},
        {"no time scale", changed(file, "mdhd", 16, 0)},
        // Across the pieces in which boxes are searched.
        {"a remark on what is not heard", inserted(file, box("free", Bytes(16380) + "iTunSMPB"_bytes), {"moov"})},
    };
    for (const auto& [name, bytes] : files) {
        EXPECT_FALSE(Mp4PacketReader::open(memoryFile(bytes).get())) << name;
    }
}

TEST(Mp4Test, OnlyAacThatIsWhatItSaysHasAFormat) {
    const auto formatOf = [](const Bytes& config, std::uint32_t timeScale) {
        const Bytes file = ordinary(samples(2), 0, mp4AacDescription(config, 2, 44100));
        const auto sound = Mp4Sound::open(memoryFile(changed(file, "mdhd", 16, timeScale)).get());
        const auto format = sound->format();
        return format ? format->sampleRate * 10 + format->channelsPerFrame : 0;
    };
    EXPECT_EQ(formatOf({0x12, 0x10}, 44100), 441002);
    EXPECT_EQ(formatOf({0x11, 0x88}, 48000), 480001);
    // What sounds at this rate may be one half of it, unless it says otherwise.
    EXPECT_EQ(formatOf({0x15, 0x88}, 8000), 0);
    EXPECT_EQ(formatOf({0x15, 0x88, 0x56, 0xe5, 0x00}, 8000), 80001);
    EXPECT_EQ(formatOf({0x15, 0x88, 0x56, 0xe5, 0x80}, 8000), 0);
    // Another scale, coding, number of channels and length of packets; nothing.
    for (const Bytes& config : {Bytes{0x12, 0x08}, Bytes{0x2a, 0x10}, Bytes{0x12, 0x38}, Bytes{0x12, 0x14}, Bytes{}}) {
        EXPECT_EQ(formatOf(config, config == Bytes{0x12, 0x08} ? 48000 : 44100), 0);
    }
}

/// A recording as it grows: a header without packets, and a fragment for every ten of them. The first one names its own
/// place, and tells how long its packets are only once; one of a single packet tells all only once.
Bytes fragmented(const std::vector<Mp4Sample>& all, std::uint32_t start = 0) {
    // An edit of no length, as the length is not known yet.
    Bytes file =
        inserted(edited(ordinary({}), {{0, start}}), box("mvex", box("trex", words({0, 1, 1, 1024, 9, 0}))), {"moov"});
    for (std::size_t first = 0; first < all.size(); first += 10) {
        const std::size_t count = std::min<std::size_t>(10, all.size() - first);
        const Mp4Sample& sample = all[first];
        // Places count from the fragment, or from a place that it names.
        Bytes head = words({0x20000, 1});
        Bytes packets;
        Bytes data;
        for (std::size_t i = first; i < first + count; ++i) {
            packets = packets + (first == 0 ? words({all[i].size}) : words({all[i].duration, all[i].size}));
            data = data + contentsOf(i, all[i].size);
        }
        std::uint32_t flags = 0x301;
        if (first == 0) {
            flags = 0x201;
            head = words({0x9, 1, 0, file.size(), sample.duration});
        } else if (count == 1) {
            flags = 0x1;
            head = words({0x20018, 1, sample.duration, sample.size});
            packets.clear();
        }
        const std::size_t place = 52 + head.size() + packets.size();
        const Bytes run = box("trun", words({flags, count, place}) + packets);
        file = std::move(file) + box("moof", box("traf", box("tfhd", head) + run)) + box("mdat", data);
    }
    return file;
}

bool isFragmented(const FileDescriptor& file) {
    const auto movie = Mp4Movie::read(file.get());
    return movie && movie->isFragmented;
}

TEST(Mp4Test, FragmentsAreReadAndMadeOneOrdinaryFile) {
    const auto all = samples(71);
    const Bytes whole = fragmented(all, 300);
    const auto rest = std::span(all).first(70);
    // Cut off in the last fragment's data or header; zeros that were never written; half of a new header behind.
    const auto boxIn = [](const Bytes& file, std::string_view name) {
        return std::find_end(file.begin(), file.end(), name.begin(), name.end()) - 4;
    };
    const Bytes other = ordinary(all, 300);
    const std::pair<Bytes, std::span<const Mp4Sample>> files[] = {
        {whole, all},
        {Bytes(whole.begin(), whole.end() - 1), rest},
        {Bytes(whole.begin(), boxIn(whole, "moof") + 13), rest},
        {whole + Bytes(5000), all},
        {whole + Bytes(boxIn(other, "moov"), other.end() - 9), all}};
    for (const auto& [bytes, packets] : files) {
        SCOPED_TRACE(bytes.size());
        const FileDescriptor file = memoryFile(bytes);
        expectPackets(file, packets, 300);
        EXPECT_FALSE(Mp4PacketReader::open(file.get()));
        ASSERT_TRUE(finalizeMp4(file.get()));
        EXPECT_FALSE(isFragmented(file));
        expectPackets(file, packets, 300);
        EXPECT_TRUE(Mp4PacketReader::open(file.get()));
        // Once more changes nothing.
        const Bytes finished = contents(file);
        EXPECT_TRUE(finalizeMp4(file.get()));
        EXPECT_EQ(contents(file), finished);
    }
}

TEST(Mp4Test, MakingAFileOrdinaryCanFailAtAnyWriteAndBeDoneAgain) {
    const auto all = samples(25);
    const Bytes before = fragmented(all);
    bool isDone = false;
    for (int failing = 0; !isDone; ++failing) {
        SCOPED_TRACE(failing);
        const FileDescriptor file = memoryFile(before);
        int calls = 0;
        int unsynced = 0;
        const auto pwrite = [&](int fd, const void* data, std::size_t size, off_t offset) {
            EXPECT_TRUE(offset >= std::ssize(before) || unsynced == 0) << "a power cut can take either header";
            ++unsynced;
            errno = ENOSPC;
            return calls++ == failing ? ssize_t{-1} : ::pwrite(fd, data, size, offset);
        };
        const auto result = finalizeMp4(file.get(), pwrite, [&](int) { return unsynced = 0; });
        EXPECT_EQ(result.has_value(), failing >= calls);
        EXPECT_TRUE(result || result.error().text == "The disk is full.");
        EXPECT_EQ(isFragmented(file), !result);
        EXPECT_TRUE(!result || unsynced == 0);
        EXPECT_TRUE(failing > 1 || contents(file) == before);
        expectPackets(file, all);
        EXPECT_TRUE(finalizeMp4(file.get()));
        EXPECT_FALSE(isFragmented(file));
        expectPackets(file, all);
        isDone = result.has_value();
        EXPECT_GE(calls, isDone ? 3 : 1);
    }
}

TEST(Mp4Test, RecordingsBeyondFourGigabytesAreMadeOrdinary) {
    const auto all = samples(40);
    const Bytes bytes = fragmented(all);
    // A hole of 5 GiB, as a box to be skipped, before the last fragment.
    const std::string_view name = "moof";
    const auto last = std::find_end(bytes.begin(), bytes.end(), name.begin(), name.end()) - 4;
    const FileDescriptor file = memoryFile(Bytes(bytes.begin(), last) + "\0\0\0\1free\0\0\0\1\x40\0\0\0"_bytes);
    const Bytes rest(last, bytes.end());
    const std::int64_t behind = last - bytes.begin() + (std::int64_t{5} << 30);
    ASSERT_EQ(writeFully(systemPwrite(), file.get(), rest.data(), rest.size(), behind).error, 0);
    ASSERT_TRUE(finalizeMp4(file.get()));
    EXPECT_FALSE(isFragmented(file));
    expectPackets(file, all);
}

TEST(Mp4Test, FragmentsThatMakeNoSenseAreLeftAsTheyAre) {
    const Bytes whole = fragmented(samples(10));
    const std::pair<const char*, Bytes> files[] = {
        {"no MP4 file", Bytes(100)},
        {"packets beside the fragments", changed(whole, "stsz", 12, 1)},
        {"no defaults", changed(whole, "trex", 0, mp4Type("free"))},
        {"another track", changed(whole, "tfhd", 8, 2)},
        {"a place outside of the data", changed(whole, "trun", 12, 1)},
        {"a place before the file", changed(whole, "trun", 12, 0x80000000)},
        {"more packets than data", changed(whole, "trun", 20, 0x7fffffff)},
        {"an empty packet", changed(whole, "trun", 20, 0)},
        {"a packet of days", changed(whole, "trun", 16, 0xffffffff)},
        {"endless packets", changed(whole, "trun", 8, 0xffffffff)},
        {"another box for the data", changed(whole, "mdat", 0, mp4Type("free"))},
        {"no description", changed(whole, "stsd", 8, 0)},
    };
    for (const auto& [name, bytes] : files) {
        const FileDescriptor file = memoryFile(bytes);
        EXPECT_FALSE(finalizeMp4(file.get())) << name;
        EXPECT_EQ(contents(file), bytes) << name;
        EXPECT_FALSE(Mp4Sound::open(file.get()) && headerDuration(file.get())) << name;
    }
}

}  // namespace

}  // namespace tavi::test
