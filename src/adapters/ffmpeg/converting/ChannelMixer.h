#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tavi {

inline constexpr int kMaximumMixChannels = 64;

/// Makes so many channels of so many others. One channel goes to all at full level, stereo becomes mono as the mean,
/// and what else differs follows the usual matrix (ITU-R BS.775), turned down so that nothing can clip.
class ChannelMixer {
public:
    /// masks name the loudspeakers as FFmpeg does; 0 stands for the usual ones.
    ChannelMixer(int inputs, std::uint64_t inputMask, int outputs);

    /// Nothing is to be done.
    bool isIdentity() const { return m_inputs == m_outputs; }
    /// Every output is the one input.
    bool isCopy() const { return m_inputs == 1; }
    void mix(const float* const* inputs, float* const* outputs, std::size_t frames) const;

private:
    static constexpr std::size_t kMaximumOutputs = 8;

    int m_inputs;
    int m_outputs;
    std::array<std::array<float, kMaximumMixChannels>, kMaximumOutputs> m_gains{};
};

}  // namespace tavi
