#pragma once

#include <array>
#include <filesystem>
#include <span>
#include <stop_token>

#include "platform/ExtAudioFile.h"

namespace tavi {

/// How loud each eighth of a recording is beside its loudest: square roots of levels, from 0 to 1. Silence, and what
/// cannot be read, is all 0.
using WaveformSample = std::array<float, 8>;

/// Listens to two seconds of a file in all, a little in the middle of each of as many parts as there are levels, and to
/// nothing else: hours cost as much as seconds. Where getting to a place means reading all before it, only the first
/// ten minutes stand for the file. Asking for the stop ends it soon, with any shape. Any thread.
WaveformSample sampleWaveform(ExtAudioFiles& files, const std::filesystem::path& path,
                              const std::stop_token& stop = {});
/// The same of any number of parts; levels that are all 0 stay so where nothing can be read.
void sampleWaveform(ExtAudioFiles& files, const std::filesystem::path& path, std::span<float> levels,
                    const std::stop_token& stop = {});

}  // namespace tavi
