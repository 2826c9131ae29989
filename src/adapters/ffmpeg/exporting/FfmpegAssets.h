#pragma once

#include <filesystem>
#include <memory>

#include "platform/AssetExportSession.h"
#include "platform/AssetReader.h"

namespace tavi {

class ExportThreads;

/// Sound files of all types that FFmpeg knows. Every export has a thread of its own; with the factory those that still
/// run are cancelled and waited for.
class FfmpegAssets : public AssetExportSessions, public AssetReaders {
public:
    FfmpegAssets();
    ~FfmpegAssets() override;
    FfmpegAssets(const FfmpegAssets&) = delete;
    FfmpegAssets& operator=(const FfmpegAssets&) = delete;

    Asset assetWithURL(const std::filesystem::path& path) override;
    std::vector<AssetExportPreset> exportPresetsCompatibleWithAsset(const Asset& asset) override;
    Result<std::unique_ptr<AssetExportSession>> exportSession(const Asset& asset, AssetExportPreset preset) override;
    Result<std::unique_ptr<AssetReader>> assetReader(const Asset& asset) override;

private:
    std::shared_ptr<ExportThreads> m_threads;
};

}  // namespace tavi
