#include "adapters/ffmpeg/reading/DecodedSource.h"

#include <algorithm>

#include "adapters/ffmpeg/reading/AdtsPackets.h"
#include "adapters/ffmpeg/reading/Codecs.h"
#include "adapters/ffmpeg/reading/ContainerPackets.h"
#include "adapters/ffmpeg/reading/FrameSamples.h"
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

}  // namespace

AudioStatus DecodedSource::open(FileDescriptor& file, std::unique_ptr<SoundSource>& source,
                                const std::stop_token& stop) {
    std::unique_ptr<DecodedSource> opened(new DecodedSource);
    opened->m_packets = AdtsPackets::open(file.get(), stop);
    if (!opened->m_packets) {
        opened->m_packets = Mp4Packets::open(file.get());
    }
    if (!opened->m_packets) {
        std::unique_ptr<ContainerPackets> packets;
        const AudioStatus status = ContainerPackets::open(file.get(), packets, stop);
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
    m_decoder = PacketDecoder::open(*m_packets);
    if (!m_decoder) {
        return kAudioFileUnsupportedDataFormatError;
    }
    const AVCodecParameters& parameters = m_packets->parameters();
    const AVFrame& frame = m_decoder->frame();
    // What the decoder makes of it counts; headers know nothing of spectral band replication.
    m_hasFrame = m_decoder->next();
    m_rate = m_hasFrame ? frame.sample_rate : parameters.sample_rate;
    m_channels = m_hasFrame ? frame.ch_layout.nb_channels : parameters.ch_layout.nb_channels;
    if (!isSampleRate(m_rate) || m_channels < 1 || m_channels > kMaximumChannels) {
        return kAudioFileUnsupportedDataFormatError;
    }
    if (m_hasFrame && frame.pts != AV_NOPTS_VALUE) {
        m_origin = framesOf(m_packets->startTime().value_or(frame.pts)) + m_packets->primingFrames();
    }
    if (m_hasFrame && frame.ch_layout.order == AV_CHANNEL_ORDER_NATIVE) {
        m_channelMask = frame.ch_layout.u.mask;
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
        const AVSampleFormat samples =
            m_hasFrame ? static_cast<AVSampleFormat>(m_decoder->frame().format) : AV_SAMPLE_FMT_S16;
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

void DecodedSource::place() {
    const AVFrame& frame = m_decoder->frame();
    const bool isExact = m_packets->hasExactTimes() && frame.pts != AV_NOPTS_VALUE;
    std::int64_t at = m_frameEnd;
    if (isExact) {
        at = framesOf(frame.pts) - m_origin;
        if (m_isPlaced && at - m_frameEnd > kLongestGap * m_rate) {
            // So much is not damage but a lie about the time.
            m_origin += at - m_frameEnd;
            at = m_frameEnd;
        }
    } else if (!m_isPlaced) {
        at = -m_packets->primingFrames();
    }
    m_isPlaced = true;
    m_isFrameSound = frame.sample_rate == m_rate && frame.ch_layout.nb_channels == m_channels;
    m_frameStart = at;
    m_frameEnd = at + frame.nb_samples;
}

bool DecodedSource::nextFrame() {
    m_hasFrame = m_decoder->next();
    if (m_hasFrame) {
        place();
    }
    return m_hasFrame;
}

std::int64_t DecodedSource::length() {
    if (!m_length) {
        const std::int64_t position = m_position;
        std::int64_t frames = std::min(m_packets->declaredLength(m_rate), kMaximumLength);
        restart();
        if (frames < 0 || m_packets->hasExactTimes()) {
            frames = foundLength(frames < 0 ? kMaximumLength : frames);
            restart();
        }
        m_length = frames;
        seek(std::min(position, frames));
    }
    return *m_length;
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
                copyChannel(m_decoder->frame(), channel, static_cast<std::size_t>(m_position - m_frameStart),
                            planes[channel], count);
            }
        }
        m_position += static_cast<std::int64_t>(count);
        return count;
    }
    return 0;
}

bool DecodedSource::restart() {
    m_decoder->flush();
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
        m_decoder->flush();
        m_isPlaced = false;
        if (m_packets->seek(time) && nextFrame() && m_decoder->frame().pts != AV_NOPTS_VALUE && m_frameStart <= frame) {
            return;
        }
    }
    restart();
}

}  // namespace tavi
