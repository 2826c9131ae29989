#include "adapters/ffmpeg/reading/FrameSamples.h"

extern "C" {
#include <libavutil/samplefmt.h>
}

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace tavi {

namespace {

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

}  // namespace

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

}  // namespace tavi
