#pragma once

#include "library/VoiceMemoVC.h"
#include "support/FakeServices.h"

namespace tavi::test {

/// A library screen with all that it needs.
struct FakeLibrary {
    explicit FakeLibrary(FakeServices& fakes, const AudioDuration& lengths)
        : lister(lengths, fakes.runLoop),
          waveforms({fakes.files, fakes.converters, fakes.runLoop}),
          player(
              {fakes.players, fakes.session, fakes.remote, fakes.settings, fakes.runLoop, waveforms, fakes.refreshes}),
          vc({fakes.settings, fakes.container, fakes.notifications, lister, fakes.remote, fakes.trimmers}, player) {}

    RecordingLister lister;
    WaveformLoader waveforms;
    PlayerPanel player;
    VoiceMemoVC vc;
};

}  // namespace tavi::test
