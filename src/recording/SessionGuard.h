#pragma once

#include "app/settings/FormatHold.h"
#include "platform/SessionEnd.h"
#include "platform/SystemSleep.h"
#include "recording/AudioRecordVC.h"

namespace tavi {

/// Keeps a recording from what the system is about to do: before the machine sleeps, what was captured is brought to
/// the disk, and the user's session ends only once the recording is saved. Main thread only.
class SessionGuard : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this. The hold tells from when until when there is something to keep.
    SessionGuard(AudioRecordVC& screen, const FormatHold& formatHold, SystemSleep& systemSleep, SessionEnd& sessionEnd,
                 QObject* parent = nullptr);
};

}  // namespace tavi
