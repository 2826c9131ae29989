#pragma once

#include "recording/SessionGuard.h"
#include "support/FakeAudioFileRepair.h"
#include "support/FakeServices.h"

namespace tavi::test {

/// The recording screen with all that it needs beside the shell.
struct FakeRecording {
    FakeServices& fakes;
    Presenter& presenter = fakes.presenter;
    TabBar& tabBar = fakes.tabBar;
    Notices& notices = fakes.notices;

    FakeMailComposer mail{};
    FakeAudioFileRepair repair{};
    RecordingCloud cloud{{fakes.cloud, fakes.settings, presenter, fakes.runLoop}};
    RecordingRescue rescue{{fakes.container, repair, fakes.runLoop, fakes.notifications, notices}};
    SessionFile file{{fakes.settings, fakes.formatHold, fakes.container, fakes.runLoop, fakes.notifications, presenter,
                      mail, notices, rescue, cloud}};
    LastRecording last{{fakes.container, fakes.durations, fakes.files, fakes.runLoop}};
    AudioRecordVC vc{{fakes.session, fakes.recorders, fakes.settings, fakes.container, fakes.runLoop, presenter, tabBar,
                      file, notices, cloud, last}};
    SystemSleep systemSleep{};
    FakeSessionEnd sessionEnd{};
    SessionGuard guard{vc, fakes.formatHold, systemSleep, sessionEnd};
};

}  // namespace tavi::test
