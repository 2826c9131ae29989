#include "adapters/ffmpeg/reading/AdtsPackets.h"

#include <cstring>

namespace tavi {

namespace {

constexpr std::size_t kReadBytes = std::size_t{64} * 1024;
/// More than a frame can have, with the header of the next one.
constexpr std::size_t kFrameRoom = 8192 + kAdtsHeaderBytes;

}  // namespace

std::unique_ptr<AdtsPackets> AdtsPackets::open(int fd) {
    auto stream = AdtsStream::read(fd);
    if (!stream) {
        return nullptr;
    }
    std::unique_ptr<AdtsPackets> packets(new AdtsPackets(fd, std::move(*stream)));
    packets->m_parameters.reset(avcodec_parameters_alloc());
    packets->m_parameters->codec_type = AVMEDIA_TYPE_AUDIO;
    packets->m_parameters->codec_id = AV_CODEC_ID_AAC;
    packets->m_parameters->sample_rate = packets->m_stream.rate();
    packets->m_parameters->frame_size = 1024;
    packets->seek(0);
    return packets;
}

std::int64_t AdtsPackets::declaredLength(int rate) {
    return av_rescale(m_stream.blocks() * 1024, rate, m_stream.rate());
}

bool AdtsPackets::seek(std::int64_t time) {
    const AdtsStream::Mark mark = m_stream.markBefore(time);
    m_offset = mark.offset;
    m_block = mark.blocks;
    m_bytes.clear();
    m_used = 0;
    while (m_block < time) {
        const auto frame = findFrame();
        if (!frame || m_block + frame->blocks > time) {
            break;
        }
        m_block += frame->blocks;
        m_used += frame->bytes;
    }
    return true;
}

std::optional<AdtsFrame> AdtsPackets::findFrame() {
    bool isInStep = true;
    for (;; ++m_used) {
        if (m_used + kFrameRoom > m_bytes.size()) {
            m_offset += static_cast<std::int64_t>(m_used);
            m_used = 0;
            m_bytes.resize(kReadBytes);
            m_bytes.resize(readFully(m_fd, m_bytes.data(), kReadBytes, m_offset));
        }
        if (m_used + kAdtsHeaderBytes > m_bytes.size()) {
            return std::nullopt;
        }
        const auto frame = readAdtsFrame(m_bytes.data() + m_used);
        if (frame && frame->rate == m_stream.rate()) {
            const std::size_t end = m_used + frame->bytes;
            // The same rule as where the frames were counted.
            const bool isFollowed = end + kAdtsHeaderBytes <= m_bytes.size() && readAdtsFrame(m_bytes.data() + end);
            if (isInStep || isFollowed) {
                return end <= m_bytes.size() ? frame : std::nullopt;
            }
        }
        isInStep = false;
    }
}

bool AdtsPackets::next(AVPacket& packet) {
    av_packet_unref(&packet);
    const auto frame = findFrame();
    if (!frame || av_new_packet(&packet, static_cast<int>(frame->bytes)) < 0) {
        return false;
    }
    std::memcpy(packet.data, m_bytes.data() + m_used, frame->bytes);
    packet.pts = packet.dts = m_block;
    packet.duration = frame->blocks;
    m_used += frame->bytes;
    m_block += frame->blocks;
    return true;
}

}  // namespace tavi
