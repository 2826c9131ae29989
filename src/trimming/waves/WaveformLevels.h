#pragma once

#include <vector>

#include "platform/AssetReader.h"

namespace tavi {

/// The level of silence in a static waveform, in decibels; 0 is full scale.
inline constexpr float kWaveformNoiseFloor = -50.0F;

/// Reads an asset through and reduces its first channel to one mean level a pixel column: from -50 to 0, columns from
/// the left. Empty where there is nothing to draw: no sound, or sound of an unknown shape.
///
/// A column stands for as many frames as the asset's duration value holds columns, rounded down, so that the columns of
/// a short file may end beyond the width. Columns behind the end, or behind a failure, have the mean of the rest.
std::vector<float> waveformLevels(AssetReaders& readers, const Asset& asset, double pixelWidth);

}  // namespace tavi
