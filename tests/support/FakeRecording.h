#pragma once

#include "recording/SessionGuard.h"
#include "support/FakeAudioFileRepair.h"
#include "support/FakeServices.h"

namespace tavi::test {

/// The recording screen with all that it needs beside the shell.
struct FakeRecording {
    FakeRecording(FakeServices& fakes, Presenter& presenter, TabBar& tabBar, Notices& notices)
        : cloud(
              {.documents = fakes.cloud, .settings = fakes.settings, .presenter = presenter, .runLoop = fakes.runLoop}),
          rescue({.container = fakes.container,
                  .repair = repair,
                  .runLoop = fakes.runLoop,
                  .notifications = fakes.notifications,
                  .notices = notices}),
          file({.settings = fakes.settings,
                .formatHold = fakes.formatHold,
                .container = fakes.container,
                .runLoop = fakes.runLoop,
                .notifications = fakes.notifications,
                .presenter = presenter,
                .mailComposer = mail,
                .notices = notices,
                .rescue = rescue,
                .cloud = cloud}),
          vc({.audioSession = fakes.session,
              .audioRecorders = fakes.recorders,
              .settings = fakes.settings,
              .container = fakes.container,
              .runLoop = fakes.runLoop,
              .presenter = presenter,
              .tabBar = tabBar,
              .sessionFile = file,
              .notices = notices,
              .cloud = cloud}),
          guard(vc, fakes.formatHold, systemSleep, sessionEnd) {}

    FakeMailComposer mail;
    FakeAudioFileRepair repair;
    RecordingCloud cloud;
    RecordingRescue rescue;
    SessionFile file;
    AudioRecordVC vc;
    SystemSleep systemSleep;
    FakeSessionEnd sessionEnd;
    SessionGuard guard;
};

}  // namespace tavi::test
