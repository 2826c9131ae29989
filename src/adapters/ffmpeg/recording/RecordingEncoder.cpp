#include "adapters/ffmpeg/recording/RecordingEncoder.h"

#include <utility>

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/samplefmt.h>
}

namespace tavi {

Result<RecordingEncoder> RecordingEncoder::create(const RecordingFormat& format) {
    RecordingEncoder encoder(format);
    const Result<void> opened = encoder.open();
    return opened ? Result<RecordingEncoder>(std::move(encoder)) : tl::unexpected(opened.error());
}

Result<void> RecordingEncoder::open() {
    const AVCodec* codec = avcodec_find_encoder(m_format.codec);
    m_context.reset(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    if (!m_context || !m_frame || !m_packet) {
        return failure(QStringLiteral("The encoder for this kind of recording is missing."));
    }
    m_context->sample_fmt = m_format.sampleFormat;
    m_context->sample_rate = m_format.sampleRate;
    m_context->time_base = {1, m_format.sampleRate};
    m_context->bit_rate = m_format.bitRate;
    // Same sound, same file: no name or version of the library in it.
    m_context->flags |= AV_CODEC_FLAG_BITEXACT;
    if (m_format.isFragmented) {
        m_context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    }
    av_channel_layout_default(&m_context->ch_layout, m_format.channels);
    if (m_format.codec == AV_CODEC_ID_AAC) {
        av_opt_set(m_context->priv_data, "aac_coder", m_format.aacCoder, 0);
    }
    int code = avcodec_open2(m_context.get(), codec, nullptr);
    if (code < 0) {
        return avFailure(QStringLiteral("The encoder could not be opened"), code);
    }
    m_frameSize = m_format.packetFrames > 0 ? m_format.packetFrames : m_context->frame_size;
    m_frame->nb_samples = m_frameSize;
    m_frame->format = m_format.sampleFormat;
    m_frame->sample_rate = m_format.sampleRate;
    av_channel_layout_default(&m_frame->ch_layout, m_format.channels);
    code = av_frame_get_buffer(m_frame.get(), 0);
    if (code < 0) {
        return avFailure(QStringLiteral("The encoder could not be opened"), code);
    }
    return {};
}

int RecordingEncoder::room(std::uint8_t** planes) const {
    const int bytes = av_get_bytes_per_sample(m_format.sampleFormat);
    if (av_sample_fmt_is_planar(m_format.sampleFormat) != 0) {
        for (int channel = 0; channel < m_format.channels; ++channel) {
            planes[channel] = m_frame->data[channel] + static_cast<std::ptrdiff_t>(m_filled) * bytes;
        }
    } else {
        planes[0] = m_frame->data[0] + static_cast<std::ptrdiff_t>(m_filled) * bytes * m_format.channels;
    }
    return m_frameSize - m_filled;
}

void RecordingEncoder::silence(int frames) {
    av_samples_set_silence(m_frame->data, m_filled, frames, m_format.channels, m_format.sampleFormat);
}

Result<void> RecordingEncoder::take(int frames, RecordingContainer& container) {
    m_filled += frames;
    return m_filled < m_frameSize ? Result<void>() : encodeFilled(container);
}

Result<void> RecordingEncoder::encodeFilled(RecordingContainer& container) {
    m_frame->nb_samples = std::exchange(m_filled, 0);
    m_frame->pts = m_encoded;
    m_encoded += m_frame->nb_samples;
    if (m_format.packetFrames > 0) {
        // FFmpeg takes only the last frame shorter than this.
        m_context->frame_size = m_frame->nb_samples;
    }
    Result<void> result = encode(m_frame.get(), container);
    // The encoder may still look at the old frame.
    m_frame->nb_samples = m_frameSize;
    if (const int code = av_frame_make_writable(m_frame.get()); code < 0) {
        return avFailure(QStringLiteral("The sound could not be encoded"), code);
    }
    return result;
}

Result<void> RecordingEncoder::encode(const AVFrame* frame, RecordingContainer& container) {
    int code = avcodec_send_frame(m_context.get(), frame);
    while (code >= 0) {
        code = avcodec_receive_packet(m_context.get(), m_packet.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF) {
            return {};
        }
        if (code >= 0) {
            code = container.store(*m_packet);
        }
    }
    return avFailure(QStringLiteral("The sound could not be encoded"), code);
}

Result<void> RecordingEncoder::finish(RecordingContainer& container) {
    const Result<void> result = m_filled > 0 ? encodeLast(container) : Result<void>();
    return result ? encode(nullptr, container) : result;
}

Result<void> RecordingEncoder::encodeLast(RecordingContainer& container) {
    if (m_format.codec == AV_CODEC_ID_ADPCM_IMA_QT) {
        // A packet is always whole.
        const int missing = m_frameSize - m_filled;
        silence(missing);
        return take(missing, container);
    }
    if (m_filled * m_context->block_align % 2 != 0) {
        // Some players of WAV files give up at the byte that would pad an odd number: the last frame comes twice.
        av_samples_copy(m_frame->data, m_frame->data, m_filled, m_filled - 1, 1, m_format.channels,
                        m_format.sampleFormat);
        ++m_filled;
    }
    return encodeFilled(container);
}

Result<void> RecordingEncoder::encodeShort(RecordingContainer& container) {
    // The bytes of a WAV file are always even in number.
    const int odd = m_filled % 2;
    if (m_format.packetFrames == 0 || m_filled == odd) {
        return {};
    }
    m_filled -= odd;
    const int last = m_filled;
    Result<void> result = encodeFilled(container);
    // What has been encoded stays in the frame.
    av_samples_copy(m_frame->data, m_frame->data, 0, last, odd, m_format.channels, m_format.sampleFormat);
    m_filled = odd;
    return result;
}

}  // namespace tavi
