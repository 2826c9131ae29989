#pragma once

#include "app/settings/SettingsStore.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/RemoteControl.h"

namespace tavi {

/// What the library screen works with; all of it must outlive the screen.
struct LibraryServices {
    SettingsStore& settings;
    NotificationCenter& notifications;
    RemoteControl& remoteControl;
    Notices& notices;
};

}  // namespace tavi
