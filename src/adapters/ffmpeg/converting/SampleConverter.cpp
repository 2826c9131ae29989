#include "adapters/ffmpeg/converting/SampleConverter.h"

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/mathematics.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <cmath>

#include "adapters/ffmpeg/converting/ChannelMatrix.h"
#include "sound/io/SampleRate.h"

namespace tavi {

Result<SampleConverter> SampleConverter::create(const AudioInputFormat& input, const RecordingFormat& output) {
    if (input.channels < 1 || input.channels > 2 || !isSampleRate(input.sampleRate)) {
        return failure(QStringLiteral("The microphone's sound has a shape that cannot be recorded."));
    }
    AVChannelLayout inputLayout = {};
    AVChannelLayout outputLayout = {};
    av_channel_layout_default(&inputLayout, input.channels);
    av_channel_layout_default(&outputLayout, output.channels);
    SwrContext* context = nullptr;
    int code = swr_alloc_set_opts2(&context, &outputLayout, output.sampleFormat, output.sampleRate, &inputLayout,
                                   AV_SAMPLE_FMT_FLT, input.sampleRate, 0, nullptr);
    AvResampler resampler(context);
    if (code >= 0) {
        av_opt_set_int(context, "filter_size", output.resampler.filterSize, 0);
        av_opt_set_int(context, "phase_shift", output.resampler.phaseShift, 0);
        av_opt_set_double(context, "cutoff", output.resampler.cutoff, 0);
        if (input.channels != output.channels) {
            code = swr_set_matrix(context, channelMatrix(input.channels, 0, output.channels).data(), input.channels);
        }
    }
    if (code >= 0) {
        code = swr_init(context);
    }
    if (code < 0) {
        return failure(QStringLiteral("The sound converter could not be set up: ") + avErrorText(code));
    }
    SampleConverter converter;
    converter.m_resampler = std::move(resampler);
    converter.m_input.resize(std::size_t{kMaximumFrames} * static_cast<std::size_t>(input.channels));
    converter.m_inputRate = input.sampleRate;
    converter.m_inputChannels = input.channels;
    converter.m_outputRate = output.sampleRate;
    return converter;
}

int SampleConverter::convert(const float* interleaved, int frames, std::uint8_t** planes, int capacity) {
    std::transform(interleaved, interleaved + frames * m_inputChannels, m_input.begin(),
                   [](float value) { return std::isfinite(value) ? value : 0.0F; });
    m_framesIn += frames;
    // Never a null input: that would mean the end of the sound.
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(m_input.data());
    return swr_convert(m_resampler.get(), planes, capacity, &bytes, frames);
}

int SampleConverter::drain(std::uint8_t** planes, int capacity) {
    return swr_convert(m_resampler.get(), planes, capacity, nullptr, 0);
}

std::int64_t SampleConverter::expectedFrames() const {
    return av_rescale_rnd(m_framesIn, m_outputRate, m_inputRate, AV_ROUND_NEAR_INF);
}

}  // namespace tavi
