#include "trimming/TrimExport.h"

#include <QLoggingCategory>
#include <QPointer>
#include <algorithm>

#include "files/NativePath.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcTrimming, "tavi.trimming", QtInfoMsg)

constexpr double kProgressInterval = 0.1;

void log(const AssetExportSession& session) {
    switch (session.status()) {
        case AssetExportStatus::Completed:
            break;
        case AssetExportStatus::Failed:
            qCWarning(lcTrimming, "Export failed: %s", qUtf8Printable(session.error().text));
            break;
        case AssetExportStatus::Cancelled:
            qCInfo(lcTrimming, "Export cancelled");
            break;
        default:
            qCWarning(lcTrimming, "NONE");
            break;
    }
}

}  // namespace

TrimExport::TrimExport(AssetExportSessions& exports, RunLoop& runLoop, QObject* parent)
    : QObject(parent), m_exports(exports), m_runLoop(runLoop) {}

double TrimExport::progress() const {
    return m_exportSession != nullptr ? static_cast<double>(m_exportSession->progress()) : 0.0;
}

void TrimExport::start(const Asset& asset, const std::filesystem::path& path, AssetFileType type,
                       const TrimTimes& times, Ended ended) {
    removeAt(path);
    // The best quality only tells by being offered that there is something to export. Without it nothing happens, on
    // purpose: there is nothing that could be told about a file without sound.
    const auto presets = m_exports.exportPresetsCompatibleWithAsset(asset);
    if (std::find(presets.begin(), presets.end(), AssetExportPreset::HighestQuality) == presets.end()) {
        return;
    }
    auto session = m_exports.exportSession(asset, AssetExportPreset::Passthrough);
    if (!session) {
        qCWarning(lcTrimming, "Export failed: %s", qUtf8Printable(session.error().text));
        return;
    }
    m_exportSession = std::move(*session);
    m_exportSession->setOutputURL(path);
    m_exportSession->setOutputFileType(type);
    const std::int32_t scale = asset.duration.timescale;
    m_exportSession->setTimeRange(
        {AssetTime::withSeconds(times.start, scale), AssetTime::withSeconds(times.length(), scale)});
    m_isRunning = true;
    const QPointer<TrimExport> self(this);
    m_progressTimer = m_runLoop.scheduledTimer(kProgressInterval, true, [self] {
        if (self) {
            Q_EMIT self->changed();
        }
    });
    Q_EMIT changed();
    m_exportSession->exportAsynchronously([self, &runLoop = m_runLoop, ended = std::move(ended)] {
        runLoop.dispatchMain([self, ended] {
            if (self) {
                self->didEnd(ended);
            }
        });
    });
}

void TrimExport::didEnd(const Ended& ended) {
    log(*m_exportSession);
    m_isRunning = false;
    m_progressTimer->invalidate();
    m_progressTimer.reset();
    Q_EMIT changed();
    ended(m_exportSession->status());
}

void TrimExport::cancel() {
    if (m_isRunning) {
        m_exportSession->cancelExport();
    }
}

void TrimExport::waitUntilFinished() {
    if (m_isRunning) {
        m_exportSession->waitUntilFinished();
    }
}

}  // namespace tavi
