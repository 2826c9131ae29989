#include "recording/MicrophoneWatch.h"

#include <QCoreApplication>
#include <cmath>

#include "recording/AudioSettings.h"

namespace tavi {

namespace {

constexpr int kLooksPerSecond = 10;
/// Frames come several times a second, but a wireless microphone takes its time to begin.
constexpr int kRunning = kLooksPerSecond;
constexpr int kBeginning = 3 * kLooksPerSecond;

}  // namespace

void MicrophoneWatch::begin(const AudioRecorder& recorder) {
    m_frames = recorder.framesRecorded();
    m_looks = 0;
    m_patience = kBeginning;
    if (m_frames == 0) {
        m_name.clear();
    }
}

void MicrophoneWatch::didSleep(const AudioRecorder& recorder, double seconds) {
    begin(recorder);
    if (const int whole = static_cast<int>(std::lround(seconds)); whole > 0) {
        m_notices.postNotice({qtTrId("record_slept").arg(clockText(whole))});
    }
}

void MicrophoneWatch::look(const AudioRecorder& recorder) {
    const std::int64_t frames = recorder.framesRecorded();
    if (frames == m_frames) {
        if (++m_looks == m_patience) {
            m_notices.postNotice({qtTrId("microphone_stopped")});
        }
    } else {
        if (m_looks >= m_patience) {
            const int seconds = (m_looks + kLooksPerSecond / 2) / kLooksPerSecond;
            m_notices.postNotice({qtTrId("microphone_back").arg(seconds)});
        }
        m_frames = frames;
        m_looks = 0;
        m_patience = kRunning;
    }
    if (const QString name = recorder.inputName(); !name.isEmpty() && name != m_name) {
        if (!m_name.isEmpty()) {
            m_notices.postNotice({qtTrId("microphone_changed").arg(name)});
        }
        m_name = name;
    }
}

}  // namespace tavi
