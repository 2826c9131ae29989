#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <memory>

#include "platform/AssetExportSession.h"
#include "platform/RunLoop.h"
#include "trimming/TrimRules.h"

namespace tavi {

/// Writes stretches of an asset as they are coded into new files, one after another. Main thread only.
class TrimExport : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    /// 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY changed)

public:
    using Ended = std::function<void(AssetExportStatus status)>;

    /// Both must outlive this.
    TrimExport(AssetExportSessions& exports, RunLoop& runLoop, QObject* parent = nullptr);

    bool isRunning() const { return m_isRunning; }
    double progress() const;

    /// Replaces the file at the path with the stretch; ended is called unless this has been destroyed by then. An asset
    /// that no export is offered for is not exported, and ended is not called.
    void start(const Asset& asset, const std::filesystem::path& path, AssetFileType type, const TrimTimes& times,
               Ended ended);
    void cancel();
    void waitUntilFinished();

Q_SIGNALS:
    void changed();

private:
    void didEnd(const Ended& ended);

    AssetExportSessions& m_exports;
    RunLoop& m_runLoop;
    std::unique_ptr<AssetExportSession> m_exportSession;
    std::shared_ptr<Timer> m_progressTimer;
    bool m_isRunning = false;
};

}  // namespace tavi
