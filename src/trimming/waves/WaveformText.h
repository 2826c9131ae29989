#pragma once

#include <QByteArray>

#include "API/AudioTrimmerController/EZAudio/EZAudioFloatData.h"

namespace tavi {

/// A waveform for standard output: a line a point with the RMS of each channel, divided by tabs, or a JSON object
/// {"channels":C,"points":N,"data":[[...],...]} with an array a channel. A point without samples is "nan", in JSON
/// null.
QByteArray waveformText(const EZAudioFloatData& waveform, bool json);

}  // namespace tavi
