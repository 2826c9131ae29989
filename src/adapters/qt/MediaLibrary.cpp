#include "adapters/qt/MediaLibrary.h"

#include <QCoreApplication>
#include <QLibrary>

namespace tavi {

const MediaLibrary::Adapters* MediaLibrary::adapters() const {
    std::call_once(m_loading, [this] {
        QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/tavi/libtavi-media.so"));
        if (const auto entry = reinterpret_cast<Entry>(library.resolve("taviMediaAdapters"))) {
            m_adapters = entry();
        } else {
            m_error.text =
                QStringLiteral("The library for sound files cannot be loaded: %1").arg(library.errorString());
            qWarning("%s", qUtf8Printable(m_error.text));
        }
    });
    return m_adapters;
}

Result<std::unique_ptr<AudioFileWriter>> MediaLibrary::create(const std::filesystem::path& path,
                                                              const AudioRecordSettings& settings) {
    const Adapters* loaded = adapters();
    if (loaded == nullptr) {
        return tl::unexpected(m_error);
    }
    return loaded->writers.create(path, settings);
}

Result<bool> MediaLibrary::repair(const std::filesystem::path& path) {
    const Adapters* loaded = adapters();
    if (loaded == nullptr) {
        return tl::unexpected(m_error);
    }
    return loaded->repair.repair(path);
}

double MediaLibrary::durationOfFile(const std::filesystem::path& path, const std::stop_token& stop) const {
    const Adapters* loaded = adapters();
    return loaded != nullptr ? loaded->durations.durationOfFile(path, stop) : 0.0;
}

Result<std::unique_ptr<AudioTempo>> MediaLibrary::create(int sampleRate, int channels) {
    const Adapters* loaded = adapters();
    if (loaded == nullptr) {
        return tl::unexpected(m_error);
    }
    return loaded->tempos.create(sampleRate, channels);
}

AudioStatus MediaLibrary::open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                               const std::stop_token& stop) {
    const Adapters* loaded = adapters();
    return loaded != nullptr ? loaded->files.open(path, file, stop) : kAudioFileUnspecifiedError;
}

AudioStatus MediaLibrary::create(const AudioStreamBasicDescription& input, const AudioStreamBasicDescription& output,
                                 std::unique_ptr<AudioConverter>& converter) {
    const Adapters* loaded = adapters();
    return loaded != nullptr ? loaded->converters.create(input, output, converter) : kAudioFileUnspecifiedError;
}

AudioStatus MediaLibrary::formatInfo(AudioStreamBasicDescription& format) const {
    const Adapters* loaded = adapters();
    return loaded != nullptr ? loaded->converters.formatInfo(format) : kAudioFileUnspecifiedError;
}

Asset MediaLibrary::assetWithURL(const std::filesystem::path& path) {
    const Adapters* loaded = adapters();
    return loaded != nullptr ? loaded->exportSessions.assetWithURL(path) : Asset{path, {}, {}};
}

std::vector<AssetExportPreset> MediaLibrary::exportPresetsCompatibleWithAsset(const Asset& asset) {
    const Adapters* loaded = adapters();
    return loaded != nullptr ? loaded->exportSessions.exportPresetsCompatibleWithAsset(asset)
                             : std::vector<AssetExportPreset>{};
}

Result<std::unique_ptr<AssetExportSession>> MediaLibrary::exportSession(const Asset& asset, AssetExportPreset preset) {
    const Adapters* loaded = adapters();
    if (loaded == nullptr) {
        return tl::unexpected(m_error);
    }
    return loaded->exportSessions.exportSession(asset, preset);
}

Result<std::unique_ptr<AssetReader>> MediaLibrary::assetReader(const Asset& asset) {
    const Adapters* loaded = adapters();
    if (loaded == nullptr) {
        return tl::unexpected(m_error);
    }
    return loaded->readers.assetReader(asset);
}

}  // namespace tavi
