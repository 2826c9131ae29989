#include "adapters/ffmpeg/reading/Mp4Packets.h"

#include <algorithm>
#include <cmath>

namespace tavi {

std::unique_ptr<Mp4Packets> Mp4Packets::open(int fd) {
    auto reader = Mp4PacketReader::open(fd);
    std::unique_ptr<Mp4Packets> packets(reader ? new Mp4Packets(std::move(*reader)) : nullptr);
    return packets && packets->describe() ? std::move(packets) : nullptr;
}

bool Mp4Packets::describe() {
    constexpr std::uint32_t kMostFrames = 1 << 20;
    const AudioStreamBasicDescription& format = m_reader.format();
    const auto configuration = m_reader.configuration();
    m_parameters.reset(avcodec_parameters_alloc());
    if (!m_parameters) {
        return false;
    }
    // Freed with the parameters.
    m_parameters->extradata =
        static_cast<std::uint8_t*>(av_mallocz(configuration.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    if (m_parameters->extradata == nullptr) {
        return false;
    }
    std::copy(configuration.begin(), configuration.end(), m_parameters->extradata);
    m_parameters->extradata_size = static_cast<int>(configuration.size());
    m_parameters->codec_type = AVMEDIA_TYPE_AUDIO;
    m_parameters->codec_id = format.formatID == kAudioFormatAppleLossless ? AV_CODEC_ID_ALAC : AV_CODEC_ID_AAC;
    m_parameters->sample_rate = static_cast<int>(format.sampleRate);
    m_parameters->frame_size = static_cast<int>(std::min(format.framesPerPacket, kMostFrames));
    av_channel_layout_default(&m_parameters->ch_layout, static_cast<int>(format.channelsPerFrame));
    return true;
}

std::int64_t Mp4Packets::declaredLength(int rate) {
    return std::llround(std::min(m_reader.seconds() * rate, 1e15));
}

bool Mp4Packets::next(AVPacket& packet) {
    av_packet_unref(&packet);
    const auto found = m_reader.next();
    if (!found || av_new_packet(&packet, static_cast<int>(found->bytes.size())) < 0) {
        return false;
    }
    std::copy(found->bytes.begin(), found->bytes.end(), packet.data);
    packet.pts = packet.dts = found->start;
    packet.duration = found->duration;
    return true;
}

}  // namespace tavi
