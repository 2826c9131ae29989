#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"

#include <algorithm>

#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

constexpr std::uint32_t kMaximumChannels = 8;

/// What FFmpeg's encoder of a codec says about its packets; 0 where they vary. False where it cannot be asked.
bool askEncoder(AVCodecID id, AVSampleFormat samples, AudioStreamBasicDescription& format) {
    const AVCodec* codec = avcodec_find_encoder(id);
    const AvCodec encoder(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    if (!encoder) {
        return false;
    }
    encoder->sample_rate = static_cast<int>(format.sampleRate);
    encoder->sample_fmt = samples;
    av_channel_layout_default(&encoder->ch_layout, static_cast<int>(format.channelsPerFrame));
    if (avcodec_open2(encoder.get(), codec, nullptr) < 0) {
        return false;
    }
    format.framesPerPacket = static_cast<std::uint32_t>(encoder->frame_size);
    format.bytesPerPacket = static_cast<std::uint32_t>(encoder->block_align);
    return true;
}

bool describeIlbc(AudioStreamBasicDescription& format) {
    constexpr std::uint32_t kShortFrames = 160;
    constexpr std::uint32_t kShortBytes = 38;
    constexpr std::uint32_t kLongBytes = 50;
    if (format.sampleRate != 8000 || format.channelsPerFrame != 1) {
        return false;
    }
    format.bytesPerPacket = format.framesPerPacket == kShortFrames ? kShortBytes : kLongBytes;
    const AvParameters parameters(avcodec_parameters_alloc());
    if (!parameters) {
        return false;
    }
    parameters->codec_type = AVMEDIA_TYPE_AUDIO;
    parameters->codec_id = AV_CODEC_ID_ILBC;
    parameters->sample_rate = 8000;
    parameters->block_align = static_cast<int>(format.bytesPerPacket);
    format.framesPerPacket = static_cast<std::uint32_t>(
        av_get_audio_frame_duration2(parameters.get(), static_cast<int>(format.bytesPerPacket)));
    return format.framesPerPacket > 0;
}

}  // namespace

FfmpegAudioConverter::FfmpegAudioConverter(const AudioStreamBasicDescription& input, PcmEncoding encoding,
                                           FormatConverter converter)
    : m_input(input), m_encoding(encoding), m_converter(std::move(converter)) {}

std::size_t FfmpegAudioConverter::take(const InputProcedure& input, float* const* planes, std::size_t frames) {
    if (m_used == m_available) {
        auto packets = static_cast<std::uint32_t>(frames);
        m_data = nullptr;
        m_used = m_available = 0;
        m_status = input(packets, m_data);
        if (m_status != kAudioNoError || m_data == nullptr || packets == 0) {
            return 0;
        }
        if (!FormatConverter::fits(*m_data, m_input)) {
            m_status = kAudioParameterError;
            return 0;
        }
        // No more is taken than the buffers say that they hold.
        m_available = packets;
        for (std::uint32_t i = 0; i < m_data->numberBuffers; ++i) {
            m_available = std::min<std::size_t>(m_available, m_data->buffers[i].dataByteSize / m_input.bytesPerFrame);
        }
    }
    const std::size_t count = std::min(frames, m_available - m_used);
    const bool isPlanar = (m_input.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
    for (std::uint32_t channel = 0; channel < m_input.channelsPerFrame; ++channel) {
        const auto* bytes = static_cast<const std::uint8_t*>(m_data->buffers[isPlanar ? channel : 0].data) +
                            m_used * m_input.bytesPerFrame + (isPlanar ? 0 : channel * m_encoding.bytes());
        unpackPcm(m_encoding, bytes, isPlanar ? 1 : m_input.channelsPerFrame, planes[channel], count);
    }
    m_used += count;
    return count;
}

AudioStatus FfmpegAudioConverter::fillComplexBuffer(const InputProcedure& input, std::uint32_t& packets,
                                                    AudioBufferList& output, AudioStreamPacketDescription*) {
    const std::uint32_t wanted = std::exchange(packets, 0);
    if (!FormatConverter::fits(output, m_converter.client())) {
        return kAudioParameterError;
    }
    m_status = kAudioNoError;
    packets = static_cast<std::uint32_t>(m_converter.read(
        [&](float* const* planes, std::size_t frames) { return take(input, planes, frames); }, output, wanted));
    return m_status;
}

AudioStatus FfmpegAudioConverter::maximumOutputPacketSize(std::uint32_t& bytes) const {
    bytes = m_converter.client().bytesPerPacket;
    return kAudioNoError;
}

AudioStatus FfmpegAudioConverters::create(const AudioStreamBasicDescription& input,
                                          const AudioStreamBasicDescription& output,
                                          std::unique_ptr<AudioConverter>& converter) {
    converter.reset();
    const auto encoding = PcmEncoding::of(input);
    if (!encoding || input.channelsPerFrame > kMaximumChannels) {
        return kAudioFileUnsupportedDataFormatError;
    }
    auto stages = FormatConverter::create(static_cast<int>(input.channelsPerFrame), 0, input.sampleRate, output);
    if (!stages) {
        return kAudioFileUnsupportedDataFormatError;
    }
    converter = std::make_unique<FfmpegAudioConverter>(input, *encoding, std::move(*stages));
    return kAudioNoError;
}

AudioStatus FfmpegAudioConverters::formatInfo(AudioStreamBasicDescription& format) const {
    av_log_set_level(AV_LOG_QUIET);
    const bool isSane =
        isSampleRate(format.sampleRate) && format.channelsPerFrame >= 1 && format.channelsPerFrame <= kMaximumChannels;
    AudioStreamBasicDescription complete;
    complete.sampleRate = format.sampleRate;
    complete.formatID = format.formatID;
    complete.channelsPerFrame = format.channelsPerFrame;
    bool isKnown = false;
    switch (isSane ? format.formatID : 0) {
        case kAudioFormatMPEG4AAC:
            isKnown = askEncoder(AV_CODEC_ID_AAC, AV_SAMPLE_FMT_FLTP, complete);
            complete.bytesPerPacket = 0;
            break;
        case kAudioFormatAppleLossless:
            isKnown = askEncoder(AV_CODEC_ID_ALAC, AV_SAMPLE_FMT_S16P, complete);
            complete.bytesPerPacket = 0;
            break;
        case kAudioFormatAppleIMA4:
            isKnown = askEncoder(AV_CODEC_ID_ADPCM_IMA_QT, AV_SAMPLE_FMT_S16P, complete);
            break;
        case kAudioFormatiLBC:
            complete.framesPerPacket = format.framesPerPacket;
            isKnown = describeIlbc(complete);
            break;
        case kAudioFormatLinearPCM:
            complete = format;
            complete.framesPerPacket = 1;
            complete.bytesPerFrame = format.bitsPerChannel / 8;
            if ((format.formatFlags & kAudioFormatFlagIsNonInterleaved) == 0) {
                complete.bytesPerFrame *= format.channelsPerFrame;
            }
            complete.bytesPerPacket = complete.bytesPerFrame;
            isKnown = PcmEncoding::of(complete).has_value();
            break;
        default:
            break;
    }
    if (!isKnown) {
        return isSane ? kAudioFileUnsupportedDataFormatError : kAudioParameterError;
    }
    format = complete;
    return kAudioNoError;
}

}  // namespace tavi
