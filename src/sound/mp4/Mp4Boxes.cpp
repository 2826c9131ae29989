#include "sound/mp4/Mp4Boxes.h"

#include <algorithm>
#include <limits>

#include "files/PositionedIo.h"

namespace tavi {

std::optional<Mp4Box> readMp4Box(FileWindow& file, std::int64_t offset, std::int64_t limit) {
    constexpr std::int64_t kLongestHeader = 16;
    const auto room = static_cast<std::size_t>(std::clamp<std::int64_t>(limit - offset, 0, kLongestHeader));
    ByteReader reader(file.at(offset, room));
    std::uint64_t size = reader.u32();
    Mp4Box box;
    box.type = reader.u32();
    box.offset = offset;
    box.body = offset + 8;
    if (size == 1) {
        size = reader.u64();
        box.body = offset + 16;
    } else if (size == 0) {
        size = static_cast<std::uint64_t>(limit - offset);
    }
    const auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max() - offset);
    if (!reader.ok() || size < static_cast<std::uint64_t>(box.body - offset) || size > largest) {
        return std::nullopt;
    }
    box.end = offset + static_cast<std::int64_t>(size);
    return box;
}

std::optional<std::vector<Mp4Box>> readMp4Boxes(FileWindow& file, std::int64_t offset, std::int64_t end) {
    constexpr std::size_t kMaximumBoxes = 1024;
    std::vector<Mp4Box> boxes;
    while (offset < end) {
        const auto box = readMp4Box(file, offset, end);
        if (!box || box->end > end || boxes.size() == kMaximumBoxes) {
            return std::nullopt;
        }
        boxes.push_back(*box);
        offset = box->end;
    }
    return boxes;
}

const Mp4Box* findMp4Box(const std::vector<Mp4Box>& boxes, std::uint32_t type) {
    const auto found = std::find_if(boxes.begin(), boxes.end(), [type](const Mp4Box& box) { return box.type == type; });
    return found != boxes.end() ? &*found : nullptr;
}

std::optional<std::vector<std::uint8_t>> readMp4Bytes(int fd, std::int64_t offset, std::int64_t end) {
    constexpr std::int64_t kMaximumBytes = std::int64_t{24} << 20;
    if (end < offset || end - offset > kMaximumBytes || end > regularFileSize(fd)) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(end - offset));
    return readFully(fd, bytes.data(), bytes.size(), offset) == bytes.size() ? std::optional(std::move(bytes))
                                                                             : std::nullopt;
}

std::optional<std::vector<Mp4Child>> mp4Children(std::span<const std::uint8_t> body) {
    std::vector<Mp4Child> children;
    while (!body.empty()) {
        ByteReader reader(body);
        std::uint64_t size = reader.u32();
        const std::uint32_t type = reader.u32();
        std::size_t header = 8;
        if (size == 1) {
            size = reader.u64();
            header = 16;
        } else if (size == 0) {
            size = body.size();
        }
        if (!reader.ok() || size < header || size > body.size()) {
            return std::nullopt;
        }
        const auto whole = body.first(static_cast<std::size_t>(size));
        children.push_back({type, whole, whole.subspan(header)});
        body = body.subspan(static_cast<std::size_t>(size));
    }
    return children;
}

const Mp4Child* findMp4Child(const std::vector<Mp4Child>& children, std::uint32_t type) {
    const auto found =
        std::find_if(children.begin(), children.end(), [type](const Mp4Child& child) { return child.type == type; });
    return found != children.end() ? &*found : nullptr;
}

void Mp4BoxWriter::begin(std::uint32_t type) {
    m_open.push_back(size());
    u32(0);
    u32(type);
}

void Mp4BoxWriter::beginFull(std::uint32_t type, bool isLong, std::uint32_t flags) {
    begin(type);
    u32((isLong ? 1U << 24 : 0U) | flags);
}

void Mp4BoxWriter::end(std::uint64_t more) {
    const std::size_t start = m_open.back();
    m_open.pop_back();
    const std::uint64_t length = size() - start + more;
    for (std::size_t i = 0; i < 4; ++i) {
        m_bytes[start + i] = static_cast<std::uint8_t>(length >> (24 - 8 * i));
    }
}

}  // namespace tavi
