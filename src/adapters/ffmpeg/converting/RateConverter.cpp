#include "adapters/ffmpeg/converting/RateConverter.h"

extern "C" {
#include <libavutil/mathematics.h>
}

#include <algorithm>
#include <array>
#include <numeric>

#include "adapters/ffmpeg/converting/ChannelMixer.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

constexpr std::size_t kSkipFrames = 1024;

}  // namespace

std::optional<RateConverter> RateConverter::create(int from, int to, int channels) {
    if (!isSampleRate(from) || !isSampleRate(to) || channels < 1 || channels > kMaximumMixChannels) {
        return std::nullopt;
    }
    RateConverter converter;
    converter.m_from = from;
    converter.m_to = to;
    converter.m_channels = channels;
    return converter.restart() ? std::optional(std::move(converter)) : std::nullopt;
}

bool RateConverter::restart() {
    // Without names of loudspeakers no channel is mixed.
    AVChannelLayout layout = {};
    layout.order = AV_CHANNEL_ORDER_UNSPEC;
    layout.nb_channels = m_channels;
    SwrContext* context = nullptr;
    const int code = swr_alloc_set_opts2(&context, &layout, AV_SAMPLE_FMT_FLTP, m_to, &layout, AV_SAMPLE_FMT_FLTP,
                                         m_from, 0, nullptr);
    m_resampler.reset(context);
    return code >= 0 && swr_init(context) >= 0;
}

std::int64_t RateConverter::startAt(std::int64_t outputFrame) {
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

void RateConverter::write(const float* const* planes, std::size_t frames) {
    std::array<const std::uint8_t*, kMaximumMixChannels> bytes{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(m_channels); ++i) {
        bytes[i] = reinterpret_cast<const std::uint8_t*>(planes[i]);
    }
    swr_convert(m_resampler.get(), nullptr, 0, bytes.data(), static_cast<int>(frames));
    m_framesIn += static_cast<std::int64_t>(frames);
}

void RateConverter::finish() {
    if (!m_isFinished) {
        m_isFinished = true;
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

std::size_t RateConverter::read(float* const* planes, std::size_t frames) {
    std::array<std::uint8_t*, kMaximumMixChannels> bytes{};
    const auto take = [&](std::size_t count) {
        for (std::size_t i = 0; i < static_cast<std::size_t>(m_channels); ++i) {
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

std::int64_t RateConverter::outputFrames(std::int64_t inputFrames) const {
    return av_rescale_rnd(inputFrames, m_to, m_from, AV_ROUND_UP);
}

std::int64_t RateConverter::inputFrameFor(std::int64_t outputFrame) const {
    return av_rescale_rnd(outputFrame, m_from, m_to, AV_ROUND_DOWN);
}

}  // namespace tavi
