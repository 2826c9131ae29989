#include "integration/SoundProbe.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi::test {

namespace {

float sampleAt(const AVFrame& frame, int channel, int index) {
    const auto format = static_cast<AVSampleFormat>(frame.format);
    const bool isPlanar = av_sample_fmt_is_planar(format) != 0;
    const std::uint8_t* plane = frame.extended_data[isPlanar ? channel : 0];
    const int at = isPlanar ? index : index * frame.ch_layout.nb_channels + channel;
    switch (av_get_packed_sample_fmt(format)) {
        case AV_SAMPLE_FMT_U8:
            return (static_cast<float>(plane[at]) - 128.0F) / 128.0F;
        case AV_SAMPLE_FMT_S16:
            return static_cast<float>(reinterpret_cast<const std::int16_t*>(plane)[at]) / 32768.0F;
        case AV_SAMPLE_FMT_FLT:
            return reinterpret_cast<const float*>(plane)[at];
        default:
            return NAN;
    }
}

void decodePackets(AVFormatContext& input, int stream, AVCodecContext& decoder, Sound& sound) {
    const AvPacket packet(av_packet_alloc());
    const AvFrame frame(av_frame_alloc());
    for (bool isEnd = false; !isEnd;) {
        isEnd = av_read_frame(&input, packet.get()) < 0;
        if (!isEnd && packet->stream_index != stream) {
            av_packet_unref(packet.get());
            continue;
        }
        avcodec_send_packet(&decoder, isEnd ? nullptr : packet.get());
        av_packet_unref(packet.get());
        while (avcodec_receive_frame(&decoder, frame.get()) >= 0) {
            for (int channel = 0; channel < sound.channels; ++channel) {
                auto& samples = sound.planes[static_cast<std::size_t>(channel)];
                for (int i = 0; i < frame->nb_samples; ++i) {
                    samples.push_back(sampleAt(*frame, channel, i));
                }
            }
        }
    }
}

}  // namespace

std::optional<Sound> decodeSound(const std::filesystem::path& path) {
    AVFormatContext* context = nullptr;
    if (avformat_open_input(&context, path.c_str(), nullptr, nullptr) < 0) {
        return std::nullopt;
    }
    const AvInput input(context);
    avformat_find_stream_info(context, nullptr);
    const AVCodec* codec = nullptr;
    const int index = av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    if (index < 0) {
        return std::nullopt;
    }
    const AVStream* stream = context->streams[index];
    const AvCodec decoder(avcodec_alloc_context3(codec));
    avcodec_parameters_to_context(decoder.get(), stream->codecpar);
    decoder->pkt_timebase = stream->time_base;
    if (avcodec_open2(decoder.get(), codec, nullptr) < 0) {
        return std::nullopt;
    }
    Sound sound;
    sound.codec = avcodec_get_name(stream->codecpar->codec_id);
    sound.container = context->iformat->name;
    sound.rate = stream->codecpar->sample_rate;
    sound.channels = stream->codecpar->ch_layout.nb_channels;
    sound.planes.resize(static_cast<std::size_t>(sound.channels));
    decodePackets(*context, index, *decoder, sound);
    return sound;
}

double levelOf(std::span<const float> samples) {
    double sum = 0;
    for (const float sample : samples) {
        sum += static_cast<double>(sample) * static_cast<double>(sample);
    }
    const double mean = samples.empty() ? 0 : sum / static_cast<double>(samples.size());
    return 10 * std::log10(std::max(mean, 1e-20));
}

double frequencyOf(std::span<const float> samples, int rate) {
    // Only a crossing that comes from well below counts: noise crosses often.
    const double threshold = 0.3 * std::pow(10, levelOf(samples) / 20);
    double first = 0;
    double last = 0;
    int crossings = 0;
    bool wasLow = false;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const double before = static_cast<double>(samples[i - 1]);
        const double now = static_cast<double>(samples[i]);
        wasLow = wasLow || before < -threshold;
        if (wasLow && before < 0 && now >= 0) {
            last = static_cast<double>(i) - now / (now - before);
            first = crossings == 0 ? last : first;
            ++crossings;
            wasLow = false;
        }
    }
    return crossings > 1 ? static_cast<double>(crossings - 1) * rate / (last - first) : 0;
}

std::span<const float> middleOf(const std::vector<float>& samples) {
    const std::size_t tenth = samples.size() / 10;
    return std::span<const float>(samples).subspan(tenth, samples.size() - 2 * tenth);
}

}  // namespace tavi::test
