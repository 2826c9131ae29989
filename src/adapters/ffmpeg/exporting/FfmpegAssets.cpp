#include "adapters/ffmpeg/exporting/FfmpegAssets.h"

#include <fcntl.h>

#include <algorithm>
#include <cmath>

#include "adapters/ffmpeg/exporting/FfmpegAssetExportSession.h"
#include "adapters/ffmpeg/reading/FfmpegAssetReader.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "sound/HeaderDuration.h"
#include "sound/mp4/Mp4Sound.h"

namespace tavi {

namespace {

/// From the header alone, where it tells all and the last packet is there: opening a decoder for hours of sound takes
/// longer than copying them.
std::optional<Asset> assetOfHeader(const std::filesystem::path& path) {
    const FileDescriptor file = FileDescriptor::open(path, O_RDONLY | O_NONBLOCK);
    const std::int64_t size = file.isValid() ? regularFileSize(file.get()) : -1;
    const auto sound = size > 0 ? Mp4Sound::open(file.get()) : std::nullopt;
    const auto format = sound ? sound->format() : std::nullopt;
    const auto seconds = format ? headerDuration(file.get()) : std::nullopt;
    if (!seconds) {
        return std::nullopt;
    }
    const std::int64_t frames = std::llround(std::min(*seconds * format->sampleRate, 1e15));
    bool isThere = false;
    sound->forEachPacket(sound->start() + frames - 1, 0, [&](std::int64_t begin, const Mp4Packet& packet) {
        isThere = sound->start() + frames <= begin + packet.duration && packet.offset <= size &&
                  packet.size <= size - packet.offset;
        return false;
    });
    const auto timescale = static_cast<std::int32_t>(format->sampleRate);
    return isThere && frames > 0 ? std::optional(Asset{path, {frames, timescale}, {{{{*format}}}}}) : std::nullopt;
}

}  // namespace

FfmpegAssets::FfmpegAssets() : m_threads(std::make_shared<ExportThreads>()) {}

FfmpegAssets::~FfmpegAssets() {
    m_threads->cancelAndWait();
}

Asset FfmpegAssets::assetWithURL(const std::filesystem::path& path) {
    if (auto asset = assetOfHeader(path)) {
        return *asset;
    }
    Asset asset{path, {}, {}};
    std::unique_ptr<ExtAudioFile> file;
    AudioStreamBasicDescription format;
    std::int64_t frames = 0;
    if (FfmpegExtAudioFiles().open(path, file) == kAudioNoError && file->fileDataFormat(format) == kAudioNoError &&
        file->fileLengthFrames(frames) == kAudioNoError) {
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
