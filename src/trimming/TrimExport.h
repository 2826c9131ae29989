#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "files/FileIdentity.h"
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
    /// A file that has made room for a running export gets its name back, unless the export is complete.
    ~TrimExport() override;

    bool isRunning() const { return m_isRunning; }
    double progress() const;

    /// Writes the stretch to the path; ended is called unless this has been destroyed by then. A file there steps aside
    /// to a free name: one that was written here goes when the new one is complete, or gets its name back; any other
    /// one stays there. An asset that no export is offered for is not exported, and ended is not called.
    void start(const Asset& asset, const std::filesystem::path& path, AssetFileType type, const TrimTimes& times,
               Ended ended);
    void cancel();
    /// Gives the running export up, even if it is complete before it can be cancelled.
    void abandon();
    void waitUntilFinished();

Q_SIGNALS:
    void changed();

private:
    void didEnd(const Ended& ended);
    AssetExportStatus settle();

    AssetExportSessions& m_exports;
    RunLoop& m_runLoop;
    std::unique_ptr<AssetExportSession> m_exportSession;
    std::shared_ptr<Timer> m_progressTimer;
    bool m_isRunning = false;
    bool m_isAbandoned = false;
    std::filesystem::path m_path;
    /// The file at the path as it was written here.
    std::optional<FileIdentity> m_written;
    /// Where that is during the next export.
    std::optional<std::filesystem::path> m_aside;
};

}  // namespace tavi
