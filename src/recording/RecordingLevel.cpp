#include "recording/RecordingLevel.h"

namespace tavi {

namespace {

/// In dBFS. A quiet room is louder than what a muted microphone hears.
constexpr double kNothingHeard = -60.0;

}  // namespace

void RecordingLevel::read(AudioRecorder& recorder) {
    m_value = static_cast<double>(recorder.averagePowerForChannel(0));
    m_silentReadings = m_value < kNothingHeard ? m_silentReadings + 1 : 0;
    m_readingsSinceClip = recorder.takeClipped() ? 0 : m_readingsSinceClip + 1;
    Q_EMIT changed();
}

void RecordingLevel::forget() {
    m_value = kSilence;
    m_silentReadings = 0;
    m_readingsSinceClip = kClipReadings;
    Q_EMIT changed();
}

}  // namespace tavi
