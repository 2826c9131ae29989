#pragma once

#include "app/settings/SettingsStore.h"
#include "platform/AudioPlayer.h"
#include "platform/AudioSession.h"
#include "platform/Notices.h"
#include "platform/RemoteControl.h"
#include "platform/RunLoop.h"
#include "trimming/waves/WaveformLoader.h"

namespace tavi {

/// What the library's player works with; all of it must outlive the player.
struct PlayerServices {
    AudioPlayers& players;
    AudioSession& session;
    RemoteControl& remoteControl;
    const SettingsStore& settings;
    Notices& notices;
    RunLoop& runLoop;
    WaveformLoader& waveforms;
};

}  // namespace tavi
