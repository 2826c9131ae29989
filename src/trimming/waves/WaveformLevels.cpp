#include "trimming/waves/WaveformLevels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tavi {

namespace {

constexpr double kFullScale = 32767.0;

/// Levels by sample, in the order of the unsigned 16-bit numbers of the same bits.
const std::array<float, 65536>& sampleLevels() {
    static const auto table = [] {
        std::array<float, 65536> levels{};
        for (int sample = -32768; sample <= 32767; ++sample) {
            const auto level = static_cast<float>(20.0 * std::log10(std::abs(sample) / kFullScale));
            levels[static_cast<std::uint16_t>(sample)] = std::clamp(level, kWaveformNoiseFloor, 0.0F);
        }
        return levels;
    }();
    return table;
}

/// Channels of a track as its last format description tells; nothing where one tells nothing.
std::optional<std::size_t> channelCount(const AssetTrack& track) {
    std::size_t channels = 0;
    for (const AssetFormatDescription& description : track.formatDescriptions) {
        if (!description.streamDescription) {
            return std::nullopt;
        }
        channels = description.streamDescription->channelsPerFrame;
    }
    return channels;
}

/// Means of runs of levels.
class Averager {
public:
    Averager(std::uint64_t run, std::size_t columns) : m_run(run), m_columns(columns) { m_levels.reserve(columns); }

    bool isFull() const { return m_levels.size() == m_columns; }

    void add(std::span<const std::int16_t> samples, std::size_t channels) {
        const auto& levels = sampleLevels();
        const std::size_t frames = channels == 0 ? 0 : samples.size() / channels;
        for (std::size_t frame = 0; frame < frames && !isFull(); ++frame) {
            m_sum += static_cast<double>(levels[static_cast<std::uint16_t>(samples[frame * channels])]);
            if (++m_count == m_run) {
                m_levels.push_back(static_cast<float>(m_sum / static_cast<double>(m_run)));
                m_sum = 0.0;
                m_count = 0;
            }
        }
    }

    std::vector<float> finish() {
        const bool isEven = m_count == 0;
        m_levels.resize(m_columns,
                        isEven ? kWaveformNoiseFloor : static_cast<float>(m_sum / static_cast<double>(m_count)));
        return std::move(m_levels);
    }

private:
    std::uint64_t m_run;
    std::size_t m_columns;
    std::vector<float> m_levels;
    double m_sum = 0.0;
    std::uint64_t m_count = 0;
};

}  // namespace

std::vector<float> waveformLevels(AssetReaders& readers, const Asset& asset, double pixelWidth) {
    const auto channels = asset.audioTracks.empty() ? std::nullopt : channelCount(asset.audioTracks.front());
    if (!channels || !(pixelWidth > 0.0)) {
        return {};
    }
    const double perColumn = static_cast<double>(asset.duration.value) / pixelWidth;
    Averager averager(perColumn < 2.0 ? 1 : static_cast<std::uint64_t>(perColumn),
                      static_cast<std::size_t>(std::ceil(pixelWidth)));
    if (const auto reader = readers.assetReader(asset); reader && (*reader)->startReading()) {
        // What comes behind the last column is not seen.
        while ((*reader)->status() == AssetReaderStatus::Reading && !averager.isFull()) {
            if (const auto buffer = (*reader)->copyNextSampleBuffer()) {
                averager.add(buffer->samples, *channels);
            }
        }
    }
    return averager.finish();
}

}  // namespace tavi
