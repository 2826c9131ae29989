#pragma once

#include "app/settings/FormatHold.h"
#include "app/settings/SettingsStore.h"
#include "platform/LockState.h"
#include "support/FakeAssets.h"
#include "support/FakeAudioConverter.h"
#include "support/FakeAudioPlayer.h"
#include "support/FakeAudioRecorder.h"
#include "support/FakeCloudDocuments.h"
#include "support/FakeDisplayRefresh.h"
#include "support/FakeExtAudioFile.h"
#include "support/FakeSecureStore.h"
#include "support/Fakes.h"
#include "support/ManualRunLoop.h"
#include "support/TemporaryContainer.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi::test {

/// What the screens that play, record and trim work on, all of it fake, and the trimmers' stage on it.
struct FakeServices {
    FakeServices() { QLocale::setDefault(QLocale(QStringLiteral("en_US"))); }

    ManualRunLoop runLoop;
    TemporaryContainer container;
    NotificationCenter notifications;
    FakePresenter presenter;
    FakeNotices notices;
    FakeTabBar tabBar;
    LockState lockState;
    FakeUserDefaults defaults;
    FakeSecureStore keychain;
    SettingsStore settings{defaults};
    FormatHold formatHold{container};
    FakeAudioSession session;
    FakeRemoteControl remote;
    FakeAudioPlayers players{runLoop};
    FakeAudioRecorders recorders{runLoop};
    FakeAssets assets{runLoop};
    FakeAudioDuration durations;
    FakeExtAudioFiles files;
    FakeAudioConverters converters;
    FakeDisplayRefreshes refreshes;
    FakeCloudDocuments cloud{runLoop};
    WaveformLoader trimmerWaveforms{{files, converters, runLoop}};
    AudioTrimmerStage trimmers{{assets,
                                players,
                                {recorders, session},
                                trimmerWaveforms,
                                refreshes,
                                container,
                                notifications,
                                notices,
                                runLoop}};
};

}  // namespace tavi::test
