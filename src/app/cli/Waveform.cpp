#include "app/cli/Waveform.h"

#include <QSaveFile>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "app/cli/SoundFile.h"
#include "files/PathText.h"
#include "trimming/waves/WaveformPicturePainter.h"
#include "trimming/waves/WaveformText.h"

namespace tavi {

namespace {

Result<void> writePicture(const std::filesystem::path& path, const QByteArray& png) {
    const QString name = pathText(path);
    if (nativePath(name) != path) {
        return failureOf(path, QStringLiteral("a picture's name must be text"));
    }
    QSaveFile output(name);
    if (!output.open(QIODevice::WriteOnly) || output.write(png) != png.size() || !output.commit()) {
        return failureOf(path, output.errorString());
    }
    return {};
}

}  // namespace

Result<QByteArray> run(const WaveformOptions& options, const CommandServices& services) {
    if (const auto readable = checkSoundFile(options.file, services.files); !readable) {
        return tl::unexpected(readable.error());
    }
    const auto file = EZAudioFile::audioFileWithURL(
        options.file, {.files = services.files, .converters = services.converters, .queues = services.runLoop});
    if (!file || file->totalFrames() <= 0) {
        return failureOf(options.file, QStringLiteral("it holds no sound"));
    }
    const auto waveform = file->getWaveformDataWithNumberOfPoints(static_cast<std::uint32_t>(options.points));
    if (!waveform) {
        return failureOf(options.file, QStringLiteral("it cannot be read"));
    }
    if (options.png.empty()) {
        return waveformText(*waveform, options.json);
    }
    const QByteArray png = waveformPicture(*waveform, services.refreshes);
    return writePicture(options.png, png).map([] { return QByteArray(); });
}

}  // namespace tavi
