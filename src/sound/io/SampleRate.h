#pragma once

namespace tavi {

/// The rates, in hertz, that sound can have. Recorders and converters make no others; a damaged or hostile file of one
/// sample a second would make weeks of sound, and hours of work, of a megabyte.
inline constexpr int kLowestSampleRate = 1000;
inline constexpr int kHighestSampleRate = 768000;

/// False for NaN, too.
constexpr bool isSampleRate(double hertz) {
    return hertz >= kLowestSampleRate && hertz <= kHighestSampleRate;
}

}  // namespace tavi
