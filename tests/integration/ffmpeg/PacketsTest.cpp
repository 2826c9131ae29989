#include <fcntl.h>
#include <unistd.h>

#include "adapters/ffmpeg/ContainerPackets.h"
#include "adapters/ffmpeg/Mp4Packets.h"
#include "adapters/ffmpeg/PositionedIo.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

struct Packet {
    std::int64_t time;
    int flags;
    QByteArray bytes;
    /// What the decoder is told to leave out.
    QByteArray skip;

    bool operator==(const Packet&) const = default;
};

std::vector<Packet> drain(PacketReader& reader, std::size_t most = SIZE_MAX) {
    const AvPacket packet(av_packet_alloc());
    std::vector<Packet> packets;
    while (packets.size() < most && reader.next(*packet)) {
        std::size_t size = 0;
        const std::uint8_t* skip = av_packet_get_side_data(packet.get(), AV_PKT_DATA_SKIP_SAMPLES, &size);
        packets.push_back({packet->pts, packet->flags,
                           QByteArray(reinterpret_cast<const char*>(packet->data), packet->size),
                           QByteArray(reinterpret_cast<const char*>(skip), static_cast<qsizetype>(size))});
    }
    return packets;
}

QByteArray number(std::uint32_t value) {
    const auto byte = [value](int shift) { return static_cast<char>(value >> shift); };
    return {std::array{byte(24), byte(16), byte(8), byte(0)}.data(), 4};
}

class PacketsTest : public RecordingFixture {
protected:
    QByteArray recorded(const Type& type, const Quality& quality) {
        return contents(record(type, quality, tone(kStereo, 3 * 48000 + 77)));
    }

    FileDescriptor opened(const QByteArray& bytes) {
        return FileDescriptor::open(file(QStringLiteral("sound"), bytes), O_RDWR);
    }

    void expectTheSame(const QByteArray& bytes) {
        const FileDescriptor file = opened(bytes);
        const auto own = Mp4Packets::open(file.get());
        std::unique_ptr<ContainerPackets> other;
        ASSERT_TRUE(own && ContainerPackets::open(file.get(), other) == kAudioNoError);
        const auto& described = own->parameters();
        // libavformat does not say it of Apple Lossless.
        EXPECT_EQ(described.frame_size, described.codec_id == AV_CODEC_ID_AAC ? other->parameters().frame_size : 4096);
        EXPECT_EQ(own->maxPacketSize(), other->maxPacketSize());
        EXPECT_EQ(own->declaredLength(44100), other->declaredLength(44100));
        const auto packets = drain(*own);
        EXPECT_GT(packets.size(), 5U);
        EXPECT_TRUE(packets == drain(*other));
        for (const std::int64_t time : {-5000, -1, 0, 1, 1023, 1024, 9999, 12000, 1 << 30}) {
            EXPECT_TRUE(own->seek(time) && other->seek(time));
            EXPECT_TRUE(drain(*own, 3) == drain(*other, 3)) << time;
        }
        EXPECT_TRUE(own->rewind() && drain(*own) == packets);
    }
};

}  // namespace

TEST_F(PacketsTest, TablesGiveWhatLibavformatGives) {
    for (const Type& type : {kTypes[0], kTypes[3]}) {
        for (const Quality& quality : kQualities) {
            SCOPED_TRACE(::testing::Message() << type.extension << quality.rate);
            const QByteArray recording = recorded(type, quality);
            expectTheSame(recording);
            const qsizetype edits = recording.indexOf("elst");
            ASSERT_GT(edits, 0);
            for (const std::uint32_t start : {0U, 1U, 1024U, 2112U, 20000U}) {
                SCOPED_TRACE(start);
                QByteArray edited = recording;
                edited.replace(edits + 16, 4, number(start));
                expectTheSame(edited);
                edited.replace(edits + 12, 4, number(700));
                expectTheSame(edited);
            }
        }
    }
    // What another program writes.
    for (const char* options : {"-c:a aac -b:a 96k", "-c:a aac -movflags +faststart", "-c:a alac"}) {
        SCOPED_TRACE(options);
        expectTheSame(contents(converted(pathFor(kTypes[0]), QStringLiteral("other.m4a"), options)));
    }
}

TEST_F(PacketsTest, WhatIsUnusualOrDamagedIsLeftToLibavformat) {
    const QByteArray recording = recorded(kTypes[3], kQualities[1]);
    const auto changed = [&](const char* box, qsizetype at, const QByteArray& bytes) {
        QByteArray copy = recording;
        EXPECT_TRUE(recording.contains(box)) << box;
        return copy.replace(recording.lastIndexOf(box) + at, bytes.size(), bytes);
    };
    const std::pair<const char*, QByteArray> files[] = {
        {"no file", {}},
        {"cut off", recording.chopped(10)},
        {"encrypted", changed("mp4a", 0, "enca")},
        {"two edits", changed("elst", 8, number(2))},
        {"at half speed", changed("elst", 20, number(0x8000))},
        {"a packet more in one table", changed("stsz", 12, number(1))},
        {"a packet too large", changed("stsz", 20, number(0x7fffffff))},
        {"an empty packet", changed("stsz", 20, number(0))},
        {"packets without duration", changed("stts", 16, number(0))},
        {"a chunk behind the end", changed("co64", 16, number(0x7fffff00))},
        {"another codec", changed("esds", 0, "none")},
        {"a table that is unknown", changed("stts", 0, "ctts")},
    };
    for (const auto& [name, bytes] : files) {
        const FileDescriptor file = opened(bytes);
        EXPECT_FALSE(Mp4Packets::open(file.get())) << name;
    }

    const FileDescriptor shortened = opened(recording);
    const auto packets = Mp4Packets::open(shortened.get());
    ASSERT_TRUE(packets);
    ASSERT_EQ(::ftruncate(shortened.get(), 1000), 0);
    EXPECT_LT(drain(*packets).size(), 5U);
    packets->seek(20000);
    EXPECT_TRUE(drain(*packets).empty());
}

}  // namespace tavi::test
