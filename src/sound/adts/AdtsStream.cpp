#include "sound/adts/AdtsStream.h"

#include <algorithm>
#include <array>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr std::size_t kSurveyBytes = std::size_t{256} * 1024;
constexpr std::size_t kReadBytes = std::size_t{64} * 1024;
/// More than a frame can have, with the header of the next one.
constexpr std::size_t kFrameRoom = 8192 + kAdtsHeaderBytes;
constexpr std::int64_t kBlocksBetweenMarks = 64;
constexpr std::int64_t kMostBetweenFrames = std::int64_t{1} << 20;

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

std::optional<AdtsScanner::Found> AdtsScanner::next() {
    for (std::int64_t offset = m_offset; offset <= m_offset + kMostBetweenFrames; ++offset) {
        const bool isInStep = offset == m_offset;
        const auto bytes = m_file.at(offset, kFrameRoom);
        if (bytes.size() < kAdtsHeaderBytes) {
            break;
        }
        const auto frame = readAdtsFrame(bytes.data());
        if (!frame || frame->rate != m_rate) {
            continue;
        }
        if (isInStep && frame->bytes > bytes.size()) {
            break;
        }
        if (isInStep ||
            (frame->bytes + kAdtsHeaderBytes <= bytes.size() && readAdtsFrame(bytes.data() + frame->bytes))) {
            m_offset = offset + frame->bytes;
            return Found{*frame, offset, bytes.first(frame->bytes)};
        }
    }
    return std::nullopt;
}

std::optional<AdtsStream> AdtsStream::read(int fd, const std::stop_token& stop) {
    std::array<std::uint8_t, kAdtsHeaderBytes> start{};
    const auto first =
        readFully(fd, start.data(), start.size(), 0) == start.size() ? readAdtsFrame(start.data()) : std::nullopt;
    if (!first) {
        return std::nullopt;
    }
    AdtsStream stream;
    stream.m_rate = first->rate;
    AdtsScanner scanner(fd, first->rate, kSurveyBytes);
    std::int64_t end = 0;
    while (const auto found = scanner.next()) {
        if (stream.m_marks.empty() || stream.m_blocks - stream.m_marks.back().blocks >= kBlocksBetweenMarks) {
            stream.m_marks.push_back({found->offset, stream.m_blocks});
        }
        stream.m_largestFrame = std::max(stream.m_largestFrame, found->frame.bytes);
        stream.m_blocks += found->frame.blocks;
        end = found->offset + found->frame.bytes;
        if (stop.stop_requested()) {
            return std::nullopt;
        }
    }
    // One frame alone may be chance.
    const bool isSound = stream.m_blocks > 1 || (stream.m_blocks == 1 && end == regularFileSize(fd));
    return isSound ? std::optional(std::move(stream)) : std::nullopt;
}

AdtsStream::Mark AdtsStream::markBefore(std::int64_t block) const {
    const auto after = std::upper_bound(m_marks.begin(), m_marks.end(), block,
                                        [](std::int64_t wanted, const Mark& mark) { return wanted < mark.blocks; });
    return after == m_marks.begin() ? Mark{} : *(after - 1);
}

AdtsPacketReader::AdtsPacketReader(int fd, AdtsStream stream)
    : m_stream(std::move(stream)), m_scanner(fd, m_stream.rate(), kReadBytes) {}

std::optional<AdtsPacketReader> AdtsPacketReader::open(int fd, const std::stop_token& stop) {
    auto stream = AdtsStream::read(fd, stop);
    return stream ? std::optional(AdtsPacketReader(fd, std::move(*stream))) : std::nullopt;
}

std::optional<AdtsPacketReader::Packet> AdtsPacketReader::next() {
    const auto found = m_scanner.next();
    if (!found) {
        return std::nullopt;
    }
    const Packet packet{m_block, found->frame.blocks, found->bytes};
    m_block += packet.blocks;
    return packet;
}

void AdtsPacketReader::seek(std::int64_t block) {
    const AdtsStream::Mark mark = m_stream.markBefore(block);
    m_scanner.seek(mark.offset);
    m_block = mark.blocks;
    while (m_block < block) {
        const auto found = m_scanner.next();
        if (!found) {
            break;
        }
        if (m_block + found->frame.blocks > block) {
            m_scanner.seek(found->offset);
            break;
        }
        m_block += found->frame.blocks;
    }
}

}  // namespace tavi
