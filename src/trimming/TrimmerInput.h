#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/AppContainer.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "trimming/ScratchRecorder.h"
#include "trimming/waves/EZAudioPlot.h"
#include "trimming/waves/WaveformLoader.h"

namespace tavi {

/// What trimmers work with; all of it must outlive them.
struct TrimmerServices {
    AssetExportSessions& exports;
    AudioPlayers& players;
    ScratchRecorder::Services recorder;
    /// For trimmers alone: another load would take the place of theirs.
    WaveformLoader& waveforms;
    DisplayRefreshes& refreshes;
    const AppContainer& container;
    NotificationCenter& notifications;
    Notices& notices;
    RunLoop& runLoop;
};

/// What a trimmer is opened with.
struct TrimmerInput {
    /// Told when the screen closes: with the new file, or without one. A completed export tells it several times.
    using Completion = std::function<void(bool success, const std::filesystem::path& path)>;

    /// "file://" and the path, or the path alone, in the path's bytes.
    std::string getUrl;
    /// Its "duration" is the text of the list.
    QVariantMap getDictData;
    std::filesystem::path getFileName;
    Completion completionBlock;
    QPointer<QObject> refreshDelegate;
    bool isPushAudioTrimmer = false;
};

}  // namespace tavi
