#pragma once

#include <QString>
#include <cstdint>

#include "platform/AudioRecorder.h"

namespace tavi {

/// What a recording of that type and quality is written as.
///
/// The type chooses the format: "wav" linear PCM, "caf" IMA 4:1, "mp4" and "aac" AAC, anything else Apple Lossless. The
/// quality chooses the rate: "Low" 8000 Hz mono, "Medium" 16000 Hz stereo, anything else 44100 Hz stereo.
AudioRecordSettings generateAudioSettings(const QString& fileType, const QString& qualityType);

/// The clock's text after that many seconds, "hh:mm:ss"; hours grow beyond two digits.
QString clockText(std::int64_t seconds);

}  // namespace tavi
