#pragma once

#include <filesystem>
#include <mutex>

#include "platform/AssetExportSession.h"
#include "platform/AssetReader.h"
#include "platform/AudioConverter.h"
#include "platform/AudioDuration.h"
#include "platform/AudioFileRepair.h"
#include "platform/AudioFileWriter.h"
#include "platform/AudioTempo.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// The media adapters in a library of their own, which is loaded when it is first needed.
///
/// What encodes and decodes brings a hundred libraries with it. Loading them takes longer than everything else from the
/// start of the program to its first picture, so the window does not wait for them. Any thread.
class MediaLibrary : public AudioFileWriters,
                     public AudioFileRepair,
                     public AudioDuration,
                     public AudioTempos,
                     public ExtAudioFiles,
                     public AudioConverters,
                     public AssetExportSessions,
                     public AssetReaders {
public:
    /// What the library says about itself: the function "taviMediaAdapters" returns it.
    struct Adapters {
        AudioFileWriters& writers;
        AudioFileRepair& repair;
        const AudioDuration& durations;
        AudioTempos& tempos;
        ExtAudioFiles& files;
        AudioConverters& converters;
        AssetExportSessions& exportSessions;
        AssetReaders& readers;
    };
    using Entry = const Adapters* (*)();

    /// Loads nothing yet. Needs the application object when it does.
    MediaLibrary() = default;
    MediaLibrary(const MediaLibrary&) = delete;
    MediaLibrary& operator=(const MediaLibrary&) = delete;

    /// Loads the library if nobody has; takes about as long as a program with FFmpeg takes to start. It stays loaded.
    void load() const { adapters(); }

    /// Fails when the library cannot be loaded.
    Result<std::unique_ptr<AudioFileWriter>> create(const std::filesystem::path& path,
                                                    const AudioRecordSettings& settings) override;
    /// Fails when the library cannot be loaded.
    Result<bool> repair(const std::filesystem::path& path) override;
    /// 0 when the library cannot be loaded.
    double durationOfFile(const std::filesystem::path& path, const std::stop_token& stop = {}) const override;
    /// Fails when the library cannot be loaded.
    Result<std::unique_ptr<AudioTempo>> create(int sampleRate, int channels) override;
    /// They answer kAudioFileUnspecifiedError when the library cannot be loaded.
    AudioStatus open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                     const std::stop_token& stop = {}) override;
    AudioStatus create(const AudioStreamBasicDescription& input, const AudioStreamBasicDescription& output,
                       std::unique_ptr<AudioConverter>& converter) override;
    AudioStatus formatInfo(AudioStreamBasicDescription& format) const override;
    /// Without a track when the library cannot be loaded.
    Asset assetWithURL(const std::filesystem::path& path) override;
    std::vector<AssetExportPreset> exportPresetsCompatibleWithAsset(const Asset& asset) override;
    /// These two fail when the library cannot be loaded.
    Result<std::unique_ptr<AssetExportSession>> exportSession(const Asset& asset, AssetExportPreset preset) override;
    Result<std::unique_ptr<AssetReader>> assetReader(const Asset& asset) override;

private:
    const Adapters* adapters() const;

    mutable std::once_flag m_loading;
    mutable const Adapters* m_adapters = nullptr;
    mutable Error m_error;
};

}  // namespace tavi
