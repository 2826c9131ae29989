#include "adapters/ffmpeg/reading/Mp4Packets.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tavi {

namespace {

/// Tells the decoder how much of what comes out at the start to leave out.
bool addSkip(AVPacket& packet, std::int64_t frames) {
    std::uint8_t* data = av_packet_new_side_data(&packet, AV_PKT_DATA_SKIP_SAMPLES, 10);
    for (int i = 0; data != nullptr && i < 10; ++i) {
        data[i] = i < 4 ? static_cast<std::uint8_t>(frames >> (8 * i)) : std::uint8_t{0};
    }
    return data != nullptr;
}

}  // namespace

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

bool Mp4Packets::rewind() {
    m_isFresh = true;
    return m_reader.rewind();
}

bool Mp4Packets::seek(std::int64_t time) {
    m_isFresh = true;
    return m_reader.seek(time);
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
    packet.flags = AV_PKT_FLAG_KEY | (packet.pts + packet.duration <= 0 ? AV_PKT_FLAG_DISCARD : 0);
    if (std::exchange(m_isFresh, false) && packet.pts < 0) {
        return addSkip(packet, -packet.pts);
    }
    return true;
}

}  // namespace tavi
