#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/AudioTypes.h"
#include "sound/io/Bytes.h"
#include "sound/io/FileWindow.h"

namespace tavi {

/// The box type of four letters.
constexpr std::uint32_t mp4Type(const char (&text)[5]) {
    return fourCharacterCode(text);
}

/// A box in a file (ISO/IEC 14496-12, 4.2): big-endian length and four-character type, then the body.
struct Mp4Box {
    std::uint32_t type = 0;
    std::int64_t offset = 0;
    std::int64_t body = 0;
    std::int64_t end = 0;
};

/// The header at an offset of a file; its box may end behind limit. Nothing when the header itself does not fit or
/// makes no sense. A box that says it reaches to the end of the file ends at limit.
std::optional<Mp4Box> readMp4Box(FileWindow& file, std::int64_t offset, std::int64_t limit);
/// The boxes that fill the bytes from an offset to an end, in order; nothing when they do not fill them exactly, and
/// when there are more than any sound file has.
std::optional<std::vector<Mp4Box>> readMp4Boxes(FileWindow& file, std::int64_t offset, std::int64_t end);
/// The first box of a type; null where there is none.
const Mp4Box* findMp4Box(const std::vector<Mp4Box>& boxes, std::uint32_t type);
/// The bytes from an offset to an end; nothing when they are too many to hold, or not there.
std::optional<std::vector<std::uint8_t>> readMp4Bytes(int fd, std::int64_t offset, std::int64_t end);

/// A box in memory.
struct Mp4Child {
    std::uint32_t type = 0;
    /// With the header, and without.
    std::span<const std::uint8_t> whole;
    std::span<const std::uint8_t> body;
};

/// The boxes in a body, in order; nothing when they do not fill it exactly.
std::optional<std::vector<Mp4Child>> mp4Children(std::span<const std::uint8_t> body);
/// The first child of a type; null where there is none.
const Mp4Child* findMp4Child(const std::vector<Mp4Child>& children, std::uint32_t type);

/// Writes a tree of boxes.
class Mp4BoxWriter : public ByteWriter {
public:
    /// Opens a box inside those that are open.
    void begin(std::uint32_t type);
    /// The same for a box with a version, which is 1 where its times are long, and flags.
    void beginFull(std::uint32_t type, bool isLong = false, std::uint32_t flags = 0);
    /// Closes the box that was opened last. It gets that many bytes more, which are written elsewhere behind it.
    void end(std::uint64_t more = 0);

private:
    std::vector<std::size_t> m_open;
};

}  // namespace tavi
