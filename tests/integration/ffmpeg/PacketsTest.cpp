#include <fcntl.h>
#include <unistd.h>

#include <QtEndian>

#include "adapters/ffmpeg/reading/Mp4Packets.h"
#include "files/PositionedIo.h"
#include "integration/ffmpeg/RecordingFixture.h"

namespace tavi::test {

namespace {

std::size_t packetsOf(PacketReader& reader) {
    const AvPacket packet(av_packet_alloc());
    std::size_t count = 0;
    while (reader.next(*packet)) {
        ++count;
    }
    return count;
}

QByteArray number(std::uint32_t value) {
    QByteArray bytes(sizeof value, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

class PacketsTest : public RecordingFixture {
protected:
    FileDescriptor opened(const QByteArray& bytes) {
        return FileDescriptor::open(file(QStringLiteral("sound"), bytes), O_RDWR);
    }
};

TEST_F(PacketsTest, WhatIsUnusualOrDamagedIsLeftToLibavformat) {
    const QByteArray recording = contents(record(kTypes[3], kQualities[1], tone(kStereo, 3 * 48000 + 77)));
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
        {"packets of a minute", changed("stts", 16, number(960000))},
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
    EXPECT_LT(packetsOf(*packets), 5U);
    packets->seek(20000);
    EXPECT_EQ(packetsOf(*packets), 0U);
}

}  // namespace

}  // namespace tavi::test
