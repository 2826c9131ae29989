#include "adapters/ffmpeg/reading/PacketDecoder.h"

#include <algorithm>
#include <span>

namespace tavi {

namespace {

/// Packets in a row from which nothing can be decoded, after which a file counts as no sound.
constexpr int kMaximumFailures = 4000;

}  // namespace

std::unique_ptr<PacketDecoder> PacketDecoder::open(PacketReader& packets) {
    std::unique_ptr<PacketDecoder> decoder(new PacketDecoder(packets));
    return decoder->prepare() ? std::move(decoder) : nullptr;
}

bool PacketDecoder::prepare() {
    const AVCodecParameters& parameters = m_packets.parameters();
    const AVCodec* codec = avcodec_find_decoder(parameters.codec_id);
    m_decoder.reset(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    m_packet.reset(av_packet_alloc());
    m_frame.reset(av_frame_alloc());
    if (!m_decoder || !m_packet || !m_frame || avcodec_parameters_to_context(m_decoder.get(), &parameters) < 0) {
        return false;
    }
    m_decoder->pkt_timebase = m_packets.timeBase();
    m_decoder->thread_count = 1;
    if (avcodec_open2(m_decoder.get(), codec, nullptr) < 0) {
        return false;
    }
    if (parameters.codec_id == AV_CODEC_ID_ALAC && parameters.extradata != nullptr && m_decoder->sample_rate > 0) {
        m_lossless = AlacDecoder::create(
            std::span<const std::uint8_t>(parameters.extradata, static_cast<std::size_t>(parameters.extradata_size)));
        if (m_lossless && m_lossless->channels() != parameters.ch_layout.nb_channels) {
            m_lossless.reset();
        }
    }
    return true;
}

bool PacketDecoder::next() {
    for (int failures = 0; failures < kMaximumFailures;) {
        const int code = avcodec_receive_frame(m_decoder.get(), m_frame.get());
        if (code >= 0) {
            if (m_frame->nb_samples > 0 && m_frame->ch_layout.nb_channels > 0) {
                return true;
            }
            continue;
        }
        if (code == AVERROR_EOF || m_isDraining) {
            return false;
        }
        m_isDraining = !m_packets.next(*m_packet);
        if (!m_isDraining && decodeLossless()) {
            return true;
        }
        // What a damaged packet breaks is mended by the next.
        failures += avcodec_send_packet(m_decoder.get(), m_isDraining ? nullptr : m_packet.get()) < 0 ? 1 : 0;
        av_packet_unref(m_packet.get());
    }
    return false;
}

bool PacketDecoder::decodeLossless() {
    // What is to be left out of a packet is libavcodec's to leave out.
    if (!m_lossless || m_packet->size <= 0 || m_packet->side_data_elems > 0 ||
        (m_packet->flags & AV_PKT_FLAG_DISCARD) != 0) {
        return false;
    }
    static_assert(AlacDecoder::kPadding <= AV_INPUT_BUFFER_PADDING_SIZE);
    const int count = m_lossless->decode(std::span(m_packet->data, static_cast<std::size_t>(m_packet->size)));
    if (count == 0) {
        return false;
    }
    av_frame_unref(m_frame.get());
    m_frame->format = AV_SAMPLE_FMT_S16P;
    m_frame->nb_samples = count;
    m_frame->sample_rate = m_decoder->sample_rate;
    m_frame->pts = m_packet->pts;
    av_channel_layout_default(&m_frame->ch_layout, m_lossless->channels());
    if (av_frame_get_buffer(m_frame.get(), 0) < 0) {
        return false;
    }
    for (int channel = 0; channel < m_lossless->channels(); ++channel) {
        const std::int32_t* from = m_lossless->samples(channel);
        std::copy_n(from, count, reinterpret_cast<std::int16_t*>(m_frame->extended_data[channel]));
    }
    return true;
}

void PacketDecoder::flush() {
    avcodec_flush_buffers(m_decoder.get());
    m_isDraining = false;
}

}  // namespace tavi
