#include "adapters/ffmpeg/converting/StreamConverter.h"

extern "C" {
#include <libavutil/mathematics.h>
}

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "adapters/ffmpeg/converting/ChannelMatrix.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

constexpr std::size_t kSkipFrames = 1024;

}  // namespace

std::optional<StreamConverter> StreamConverter::create(const StreamShape& from, const StreamShape& to) {
    const auto isUsable = [](const StreamShape& shape) {
        return isSampleRate(shape.rate) && shape.channels >= 1 && shape.channels <= kMaximumMixChannels;
    };
    if (!isUsable(from) || !isUsable(to)) {
        return std::nullopt;
    }
    StreamConverter converter;
    converter.m_from = from.rate;
    converter.m_to = to.rate;
    converter.m_inputs = from.channels;
    converter.m_outputs = to.channels;
    if (from.channels != to.channels) {
        converter.m_matrix = channelMatrix(from.channels, from.channelMask, to.channels);
    }
    return converter.restart() ? std::optional(std::move(converter)) : std::nullopt;
}

bool StreamConverter::restart() {
    // Without names of loudspeakers nothing is mixed but by the matrix.
    AVChannelLayout inputs = {AV_CHANNEL_ORDER_UNSPEC, m_inputs, {0}, nullptr};
    AVChannelLayout outputs = {AV_CHANNEL_ORDER_UNSPEC, m_outputs, {0}, nullptr};
    SwrContext* context = nullptr;
    int code = swr_alloc_set_opts2(&context, &outputs, AV_SAMPLE_FMT_FLTP, m_to, &inputs, AV_SAMPLE_FMT_FLTP, m_from, 0,
                                   nullptr);
    m_resampler.reset(context);
    if (code >= 0 && !m_matrix.empty()) {
        code = swr_set_matrix(context, m_matrix.data(), m_inputs);
    }
    return code >= 0 && swr_init(context) >= 0;
}

std::int64_t StreamConverter::startAt(std::int64_t outputFrame) {
    // Filter phases repeat every stepIn input frames; a restart at a multiple of them finds the same phases. The filter
    // reaches into what comes before.
    const std::int64_t stepIn = m_from / std::gcd(m_from, m_to);
    const std::int64_t stepOut = m_to / std::gcd(m_from, m_to);
    const std::int64_t step = std::max<std::int64_t>(0, inputFrameFor(outputFrame) - reach()) / stepIn;
    restart();
    m_isFinished = false;
    m_framesIn = step * stepIn;
    m_framesOut = step * stepOut;
    m_skip = outputFrame - m_framesOut;
    return m_framesIn;
}

void StreamConverter::write(const float* const* planes, std::size_t frames) {
    std::array<const std::uint8_t*, kMaximumMixChannels> bytes{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(m_inputs); ++i) {
        bytes[i] = reinterpret_cast<const std::uint8_t*>(planes[i]);
    }
    swr_convert(m_resampler.get(), nullptr, 0, bytes.data(), static_cast<int>(frames));
    m_framesIn += static_cast<std::int64_t>(frames);
}

void StreamConverter::finish() {
    if (!std::exchange(m_isFinished, true) && reach() > 0) {
        // The filter needs something behind the end to give all that stands before it. FFmpeg's own way of ending gives
        // a frame less at some rates.
        const std::int64_t frames = m_framesIn;
        const std::vector<float> silence(static_cast<std::size_t>(reach()));
        std::array<const float*, kMaximumMixChannels> planes{};
        planes.fill(silence.data());
        write(planes.data(), silence.size());
        m_framesIn = frames;
    }
}

std::size_t StreamConverter::read(float* const* planes, std::size_t frames) {
    std::array<std::uint8_t*, kMaximumMixChannels> bytes{};
    const auto take = [&](std::size_t count) {
        for (std::size_t i = 0; i < static_cast<std::size_t>(m_outputs); ++i) {
            bytes[i] = reinterpret_cast<std::uint8_t*>(planes[i]);
        }
        // An empty input that is there: null would be an end of FFmpeg's own.
        std::array<const std::uint8_t*, kMaximumMixChannels> none{};
        const float silence = 0;
        none.fill(reinterpret_cast<const std::uint8_t*>(&silence));
        const int got = swr_convert(m_resampler.get(), bytes.data(), static_cast<int>(count), none.data(), 0);
        m_framesOut += std::max(got, 0);
        return static_cast<std::size_t>(std::max(got, 0));
    };
    while (m_skip > 0) {
        const std::size_t skipped = take(std::min({frames, static_cast<std::size_t>(m_skip), kSkipFrames}));
        if (skipped == 0) {
            return 0;
        }
        m_skip -= static_cast<std::int64_t>(skipped);
    }
    if (m_isFinished) {
        const std::int64_t left = outputFrames(m_framesIn) - m_framesOut;
        frames = std::min(frames, static_cast<std::size_t>(std::max<std::int64_t>(0, left)));
    }
    return frames > 0 ? take(frames) : 0;
}

std::int64_t StreamConverter::outputFrames(std::int64_t inputFrames) const {
    return av_rescale_rnd(inputFrames, m_to, m_from, AV_ROUND_UP);
}

std::int64_t StreamConverter::inputFrameFor(std::int64_t outputFrame) const {
    return av_rescale_rnd(outputFrame, m_from, m_to, AV_ROUND_DOWN);
}

}  // namespace tavi
