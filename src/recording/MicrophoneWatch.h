#pragma once

#include <QString>
#include <cstdint>

#include "platform/AudioRecorder.h"
#include "platform/Notices.h"

namespace tavi {

/// Says in passing what becomes of the microphone during a recording: that no sound comes from it any more, be it
/// suspended or stuck, how much is missing once it is back, and which other one has taken its place. Main thread only.
class MicrophoneWatch {
public:
    /// The notices must outlive the watch.
    explicit MicrophoneWatch(Notices& notices) : m_notices(notices) {}

    /// The recorder starts, or goes on after a pause.
    void begin(const AudioRecorder& recorder);
    /// The machine has slept for so long in the midst of it.
    void didSleep(const AudioRecorder& recorder, double seconds);
    /// Looks at a recorder that captures; called ten times a second.
    void look(const AudioRecorder& recorder);

private:
    Notices& m_notices;
    std::int64_t m_frames = 0;
    /// Looks since the last frames came.
    int m_looks = 0;
    /// Looks without frames by which the microphone counts as stopped.
    int m_patience = 0;
    QString m_name;
};

}  // namespace tavi
