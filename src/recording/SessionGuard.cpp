#include "recording/SessionGuard.h"

namespace tavi {

SessionGuard::SessionGuard(AudioRecordVC& screen, const FormatHold& formatHold, SystemSleep& systemSleep,
                           SessionEnd& sessionEnd, QObject* parent)
    : QObject(parent) {
    connect(&systemSleep, &SystemSleep::willSleep, &screen, &AudioRecordVC::systemWillSleep);
    connect(&systemSleep, &SystemSleep::hasWoken, &screen, &AudioRecordVC::systemHasWoken);
    connect(&formatHold, &FormatHold::heldChanged, this,
            [&formatHold, &sessionEnd] { sessionEnd.setHeldUp(formatHold.isHeld()); });
}

}  // namespace tavi
