#pragma once

#include <cstdint>
#include <vector>

namespace tavi {

inline constexpr int kMaximumMixChannels = 64;

/// How much of every channel goes into every new one, for swr_set_matrix(): a row of so many inputs for each output.
/// One channel goes to all at full level, where libswresample would take 3 dB off; stereo becomes mono as the mean, and
/// what else differs follows libswresample (ITU-R BS.775), turned down so that nothing can clip. mask names the inputs'
/// loudspeakers as FFmpeg does; 0 stands for the usual ones.
std::vector<double> channelMatrix(int inputs, std::uint64_t mask, int outputs);

}  // namespace tavi
