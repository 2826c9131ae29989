#include "adapters/ffmpeg/converting/ChannelMatrix.h"

#include <bit>

#include "adapters/ffmpeg/AvHandles.h"

namespace tavi {

namespace {

/// libswresample writes to all of so many rows and columns, however few channels there are.
constexpr int kAllChannels = 64;

/// libswresample's matrix, kAllChannels wide; empty where it knows none for these channels.
std::vector<double> builtMatrix(int inputs, std::uint64_t mask, int outputs) {
    AvLayout from;
    AvLayout to;
    if (std::popcount(mask) != inputs || av_channel_layout_from_mask(&from, mask) < 0) {
        av_channel_layout_default(&from, inputs);
    }
    av_channel_layout_default(&to, outputs);
    constexpr double kHalfPower = 0.70710678118654752440;
    const bool isKnown = from.order == AV_CHANNEL_ORDER_NATIVE && to.order == AV_CHANNEL_ORDER_NATIVE;
    std::vector<double> matrix(std::size_t{kAllChannels} * kAllChannels);
    const bool isBuilt = isKnown && swr_build_matrix2(&from, &to, kHalfPower, kHalfPower, 0, 1.0, 1.0, matrix.data(),
                                                      kAllChannels, AV_MATRIX_ENCODING_NONE, nullptr) >= 0;
    return isBuilt ? matrix : std::vector<double>();
}

}  // namespace

std::vector<double> channelMatrix(int inputs, std::uint64_t mask, int outputs) {
    const auto built = inputs > 1 ? builtMatrix(inputs, mask, outputs) : std::vector<double>();
    std::vector<double> matrix;
    for (int output = 0; output < outputs; ++output) {
        for (int input = 0; input < inputs; ++input) {
            // Of channels that have no usual places mono is the mean, and otherwise each goes to that of its number.
            const bool isMean = inputs == 1 || outputs == 1;
            const double usual = isMean ? 1.0 / inputs : input == output ? 1.0 : 0.0;
            matrix.push_back(
                built.empty()
                    ? usual
                    : built[static_cast<std::size_t>(output) * kAllChannels + static_cast<std::size_t>(input)]);
        }
    }
    return matrix;
}

}  // namespace tavi
