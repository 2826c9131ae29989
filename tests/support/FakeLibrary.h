#pragma once

#include "library/VoiceMemoVC.h"
#include "support/FakeServices.h"

namespace tavi::test {

/// A library screen with all that it needs.
struct FakeLibrary {
    FakeLibrary(FakeServices& fakes, const AudioDuration& lengths, Notices& notices)
        : lister(lengths, fakes.runLoop),
          shapes(fakes.files, fakes.runLoop),
          waveforms({.files = fakes.files, .converters = fakes.converters, .queues = fakes.runLoop}),
          player({.players = fakes.players,
                  .session = fakes.session,
                  .remoteControl = fakes.remote,
                  .settings = fakes.settings,
                  .notices = notices,
                  .runLoop = fakes.runLoop,
                  .waveforms = waveforms}),
          table({.settings = fakes.settings, .container = fakes.container, .lister = lister, .shapes = shapes}),
          vc({.settings = fakes.settings,
              .notifications = fakes.notifications,
              .remoteControl = fakes.remote,
              .trimmers = fakes.trimmers,
              .notices = notices,
              .cloud = fakes.cloud},
             table, player) {}

    RecordingLister lister;
    RecordingShapes shapes;
    WaveformLoader waveforms;
    PlayerPanel player;
    RecordingTable table;
    VoiceMemoVC vc;
};

}  // namespace tavi::test
