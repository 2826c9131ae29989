#pragma once

#include "app/settings/SettingsStore.h"
#include "cloud/CloudDocuments.h"
#include "library/RecordingSharing.h"
#include "library/RecordingTable.h"
#include "platform/Notices.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"
#include "platform/Trash.h"
#include "trimming/AudioTrimStage.h"
#include "trimming/AudioTrimmerStage.h"

namespace tavi {

/// What the actions of the library's rows work with; all of it must outlive them.
struct RecordingActionsServices {
    RecordingTable& table;
    SettingsStore& settings;
    CloudDocuments& cloud;
    RecordingSharing& sharing;
    Trash& trash;
    AudioTrimmerStage& trimmers;
    AudioTrimStage& audioTrims;
    Presenter& presenter;
    Notices& notices;
    RunLoop& runLoop;
};

}  // namespace tavi
