#pragma once

#include <condition_variable>
#include <filesystem>
#include <list>
#include <mutex>
#include <optional>

#include "adapters/ffmpeg/exporting/ExportFile.h"
#include "platform/AssetExportSession.h"

namespace tavi {

/// The exports that run. Any thread.
class ExportThreads {
public:
    /// Runs work on a thread of its own; false when there can be none. The control is cancelled when all are to end.
    bool start(std::shared_ptr<ExportControl> control, std::function<void()> work);
    void cancelAndWait();

private:
    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::list<std::shared_ptr<ExportControl>> m_running;
};

/// Exports by copying packets (see exportPackets) or by encoding (see exportSound).
class FfmpegAssetExportSession : public AssetExportSession {
public:
    FfmpegAssetExportSession(const Asset& asset, AssetExportPreset preset, std::shared_ptr<ExportThreads> threads);

    void setOutputURL(const std::filesystem::path& path) override { m_order.outputURL = path; }
    void setOutputFileType(AssetFileType type) override { m_order.type = type; }
    void setTimeRange(const AssetTimeRange& range) override { m_order.range = range; }
    void setAudioMix(const AssetAudioMix& mix) override { m_order.mix = mix; }
    std::vector<AssetFileType> supportedFileTypes() const override;
    void exportAsynchronously(std::function<void()> completion) override;
    void cancelExport() override;
    void waitUntilFinished() override;
    AssetExportStatus status() const override;
    float progress() const override { return m_state->control->progress(); }
    Error error() const override;

private:
    struct Order {
        Asset asset;
        AssetExportPreset preset = AssetExportPreset::Passthrough;
        std::filesystem::path outputURL;
        std::optional<AssetFileType> type;
        std::optional<AssetTimeRange> range;
        AssetAudioMix mix;
    };
    /// What the session and its thread share.
    struct State {
        std::shared_ptr<ExportControl> control = std::make_shared<ExportControl>();
        std::mutex mutex;
        std::condition_variable changed;
        AssetExportStatus status = AssetExportStatus::Unknown;
        Error error;
        bool isOver = false;
    };

    static Result<void> run(const Order& order, ExportControl& control);

    Order m_order;
    std::shared_ptr<ExportThreads> m_threads;
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace tavi
