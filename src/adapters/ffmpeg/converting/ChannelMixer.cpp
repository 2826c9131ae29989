#include "adapters/ffmpeg/converting/ChannelMixer.h"

extern "C" {
#include <libavutil/channel_layout.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <bit>
#include <cmath>

namespace tavi {

namespace {

constexpr std::size_t kRows = 64;

/// FFmpeg's matrix, one row of kRows gains an output; false where it knows none for these channels.
bool buildMatrix(int inputs, std::uint64_t mask, int outputs, std::array<double, kRows * kRows>& matrix) {
    AVChannelLayout from = {};
    AVChannelLayout to = {};
    if (std::popcount(mask) != inputs || av_channel_layout_from_mask(&from, mask) < 0) {
        av_channel_layout_default(&from, inputs);
    }
    av_channel_layout_default(&to, outputs);
    constexpr double kHalfPower = 0.70710678118654752440;
    const bool isKnown = from.order == AV_CHANNEL_ORDER_NATIVE && to.order == AV_CHANNEL_ORDER_NATIVE;
    const bool isBuilt = isKnown && swr_build_matrix2(&from, &to, kHalfPower, kHalfPower, 0, 1.0, 1.0, matrix.data(),
                                                      kRows, AV_MATRIX_ENCODING_NONE, nullptr) >= 0;
    av_channel_layout_uninit(&from);
    av_channel_layout_uninit(&to);
    return isBuilt;
}

}  // namespace

ChannelMixer::ChannelMixer(int inputs, std::uint64_t inputMask, int outputs) : m_inputs(inputs), m_outputs(outputs) {
    const auto rows = static_cast<std::size_t>(outputs);
    const auto columns = static_cast<std::size_t>(inputs);
    std::array<double, kRows * kRows> matrix{};
    const bool isBuilt = !isIdentity() && !isCopy() && buildMatrix(inputs, inputMask, outputs, matrix);
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            if (isCopy()) {
                m_gains[row][column] = 1;
            } else if (isBuilt) {
                m_gains[row][column] = static_cast<float>(matrix[row * kRows + column]);
            } else if (outputs == 1) {
                m_gains[row][column] = 1.0F / static_cast<float>(inputs);
            } else {
                m_gains[row][column] = row == column ? 1 : 0;
            }
        }
    }
}

void ChannelMixer::mix(const float* const* inputs, float* const* outputs, std::size_t frames) const {
    for (std::size_t row = 0; row < static_cast<std::size_t>(m_outputs); ++row) {
        float* to = outputs[row];
        if (isCopy()) {
            std::copy_n(inputs[0], frames, to);
            continue;
        }
        std::fill_n(to, frames, 0.0F);
        for (std::size_t column = 0; column < static_cast<std::size_t>(m_inputs); ++column) {
            const float gain = m_gains[row][column];
            if (gain != 0) {
                for (std::size_t i = 0; i < frames; ++i) {
                    to[i] += gain * inputs[column][i];
                }
            }
        }
    }
}

}  // namespace tavi
