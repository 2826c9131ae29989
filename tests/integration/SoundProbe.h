#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tavi::test {

/// What a sound file decodes to.
struct Sound {
    /// FFmpeg's names, such as "alac" and "mov,mp4,m4a,3gp,3g2,mj2".
    std::string codec;
    std::string container;
    int rate = 0;
    int channels = 0;
    /// One row of samples, full scale -1 to 1, a channel.
    std::vector<std::vector<float>> planes;

    std::size_t frames() const { return planes.empty() ? 0 : planes.front().size(); }
};

/// Decodes a whole file. Nothing when it cannot be opened; an error later ends the sound there.
std::optional<Sound> decodeSound(const std::filesystem::path& path);

/// RMS in dB of full scale; a full sine has -3.01, silence -200.
double levelOf(std::span<const float> samples);

/// Hertz of the tone in the samples, from its upward zero crossings; 0 where there are less than two.
double frequencyOf(std::span<const float> samples, int rate);

/// The middle of a channel, without the tenths at both ends.
std::span<const float> middleOf(const std::vector<float>& samples);

}  // namespace tavi::test
