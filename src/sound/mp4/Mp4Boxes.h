#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "platform/AudioTypes.h"

namespace tavi {

/// Boxes of ISO/IEC 14496-12, 4.2: big-endian length and four-character type, then the body.
struct Mp4Box {
    std::uint32_t type = 0;
    /// Positions in the file or span that the box was found in.
    std::int64_t offset = 0;
    std::int64_t body = 0;
    std::int64_t end = 0;
};

/// The box type of four letters.
constexpr std::uint32_t mp4Type(const char (&text)[5]) {
    return fourCharacterCode(text);
}

/// The header at an offset of a file; its box may end behind limit. Nothing when the header itself does not fit or
/// makes no sense. A box that says it reaches to the end of the file ends at limit.
std::optional<Mp4Box> readMp4Box(int fd, std::int64_t offset, std::int64_t limit);

/// The boxes that fill the bytes from an offset to an end, in order; nothing when they do not fill them exactly, and
/// when there are more than any sound file has.
std::optional<std::vector<Mp4Box>> readMp4Boxes(int fd, std::int64_t offset, std::int64_t end);
/// The first box of a type.
const Mp4Box* findMp4Box(const std::vector<Mp4Box>& boxes, std::uint32_t type);
/// The bytes from an offset to an end; nothing when they are too many to hold, or not there.
std::optional<std::vector<std::uint8_t>> readMp4Bytes(int fd, std::int64_t offset, std::int64_t end);

/// Big-endian numbers in a span; 0 and not ok() from the first read behind its end on.
class Mp4Reader {
public:
    explicit Mp4Reader(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(number(4)); }
    std::uint64_t u64() { return number(8); }
    void skip(std::size_t count) { take(count); }
    /// The next count bytes.
    std::span<const std::uint8_t> take(std::size_t count);
    std::span<const std::uint8_t> rest() const { return m_bytes; }
    bool ok() const { return m_ok; }

private:
    std::uint64_t number(std::size_t size);

    std::span<const std::uint8_t> m_bytes;
    bool m_ok = true;
};

/// A box inside a span.
struct Mp4Child {
    std::uint32_t type = 0;
    /// With the header, and without.
    std::span<const std::uint8_t> whole;
    std::span<const std::uint8_t> body;
};

/// The boxes in a body, in order; nothing when they do not fill it exactly.
std::optional<std::vector<Mp4Child>> mp4Children(std::span<const std::uint8_t> body);
/// The first child of a type.
const Mp4Child* findMp4Child(const std::vector<Mp4Child>& children, std::uint32_t type);

/// A tree of boxes in memory.
class Mp4Writer {
public:
    void u32(std::uint64_t value) { number(value, 4); }
    void u64(std::uint64_t value) { number(value, 8); }
    void bytes(std::span<const std::uint8_t> data) { m_bytes.insert(m_bytes.end(), data.begin(), data.end()); }
    /// Opens a box inside the ones that are open.
    void begin(std::uint32_t type);
    /// Closes the box opened last; following bytes of the file that are its own too are counted by extra.
    void end(std::uint64_t extra = 0);
    std::span<const std::uint8_t> data() const { return m_bytes; }

private:
    void number(std::uint64_t value, int size);

    std::vector<std::uint8_t> m_bytes;
    std::vector<std::size_t> m_open;
};

}  // namespace tavi
