#pragma once

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "platform/AudioTypes.h"

namespace tavi {

/// A time as a count of units, of which timescale make a second.
struct AssetTime {
    std::int64_t value = 0;
    std::int32_t timescale = 1;

    double seconds() const { return static_cast<double>(value) / timescale; }
    /// The nearest time in a time scale. What is no number is 0.
    static AssetTime withSeconds(double seconds, std::int32_t timescale);

    bool operator==(const AssetTime&) const = default;
};

struct AssetTimeRange {
    AssetTime start;
    AssetTime duration;

    bool operator==(const AssetTimeRange&) const = default;
};

/// How a track, or a part of it, is coded.
struct AssetFormatDescription {
    /// Nothing where the file does not tell.
    std::optional<AudioStreamBasicDescription> streamDescription;
};

struct AssetTrack {
    std::vector<AssetFormatDescription> formatDescriptions;
};

/// What a sound file says about itself. A value: the file is not kept open.
struct Asset {
    std::filesystem::path path;
    /// What is meant to be heard, without an encoder's declared priming and padding. The time scale is the sample rate,
    /// so that the value counts frames. 0 without a track.
    AssetTime duration;
    /// Empty when there is no such file, or none with sound.
    std::vector<AssetTrack> audioTracks;
};

inline AssetTime AssetTime::withSeconds(double seconds, std::int32_t timescale) {
    constexpr double kLargest = 9e18;
    const double units = seconds * timescale;
    AssetTime time{0, timescale};
    if (units >= kLargest || units <= -kLargest) {
        time.value = static_cast<std::int64_t>(units > 0 ? kLargest : -kLargest);
    } else if (!std::isnan(units)) {
        time.value = static_cast<std::int64_t>(units < 0 ? units - 0.5 : units + 0.5);
    }
    return time;
}

}  // namespace tavi
