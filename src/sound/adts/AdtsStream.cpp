#include "sound/adts/AdtsStream.h"

#include <algorithm>
#include <array>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr std::size_t kReadBytes = std::size_t{256} * 1024;
constexpr std::int64_t kBlocksBetweenMarks = 64;

}  // namespace

std::optional<AdtsFrame> readAdtsFrame(const std::uint8_t* bytes) {
    constexpr std::array<int, 13> kRates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                            22050, 16000, 12000, 11025, 8000,  7350};
    const std::size_t rate = bytes[2] >> 2 & 0xfU;
    if (bytes[0] != 0xff || (bytes[1] & 0xf6) != 0xf0 || rate >= kRates.size()) {
        return std::nullopt;
    }
    AdtsFrame frame;
    frame.rate = kRates[rate];
    frame.blocks = (bytes[6] & 3) + 1;
    frame.bytes = (bytes[3] & 3U) << 11 | std::uint32_t{bytes[4]} << 3 | std::uint32_t{bytes[5]} >> 5;
    return frame.bytes >= kAdtsHeaderBytes ? std::optional(frame) : std::nullopt;
}

std::optional<AdtsStream> AdtsStream::read(int fd) {
    const std::int64_t size = regularFileSize(fd);
    AdtsStream stream;
    std::vector<std::uint8_t> data(kReadBytes);
    std::int64_t position = 0;
    std::int64_t marked = -kBlocksBetweenMarks;
    bool isInStep = true;
    for (bool isEnd = false; !isEnd;) {
        const std::size_t there = readFully(fd, data.data(), data.size(), position);
        std::size_t used = 0;
        while (used + kAdtsHeaderBytes <= there) {
            const auto frame = readAdtsFrame(data.data() + used);
            const bool isOurs = frame && (stream.m_rate == 0 || frame->rate == stream.m_rate);
            if (!isOurs) {
                if (stream.m_blocks == 0) {
                    return std::nullopt;
                }
                isInStep = false;
                ++used;
                continue;
            }
            if (!isInStep) {
                // Out of step a header counts only when the next one stands where it says.
                if (used + frame->bytes + kAdtsHeaderBytes > there && there == data.size()) {
                    break;
                }
                if (used + frame->bytes + kAdtsHeaderBytes > there ||
                    !readAdtsFrame(data.data() + used + frame->bytes)) {
                    ++used;
                    continue;
                }
                isInStep = true;
            }
            if (position + static_cast<std::int64_t>(used + frame->bytes) > size) {
                isEnd = true;
                break;
            }
            if (stream.m_blocks - marked >= kBlocksBetweenMarks) {
                stream.m_marks.push_back({position + static_cast<std::int64_t>(used), stream.m_blocks});
                marked = stream.m_blocks;
            }
            stream.m_rate = frame->rate;
            stream.m_largestFrame = std::max(stream.m_largestFrame, frame->bytes);
            stream.m_blocks += frame->blocks;
            used += frame->bytes;
        }
        position += static_cast<std::int64_t>(used);
        isEnd = isEnd || used == 0 || there < data.size();
    }
    // One frame alone may be chance.
    const bool isSound = stream.m_blocks > 1 || (stream.m_blocks == 1 && position == size);
    return isSound ? std::optional(std::move(stream)) : std::nullopt;
}

AdtsStream::Mark AdtsStream::markBefore(std::int64_t block) const {
    const auto after = std::upper_bound(m_marks.begin(), m_marks.end(), block,
                                        [](std::int64_t wanted, const Mark& mark) { return wanted < mark.blocks; });
    return after == m_marks.begin() ? Mark{} : *(after - 1);
}

}  // namespace tavi
