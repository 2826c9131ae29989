#include "adapters/ffmpeg/exporting/FfmpegAssetExportSession.h"

#include <fcntl.h>

extern "C" {
#include <libavutil/mathematics.h>
}

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <system_error>
#include <thread>
#include <utility>

#include "adapters/ffmpeg/exporting/SoundExport.h"
#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// A time in frames; times that are out of any range become very early or late ones.
std::int64_t framesOf(const AssetTime& time, std::int32_t rate) {
    if (time.timescale <= 0) {
        return 0;
    }
    constexpr double kMost = 1e15;
    const double frames = static_cast<double>(time.value) * rate / time.timescale;
    return std::abs(frames) < kMost ? av_rescale(time.value, rate, time.timescale)
                                    : static_cast<std::int64_t>(std::copysign(kMost, frames));
}

}  // namespace

bool ExportThreads::start(std::shared_ptr<ExportControl> control, std::function<void()> work) {
    const std::lock_guard lock(m_mutex);
    const auto place = m_running.insert(m_running.end(), std::move(control));
    try {
        std::thread([this, place, work = std::move(work)]() mutable {
            // What the work holds is let go of before it counts as ended.
            std::exchange(work, nullptr)();
            const std::lock_guard ended(m_mutex);
            m_running.erase(place);
            m_ended.notify_all();
        }).detach();
    } catch (const std::system_error&) {
        m_running.erase(place);
        return false;
    }
    return true;
}

void ExportThreads::cancelAndWait() {
    std::unique_lock lock(m_mutex);
    for (const auto& control : m_running) {
        control->cancel();
    }
    m_ended.wait(lock, [this] { return m_running.empty(); });
}

FfmpegAssetExportSession::FfmpegAssetExportSession(const Asset& asset, AssetExportPreset preset,
                                                   std::shared_ptr<ExportThreads> threads)
    : m_threads(std::move(threads)) {
    m_order.asset = asset;
    m_order.preset = preset;
}

std::vector<AssetFileType> FfmpegAssetExportSession::supportedFileTypes() const {
    if (m_order.preset == AssetExportPreset::Passthrough) {
        return {AssetFileType::Wave, AssetFileType::CoreAudioFormat, AssetFileType::AppleM4A};
    }
    return {AssetFileType::AppleM4A};
}

Result<void> FfmpegAssetExportSession::run(const Order& order, ExportControl& control) {
    const Asset& asset = order.asset;
    const std::int32_t rate = asset.duration.timescale;
    std::int64_t start = 0;
    std::int64_t end = asset.duration.value;
    if (order.range) {
        const std::int64_t first = framesOf(order.range->start, rate);
        const std::int64_t last = first + framesOf(order.range->duration, rate);
        start = std::max(start, first);
        end = std::min(end, last);
    }
    if (!order.type || (order.preset != AssetExportPreset::Passthrough && *order.type != AssetFileType::AppleM4A)) {
        return failure(QStringLiteral("The export cannot make files of that type."));
    }
    if (start >= end) {
        return failure(QStringLiteral("There is no sound in the selection."));
    }
    // Not blocking, as a pipe of that name would.
    const FileDescriptor source = FileDescriptor::open(asset.path, O_RDONLY | O_NONBLOCK);
    if (!source.isValid() || regularFileSize(source.get()) < 0) {
        return failure(QStringLiteral("The sound file could not be opened: ") +
                       QString::fromStdString(std::generic_category().message(source.isValid() ? EINVAL : errno)));
    }
    const auto file = ExportFile::create(order.outputURL);
    if (!file) {
        return tl::unexpected(file.error());
    }
    ExportJob job{source.get(), asset.path, *order.type, start, end, rate, 1.0F, control, **file};
    if (!order.mix.inputParameters.empty()) {
        job.volume = order.mix.inputParameters.front().volume;
    }
    const Result<void> made = order.preset == AssetExportPreset::Passthrough ? exportPackets(job) : exportSound(job);
    if (!made || control.isCancelled()) {
        return made ? failure(QStringLiteral("The export was cancelled.")) : made;
    }
    return (*file)->publish(control);
}

void FfmpegAssetExportSession::exportAsynchronously(std::function<void()> completion) {
    {
        const std::lock_guard lock(m_state->mutex);
        if (m_state->status != AssetExportStatus::Unknown) {
            return;
        }
        m_state->status = AssetExportStatus::Exporting;
    }
    const auto finish = [state = m_state, completion = std::move(completion)](const Result<void>& result) {
        {
            const std::lock_guard lock(state->mutex);
            state->status = result                          ? AssetExportStatus::Completed
                            : state->control->isCancelled() ? AssetExportStatus::Cancelled
                                                            : AssetExportStatus::Failed;
            if (state->status == AssetExportStatus::Failed) {
                state->error = result.error();
            } else if (result) {
                state->control->setProgress(1.0);
            }
        }
        completion();
        const std::lock_guard lock(state->mutex);
        state->isOver = true;
        state->changed.notify_all();
    };
    const auto work = [order = m_order, control = m_state->control, finish] { finish(run(order, *control)); };
    if (!m_threads->start(m_state->control, work)) {
        finish(failure(QStringLiteral("There is no room for another export.")));
    }
}

void FfmpegAssetExportSession::cancelExport() {
    const std::lock_guard lock(m_state->mutex);
    if (m_state->status == AssetExportStatus::Exporting) {
        m_state->control->cancel();
    }
}

void FfmpegAssetExportSession::waitUntilFinished() {
    std::unique_lock lock(m_state->mutex);
    m_state->changed.wait(lock, [this] { return m_state->isOver || m_state->status == AssetExportStatus::Unknown; });
}

AssetExportStatus FfmpegAssetExportSession::status() const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->status;
}

Error FfmpegAssetExportSession::error() const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->error;
}

}  // namespace tavi
