#include "adapters/ffmpeg/FfmpegAssets.h"

#include <algorithm>
#include <cmath>

#include "adapters/ffmpeg/FfmpegAssetExportSession.h"
#include "adapters/ffmpeg/FfmpegAssetReader.h"
#include "adapters/ffmpeg/FfmpegExtAudioFiles.h"

namespace tavi {

FfmpegAssets::FfmpegAssets() : m_threads(std::make_shared<ExportThreads>()) {}

FfmpegAssets::~FfmpegAssets() {
    m_threads->cancelAndWait();
}

Asset FfmpegAssets::assetWithURL(const QByteArray& path) {
    Asset asset{path, {}, {}};
    std::unique_ptr<ExtAudioFile> file;
    AudioStreamBasicDescription format;
    std::int64_t frames = 0;
    if (FfmpegExtAudioFiles().open(path.toStdString(), file) == kAudioNoError &&
        file->fileDataFormat(format) == kAudioNoError && file->fileLengthFrames(frames) == kAudioNoError) {
        asset.duration = {frames, std::max(1, static_cast<std::int32_t>(std::lround(format.sampleRate)))};
        asset.audioTracks = {{{{format}}}};
    }
    return asset;
}

std::vector<AssetExportPreset> FfmpegAssets::exportPresetsCompatibleWithAsset(const Asset& asset) {
    if (asset.audioTracks.empty()) {
        return {};
    }
    return {AssetExportPreset::Passthrough, AssetExportPreset::AppleM4A, AssetExportPreset::HighestQuality};
}

Result<std::unique_ptr<AssetExportSession>> FfmpegAssets::exportSession(const Asset& asset, AssetExportPreset preset) {
    if (asset.audioTracks.empty()) {
        return failure(QStringLiteral("There is no sound in the file."));
    }
    return std::make_unique<FfmpegAssetExportSession>(asset, preset, m_threads);
}

Result<std::unique_ptr<AssetReader>> FfmpegAssets::assetReader(const Asset& asset) {
    if (asset.audioTracks.empty()) {
        return failure(QStringLiteral("There is no sound in the file."));
    }
    return std::make_unique<FfmpegAssetReader>(asset);
}

}  // namespace tavi
