#pragma once

#include "app/settings/SettingsStore.h"
#include "library/RecordingLister.h"
#include "library/RecordingShapes.h"
#include "platform/AppContainer.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/RemoteControl.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi {

/// What the library screen works with; all of it must outlive the screen.
struct LibraryServices {
    SettingsStore& settings;
    const AppContainer& container;
    NotificationCenter& notifications;
    RecordingLister& lister;
    RecordingShapes& shapes;
    RemoteControl& remoteControl;
    AudioTrimmerStage& trimmers;
    Notices& notices;
};

}  // namespace tavi
