#pragma once

#include "app/settings/SettingsStore.h"
#include "platform/AppContainer.h"
#include "platform/AudioRecorder.h"
#include "platform/AudioSession.h"
#include "platform/Notices.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"
#include "platform/TabBar.h"
#include "recording/LastRecording.h"
#include "recording/RecordingCloud.h"
#include "recording/SessionFile.h"

namespace tavi {

/// What the recording screen works with; all of it must outlive the screen.
struct RecordServices {
    AudioSession& audioSession;
    AudioRecorders& audioRecorders;
    SettingsStore& settings;
    const AppContainer& container;
    RunLoop& runLoop;
    Presenter& presenter;
    TabBar& tabBar;
    SessionFile& sessionFile;
    Notices& notices;
    RecordingCloud& cloud;
    LastRecording& last;
};

}  // namespace tavi
