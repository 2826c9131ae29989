#include "trimming/TrimExport.h"

#include <QLoggingCategory>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "files/FileMove.h"
#include "files/FileNames.h"

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
    // The best quality only tells by being offered that there is something to export.
    const auto presets = m_exports.exportPresetsCompatibleWithAsset(asset);
    if (std::find(presets.begin(), presets.end(), AssetExportPreset::HighestQuality) == presets.end()) {
        return;
    }
    auto session = m_exports.exportSession(asset, AssetExportPreset::Passthrough);
    if (!session) {
        qCWarning(lcTrimming, "Export failed: %s", qUtf8Printable(session.error().text));
        return;
    }
    if (existsAt(path)) {
        const bool isWrittenHere = m_written && FileIdentity::at(path) == m_written;
        const auto aside = stepAside(path);
        if (!aside) {
            qCWarning(lcTrimming, "Export failed: %s", aside.error().text.c_str());
            return;
        }
        m_aside = isWrittenHere ? std::optional(*aside) : std::nullopt;
    }
    m_path = path;
    m_isAbandoned = false;
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

TrimExport::~TrimExport() {
    if (m_isRunning) {
        settle();
    }
}

void TrimExport::didEnd(const Ended& ended) {
    log(*m_exportSession);
    m_isRunning = false;
    const AssetExportStatus status = settle();
    Q_EMIT changed();
    ended(status);
}

AssetExportStatus TrimExport::settle() {
    m_progressTimer->invalidate();
    m_progressTimer.reset();
    AssetExportStatus status = m_exportSession->status();
    if (status == AssetExportStatus::Completed && m_isAbandoned) {
        removeAt(m_path);
        status = AssetExportStatus::Cancelled;
    }
    const auto before = std::exchange(m_aside, std::nullopt);
    if (status == AssetExportStatus::Completed) {
        m_written = FileIdentity::at(m_path);
        if (before) {
            removeAt(*before);
        }
    } else if (before) {
        renameWithoutReplacing(*before, m_path);
    }
    return status;
}

void TrimExport::cancel() {
    if (m_isRunning) {
        m_exportSession->cancelExport();
    }
}

void TrimExport::abandon() {
    m_isAbandoned = true;
    cancel();
}

void TrimExport::waitUntilFinished() {
    if (m_isRunning) {
        m_exportSession->waitUntilFinished();
    }
}

}  // namespace tavi
