#include "trimming/waves/WaveformSample.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

namespace tavi {

namespace {

/// Seconds.
constexpr double kListened = 2.0;
constexpr double kWalked = 600.0;
constexpr double kHighestRate = 384'000.0;

/// Root of the mean square of the frames from first on; 0 where there are none.
double level(ExtAudioFile& file, std::int64_t first, std::vector<float>& room) {
    if (file.seek(first) != kAudioNoError) {
        return 0.0;
    }
    AudioBufferList list{1, {{1, 0, nullptr}}};
    double sum = 0.0;
    std::size_t count = 0;
    while (count < room.size()) {
        auto frames = static_cast<std::uint32_t>(room.size() - count);
        list.buffers[0] = {1, static_cast<std::uint32_t>(frames * sizeof(float)), room.data()};
        if (file.read(frames, list) != kAudioNoError || frames == 0) {
            break;
        }
        for (std::uint32_t i = 0; i < frames; ++i) {
            sum += std::isfinite(room[i]) ? static_cast<double>(room[i]) * static_cast<double>(room[i]) : 0.0;
        }
        count += frames;
    }
    return count > 0 ? std::sqrt(sum / static_cast<double>(count)) : 0.0;
}

}  // namespace

WaveformSample sampleWaveform(ExtAudioFiles& files, const std::filesystem::path& path, const std::stop_token& stop) {
    WaveformSample sample{};
    sampleWaveform(files, path, sample, stop);
    return sample;
}

void sampleWaveform(ExtAudioFiles& files, const std::filesystem::path& path, std::span<float> levels,
                    const std::stop_token& stop) {
    std::unique_ptr<ExtAudioFile> file;
    AudioStreamBasicDescription format;
    std::int64_t length = 0;
    if (files.open(path, file, stop) != kAudioNoError || file->fileDataFormat(format) != kAudioNoError ||
        file->fileLengthFrames(length) != kAudioNoError || !(format.sampleRate >= 1.0) ||
        format.sampleRate > kHighestRate ||
        file->setClientDataFormat(EZAudioUtilities::monoFloatFormatWithSampleRate(format.sampleRate)) !=
            kAudioNoError) {
        return;
    }
    if (!file->isRandomAccess()) {
        length = std::min(length, static_cast<std::int64_t>(kWalked * format.sampleRate));
    }
    const auto count = static_cast<double>(levels.size());
    const auto part = length / static_cast<std::int64_t>(levels.size());
    const auto stretch = std::min(part, static_cast<std::int64_t>(std::ceil(kListened / count * format.sampleRate)));
    std::vector<float> room(static_cast<std::size_t>(std::max<std::int64_t>(stretch, 0)));
    std::int64_t first = (part - stretch) / 2;
    for (float& one : levels) {
        one = static_cast<float>(std::sqrt(level(*file, first, room)));
        first += part;
    }
    if (const float loudest = *std::max_element(levels.begin(), levels.end()); loudest > 0.0F) {
        for (float& one : levels) {
            one /= loudest;
        }
    }
}

}  // namespace tavi
