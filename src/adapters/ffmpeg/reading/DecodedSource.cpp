#include "adapters/ffmpeg/reading/DecodedSource.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "adapters/ffmpeg/reading/AdtsPackets.h"
#include "adapters/ffmpeg/reading/ContainerPackets.h"
#include "adapters/ffmpeg/reading/Mp4Packets.h"
#include "sound/io/SampleRate.h"

extern "C" {
#include <libavutil/samplefmt.h>
}

namespace tavi {

namespace {

constexpr int kMaximumChannels = 64;
/// Longer than any file.
constexpr std::int64_t kMaximumLength = std::int64_t{1} << 50;
/// Seconds of silence that may stand for packets that cannot be decoded.
constexpr std::int64_t kLongestGap = 60;
/// Packets in a row from which nothing can be decoded, after which a file counts as no sound.
constexpr int kMaximumFailures = 4000;

/// Codes of codecs beside those that are recorded.
std::uint32_t formatOf(AVCodecID codec) {
    switch (codec) {
        case AV_CODEC_ID_AAC:
            return kAudioFormatMPEG4AAC;
        case AV_CODEC_ID_ALAC:
            return kAudioFormatAppleLossless;
        case AV_CODEC_ID_ADPCM_IMA_QT:
            return kAudioFormatAppleIMA4;
        case AV_CODEC_ID_ILBC:
            return kAudioFormatiLBC;
        case AV_CODEC_ID_MP3:
            return fourCharacterCode(".mp3");
        case AV_CODEC_ID_FLAC:
            return fourCharacterCode("flac");
        case AV_CODEC_ID_OPUS:
            return fourCharacterCode("opus");
        case AV_CODEC_ID_AC3:
            return fourCharacterCode("ac-3");
        case AV_CODEC_ID_AMR_NB:
            return fourCharacterCode("samr");
        default: {
            const bool isLinear = codec >= AV_CODEC_ID_FIRST_AUDIO && codec < AV_CODEC_ID_ADPCM_IMA_QT;
            return isLinear ? kAudioFormatLinearPCM : fourCharacterCode("????");
        }
    }
}

/// Frames that a decoder must have heard before a place, so that it sounds there as in one pass.
std::int64_t prerollOf(const AVCodecParameters& parameters) {
    const std::int64_t packet = parameters.frame_size > 0 ? parameters.frame_size : 4096;
    switch (parameters.codec_id) {
        case AV_CODEC_ID_ALAC:
        case AV_CODEC_ID_FLAC:
        case AV_CODEC_ID_WAVPACK:
            return 0;
        case AV_CODEC_ID_MP3:
            // A packet may hold its bits in the nine before it.
            return 12 * packet;
        case AV_CODEC_ID_OPUS:
            return std::max(4 * packet, std::int64_t{48000} / 4);
        default:
            return std::max(4 * packet, std::int64_t{parameters.seek_preroll});
    }
}

template <class T>
void copySamples(const std::uint8_t* plane, std::size_t first, std::size_t stride, float* to, std::size_t count) {
    const T* from = reinterpret_cast<const T*>(plane) + first;
    for (std::size_t i = 0; i < count; ++i) {
        const T value = from[i * stride];
        if constexpr (std::is_floating_point_v<T>) {
            to[i] = std::abs(value) <= T(3.0e38) ? static_cast<float>(value) : 0.0F;
        } else if constexpr (sizeof(T) == 1) {
            to[i] = static_cast<float>(static_cast<int>(value) - 128) * (1.0F / 128);
        } else {
            to[i] = static_cast<float>(value) * (1.0F / -static_cast<float>(std::numeric_limits<T>::min()));
        }
    }
}

void copyChannel(const AVFrame& frame, int channel, std::size_t offset, float* to, std::size_t count) {
    const auto format = static_cast<AVSampleFormat>(frame.format);
    const bool isPlanar = av_sample_fmt_is_planar(format) != 0;
    const auto stride = static_cast<std::size_t>(isPlanar ? 1 : frame.ch_layout.nb_channels);
    const std::size_t first = offset * stride + static_cast<std::size_t>(isPlanar ? 0 : channel);
    const std::uint8_t* plane = frame.extended_data[isPlanar ? channel : 0];
    switch (av_get_packed_sample_fmt(format)) {
        case AV_SAMPLE_FMT_U8:
            return copySamples<std::uint8_t>(plane, first, stride, to, count);
        case AV_SAMPLE_FMT_S16:
            return copySamples<std::int16_t>(plane, first, stride, to, count);
        case AV_SAMPLE_FMT_S32:
            return copySamples<std::int32_t>(plane, first, stride, to, count);
        case AV_SAMPLE_FMT_S64:
            return copySamples<std::int64_t>(plane, first, stride, to, count);
        case AV_SAMPLE_FMT_FLT:
            return copySamples<float>(plane, first, stride, to, count);
        case AV_SAMPLE_FMT_DBL:
            return copySamples<double>(plane, first, stride, to, count);
        default:
            std::fill_n(to, count, 0.0F);
    }
}

}  // namespace

AudioStatus DecodedSource::open(FileDescriptor& file, std::unique_ptr<SoundSource>& source) {
    std::unique_ptr<DecodedSource> opened(new DecodedSource);
    opened->m_packets = AdtsPackets::open(file.get());
    if (!opened->m_packets) {
        opened->m_packets = Mp4Packets::open(file.get());
    }
    if (!opened->m_packets) {
        std::unique_ptr<ContainerPackets> packets;
        const AudioStatus status = ContainerPackets::open(file.get(), packets);
        if (status != kAudioNoError) {
            return status;
        }
        opened->m_packets = std::move(packets);
    }
    const AudioStatus status = opened->start();
    if (status != kAudioNoError) {
        return status;
    }
    opened->m_file = std::move(file);
    source = std::move(opened);
    return kAudioNoError;
}

AudioStatus DecodedSource::start() {
    const AVCodecParameters& parameters = m_packets->parameters();
    const AVCodec* codec = avcodec_find_decoder(parameters.codec_id);
    m_decoder.reset(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    m_packet.reset(av_packet_alloc());
    m_frame.reset(av_frame_alloc());
    if (!m_decoder || !m_packet || !m_frame || avcodec_parameters_to_context(m_decoder.get(), &parameters) < 0) {
        return kAudioFileUnsupportedDataFormatError;
    }
    m_decoder->pkt_timebase = m_packets->timeBase();
    m_decoder->thread_count = 1;
    if (avcodec_open2(m_decoder.get(), codec, nullptr) < 0) {
        return kAudioFileUnsupportedDataFormatError;
    }
    if (parameters.codec_id == AV_CODEC_ID_ALAC && parameters.extradata != nullptr && m_decoder->sample_rate > 0) {
        m_lossless = AlacDecoder::create(
            std::span<const std::uint8_t>(parameters.extradata, static_cast<std::size_t>(parameters.extradata_size)));
        if (m_lossless && m_lossless->channels() != parameters.ch_layout.nb_channels) {
            m_lossless.reset();
        }
    }
    // What the decoder makes of it counts; headers know nothing of spectral band replication.
    m_hasFrame = decode();
    m_rate = m_hasFrame ? m_frame->sample_rate : parameters.sample_rate;
    m_channels = m_hasFrame ? m_frame->ch_layout.nb_channels : parameters.ch_layout.nb_channels;
    if (!isSampleRate(m_rate) || m_channels < 1 || m_channels > kMaximumChannels) {
        return kAudioFileUnsupportedDataFormatError;
    }
    if (m_hasFrame && m_frame->pts != AV_NOPTS_VALUE) {
        m_origin = framesOf(m_packets->startTime().value_or(m_frame->pts)) + m_packets->primingFrames();
    }
    if (m_hasFrame && m_frame->ch_layout.order == AV_CHANNEL_ORDER_NATIVE) {
        m_channelMask = m_frame->ch_layout.u.mask;
    }
    describe();
    if (!m_hasFrame) {
        m_length = 0;
        return kAudioNoError;
    }
    place();
    return kAudioNoError;
}

void DecodedSource::describe() {
    const AVCodecParameters& parameters = m_packets->parameters();
    m_format.sampleRate = m_rate;
    m_format.formatID = formatOf(parameters.codec_id);
    m_format.channelsPerFrame = static_cast<std::uint32_t>(m_channels);
    if (m_format.formatID == kAudioFormatLinearPCM) {
        const int bits = av_get_bits_per_sample(parameters.codec_id);
        m_format.framesPerPacket = 1;
        m_format.bitsPerChannel = static_cast<std::uint32_t>(bits);
        m_format.bytesPerFrame = static_cast<std::uint32_t>(bits * m_channels / 8);
        m_format.bytesPerPacket = m_format.bytesPerFrame;
        const AVSampleFormat samples = m_hasFrame ? static_cast<AVSampleFormat>(m_frame->format) : AV_SAMPLE_FMT_S16;
        const bool isFloat = samples == AV_SAMPLE_FMT_FLT || samples == AV_SAMPLE_FMT_DBL;
        m_format.formatFlags = kAudioFormatFlagIsPacked | (isFloat    ? kAudioFormatFlagIsFloat
                                                           : bits > 8 ? kAudioFormatFlagIsSignedInteger
                                                                      : 0);
    } else {
        m_format.framesPerPacket = static_cast<std::uint32_t>(std::max(0, parameters.frame_size));
    }
}

std::int64_t DecodedSource::framesOf(std::int64_t time) const {
    // Damaged files name any time; sums of these do not overflow.
    constexpr std::int64_t kMost = std::int64_t{1} << 60;
    return std::clamp(av_rescale_q(time, m_packets->timeBase(), {1, m_rate}), -kMost, kMost);
}

bool DecodedSource::decode() {
    for (int failures = 0; failures < kMaximumFailures;) {
        const int code = avcodec_receive_frame(m_decoder.get(), m_frame.get());
        if (code >= 0) {
            if (m_frame->nb_samples > 0 && m_frame->ch_layout.nb_channels > 0) {
                return true;
            }
            continue;
        }
        if (code == AVERROR_EOF || (m_isDraining && code != AVERROR(EAGAIN))) {
            return false;
        }
        if (m_isDraining) {
            return false;
        }
        m_isDraining = !m_packets->next(*m_packet);
        if (!m_isDraining && decodeLossless()) {
            return true;
        }
        // What a damaged packet breaks is mended by the next.
        failures += avcodec_send_packet(m_decoder.get(), m_isDraining ? nullptr : m_packet.get()) < 0 ? 1 : 0;
        av_packet_unref(m_packet.get());
    }
    return false;
}

bool DecodedSource::decodeLossless() {
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

void DecodedSource::place() {
    const bool isExact = m_packets->hasExactTimes() && m_frame->pts != AV_NOPTS_VALUE;
    std::int64_t at = m_frameEnd;
    if (isExact) {
        at = framesOf(m_frame->pts) - m_origin;
        if (m_isPlaced && at - m_frameEnd > kLongestGap * m_rate) {
            // So much is not damage but a lie about the time.
            m_origin += at - m_frameEnd;
            at = m_frameEnd;
        }
    } else if (!m_isPlaced) {
        at = -m_packets->primingFrames();
    }
    m_isPlaced = true;
    m_isFrameSound = m_frame->sample_rate == m_rate && m_frame->ch_layout.nb_channels == m_channels;
    m_frameStart = at;
    m_frameEnd = at + m_frame->nb_samples;
}

bool DecodedSource::nextFrame() {
    m_hasFrame = decode();
    if (m_hasFrame) {
        place();
    }
    return m_hasFrame;
}

std::int64_t DecodedSource::length() {
    if (m_length == -2) {
        const std::int64_t position = m_position;
        m_length = std::min(m_packets->declaredLength(m_rate), kMaximumLength);
        restart();
        if (m_length < 0 || m_packets->hasExactTimes()) {
            m_length = foundLength(m_length < 0 ? kMaximumLength : m_length);
            restart();
        }
        seek(std::min(position, m_length));
    }
    return m_length;
}

std::int64_t DecodedSource::foundLength(std::int64_t declared) {
    // A file may end before it says so. Where its end can be sought that is soon found out.
    if (m_packets->hasExactTimes() && declared > 0) {
        seek(declared - 1);
    }
    std::int64_t end = m_hasFrame ? m_frameEnd : 0;
    while (end < declared && nextFrame()) {
        end = std::max(end, m_frameEnd);
    }
    return std::clamp<std::int64_t>(end, 0, declared);
}

std::size_t DecodedSource::read(float* const* planes, std::size_t frames) {
    // Inexact lengths are for showing: all that can be decoded is handed out.
    const bool isCut = m_packets->hasExactTimes();
    const std::int64_t limit = isCut ? length() : kMaximumLength;
    while (m_position < limit) {
        if (!m_hasFrame || m_position >= m_frameEnd) {
            if (!nextFrame()) {
                return 0;
            }
            continue;
        }
        const bool isGap = m_position < m_frameStart;
        const std::int64_t end = std::min(limit, isGap ? m_frameStart : m_frameEnd);
        const std::size_t count = std::min(frames, static_cast<std::size_t>(end - m_position));
        for (int channel = 0; channel < m_channels; ++channel) {
            if (isGap || !m_isFrameSound) {
                std::fill_n(planes[channel], count, 0.0F);
            } else {
                copyChannel(*m_frame, channel, static_cast<std::size_t>(m_position - m_frameStart), planes[channel],
                            count);
            }
        }
        m_position += static_cast<std::int64_t>(count);
        return count;
    }
    return 0;
}

bool DecodedSource::restart() {
    avcodec_flush_buffers(m_decoder.get());
    m_isDraining = false;
    m_hasFrame = false;
    m_isPlaced = false;
    m_frameStart = m_frameEnd = 0;
    return m_packets->rewind();
}

void DecodedSource::seek(std::int64_t frame) {
    if (m_hasFrame && frame >= m_frameStart && frame < m_frameEnd) {
        m_position = frame;
        return;
    }
    const std::int64_t preroll = prerollOf(m_packets->parameters());
    const std::int64_t from = frame - preroll;
    m_position = frame;
    const bool isAhead = m_hasFrame && frame >= m_frameEnd && frame < m_frameEnd + m_rate / 4;
    if (isAhead || (!m_packets->hasExactTimes() && m_hasFrame && frame >= m_frameEnd)) {
        return;  // read() decodes up to there.
    }
    if (from > 0 && m_packets->hasExactTimes()) {
        const std::int64_t time = av_rescale_q_rnd(from + m_origin, {1, m_rate}, m_packets->timeBase(), AV_ROUND_DOWN);
        avcodec_flush_buffers(m_decoder.get());
        m_isDraining = false;
        m_isPlaced = false;
        if (m_packets->seek(time) && nextFrame() && m_frame->pts != AV_NOPTS_VALUE && m_frameStart <= frame) {
            return;
        }
    }
    restart();
}

}  // namespace tavi
