#pragma once

#include "app/settings/SettingsStore.h"
#include "cloud/CloudDocuments.h"
#include "platform/AppContainer.h"
#include "platform/AssetExportSession.h"
#include "platform/AssetReader.h"
#include "platform/AudioPlayer.h"
#include "platform/Notices.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// What the screen that exports whole seconds works with; all of it must outlive the screen.
struct AudioTrimServices {
    AssetExportSessions& exports;
    AssetReaders& readers;
    AudioPlayers& players;
    SettingsStore& settings;
    const AppContainer& container;
    Presenter& presenter;
    Notices& notices;
    RunLoop& runLoop;
    CloudDocuments& cloud;
};

}  // namespace tavi
