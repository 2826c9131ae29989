#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Asset.h"
#include "platform/Error.h"

namespace tavi {

enum class AssetExportPreset {
    /// The packets as they are; nothing is encoded again.
    Passthrough,
    /// AAC-LC in an M4A file.
    AppleM4A,
    /// Tells by being offered that a file can be exported; exports like AppleM4A.
    HighestQuality,
};

/// Containers, whatever the name of the file.
enum class AssetFileType {
    /// WAVE, "wav".
    Wave,
    /// Core Audio Format, "caf".
    CoreAudioFormat,
    /// "m4a".
    AppleM4A,
};

enum class AssetExportStatus { Unknown, Waiting, Exporting, Completed, Failed, Cancelled };

/// How loud a track is: 1 is as it is.
struct AssetAudioMixParameters {
    float volume = 1.0F;
};

/// How tracks are mixed; the first entry is the first audio track's. The pass-through preset mixes nothing.
struct AssetAudioMix {
    std::vector<AssetAudioMixParameters> inputParameters;
};

/// Writes one stretch of a sound file into a new file, once. The source is only read.
///
/// What is set before exportAsynchronously() counts. Setters on one thread; all other functions on any thread.
/// A running export goes on when its session is destroyed; it ends with the process at the latest, cancelled.
class AssetExportSession {
public:
    virtual ~AssetExportSession() = default;

    /// The file to make. It must not exist when the export begins, or it fails.
    virtual void setOutputURL(const std::filesystem::path& path) = 0;
    /// One of supportedFileTypes(), or the export fails.
    virtual void setOutputFileType(AssetFileType type) = 0;
    /// The stretch to keep; what of it lies outside the sound is left out. Without it, all of the sound. The export of
    /// an empty stretch fails, as does one of negative length.
    virtual void setTimeRange(const AssetTimeRange& range) = 0;
    virtual void setAudioMix(const AssetAudioMix& mix) = 0;
    /// Containers that the preset can make of the asset.
    virtual std::vector<AssetFileType> supportedFileTypes() const = 0;

    /// Begins; completion comes on a background thread, once, when status() is Completed, Failed or Cancelled. The file
    /// has its name only when all of it is on the disk: a failed or cancelled export leaves nothing behind. A second
    /// call does nothing and its completion never comes.
    virtual void exportAsynchronously(std::function<void()> completion) = 0;
    /// Asks a running export to end soon, as Cancelled unless it is already over.
    virtual void cancelExport() = 0;
    /// Waits until an export that began is over and its completion has returned. Not from that completion.
    virtual void waitUntilFinished() = 0;

    /// Unknown before the export.
    virtual AssetExportStatus status() const = 0;
    /// 0 to 1; 1 when completed.
    virtual float progress() const = 0;
    /// Why it failed; empty in any other state.
    virtual Error error() const = 0;
};

/// Looks at sound files and makes their export sessions. Any thread.
class AssetExportSessions {
public:
    virtual ~AssetExportSessions() = default;

    /// Reads the file's headers, and through it only where they do not tell its length.
    virtual Asset assetWithURL(const std::filesystem::path& path) = 0;
    /// Empty for an asset without an audio track.
    virtual std::vector<AssetExportPreset> exportPresetsCompatibleWithAsset(const Asset& asset) = 0;
    /// Fails when the preset is not compatible with the asset.
    virtual Result<std::unique_ptr<AssetExportSession>> exportSession(const Asset& asset, AssetExportPreset preset) = 0;
};

}  // namespace tavi
