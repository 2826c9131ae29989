#include "app/cli/Waveform.h"

#include <cerrno>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "app/cli/SoundFile.h"
#include "files/DurableFile.h"
#include "files/FileNames.h"
#include "files/PositionedIo.h"
#include "trimming/waves/WaveformPicturePainter.h"
#include "trimming/waves/WaveformText.h"

namespace tavi {

namespace {

/// Gives the picture its name, which nothing may have.
Result<void> writePicture(const std::filesystem::path& path, const QByteArray& png) {
    DurableFile output = DurableFile::create(path);
    int error = output.isValid() ? 0 : errno;
    if (error == 0) {
        error = writeFully(systemPwrite(), output.fd(), png.constData(), static_cast<std::size_t>(png.size()), 0).error;
    }
    if (error == 0) {
        error = output.publish();
    }
    return error == 0 ? Result<void>() : failureOf(path, qt_error_string(error));
}

}  // namespace

Result<QByteArray> run(const WaveformOptions& options, const CommandServices& services) {
    if (const auto readable = checkSoundFile(options.file, services.files); !readable) {
        return tl::unexpected(readable.error());
    }
    if (!options.png.empty() && existsAt(options.png)) {
        return failureOf(options.png, qt_error_string(EEXIST));
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
