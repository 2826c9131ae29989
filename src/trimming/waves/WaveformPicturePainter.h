#pragma once

#include <QByteArray>

#include "API/AudioTrimmerController/EZAudio/EZAudioFloatData.h"
#include "platform/DisplayRefresh.h"

namespace tavi {

/// What the trimmer shows of a waveform's first channel, as a PNG of 1200 by 300. Takes no QGuiApplication.
QByteArray waveformPicture(const EZAudioFloatData& waveform, DisplayRefreshes& refreshes);

}  // namespace tavi
