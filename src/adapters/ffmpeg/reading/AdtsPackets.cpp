#include "adapters/ffmpeg/reading/AdtsPackets.h"

#include <algorithm>

namespace tavi {

std::unique_ptr<AdtsPackets> AdtsPackets::open(int fd, const std::stop_token& stop) {
    auto reader = AdtsPacketReader::open(fd, stop);
    if (!reader) {
        return nullptr;
    }
    std::unique_ptr<AdtsPackets> packets(new AdtsPackets(std::move(*reader)));
    packets->m_parameters.reset(avcodec_parameters_alloc());
    packets->m_parameters->codec_type = AVMEDIA_TYPE_AUDIO;
    packets->m_parameters->codec_id = AV_CODEC_ID_AAC;
    packets->m_parameters->sample_rate = packets->m_reader.stream().rate();
    packets->m_parameters->frame_size = 1024;
    return packets;
}

std::int64_t AdtsPackets::declaredLength(int rate) {
    return av_rescale(m_reader.stream().blocks() * 1024, rate, m_reader.stream().rate());
}

bool AdtsPackets::seek(std::int64_t time) {
    m_reader.seek(time);
    return true;
}

bool AdtsPackets::next(AVPacket& packet) {
    av_packet_unref(&packet);
    const auto found = m_reader.next();
    if (!found || av_new_packet(&packet, static_cast<int>(found->bytes.size())) < 0) {
        return false;
    }
    std::copy(found->bytes.begin(), found->bytes.end(), packet.data);
    packet.pts = packet.dts = found->start;
    packet.duration = found->blocks;
    return true;
}

}  // namespace tavi
