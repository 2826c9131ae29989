#include "sound/caf/CafWriter.h"

#include "files/PositionedIo.h"
#include "platform/AudioTypes.h"
#include "sound/caf/CafHeader.h"
#include "sound/io/Bytes.h"

namespace tavi {

namespace {

void writeTable(ByteWriter& writer, const CafPacketTable& table) {
    writer.code(fourCharacterCode("pakt"));
    writer.u64(24);
    writer.u64(static_cast<std::uint64_t>(table.packets));
    writer.u64(static_cast<std::uint64_t>(table.frames));
    writer.u32(static_cast<std::uint64_t>(table.primingFrames));
    writer.u32(static_cast<std::uint64_t>(table.remainderFrames));
}

}  // namespace

FileResult<std::vector<std::uint8_t>> cafHeaderLike(int other, const std::optional<CafPacketTable>& table,
                                                    std::int64_t dataBytes) {
    constexpr std::size_t kMaximumBytes = std::size_t{1} << 20;
    ByteWriter writer;
    writer.code(fourCharacterCode("caff"));
    writer.u16(1);
    writer.u16(0);
    FileWindow window(other);
    bool isRead = true;
    const bool isCaf = forEachCafChunk(other, window, [&](const CafChunk& chunk) {
        const auto size = static_cast<std::size_t>(chunk.end - chunk.offset);
        const bool isDescription = chunk.type != fourCharacterCode("data") && chunk.type != fourCharacterCode("pakt") &&
                                   chunk.type != fourCharacterCode("free");
        if (isDescription && !chunk.isOpen && writer.size() + size <= kMaximumBytes) {
            const auto bytes = window.at(chunk.offset, size);
            isRead = bytes.size() == size;
            writer.bytes(bytes);
        }
        return isRead;
    });
    if (!isCaf || !isRead) {
        return fileFailure("The sound file is damaged.");
    }
    if (table) {
        writeTable(writer, *table);
    }
    writer.code(fourCharacterCode("data"));
    // An edit count comes before the packets.
    writer.u64(static_cast<std::uint64_t>(dataBytes + 4));
    writer.u32(0);
    return writer.release();
}

}  // namespace tavi
