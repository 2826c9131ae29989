#include "Headless.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QSaveFile>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "Output.h"
#include "SettingsFiles.h"
#include "adapters/qt/MediaLibrary.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/quick/QuickDisplayRefreshes.h"
#include "app/Commands.h"
#include "files/NativePath.h"
#include "library/RecordingLister.h"
#include "library/RecordingOrder.h"
#include "trimming/TrimRules.h"
#include "trimming/waves/EZAudioPlotPainter.h"
#include "trimming/waves/WaveformText.h"

namespace tavi {

namespace {

using Command = CommandLine::Command;

int runGet(const CommandLine& line, const Suites& suites) {
    const auto text = settingText(suites, line.key);
    if (!text) {
        return reportFailure(text.error());
    }
    return print(text->toUtf8() + '\n');
}

int runSet(const CommandLine& line, const Suites& suites) {
    const auto written = writeSetting(suites, line.key, line.value);
    return written ? EXIT_SUCCESS : reportFailure(written.error());
}

int runList(const CommandLine& line, const SettingsFiles& files, const AppContainer& container) {
    const MediaLibrary media;
    QtRunLoop runLoop;
    RecordingLister lister(media, runLoop);
    auto recordings = lister.list(QFile::encodeName(container.documentsPath()), RecordingLister::Lengths::Measured);
    sortRecordings(recordings, files.store.sort());
    return print(recordingsText(recordings, line.json));
}

/// Why a sound file could not be opened.
QString openErrorText(AudioStatus status) {
    switch (status) {
        case kAudioFileFileNotFoundError:
            return QStringLiteral("there is no such file");
        case kAudioFilePermissionsError:
            return QStringLiteral("it may not be read");
        case kAudioFileUnsupportedFileTypeError:
        case kAudioFileUnsupportedDataFormatError:
            return QStringLiteral("it is no sound file that can be read");
        case kAudioFileInvalidFileError:
            return QStringLiteral("it is damaged");
        default:
            return QStringLiteral("it cannot be read");
    }
}

int reportFile(const QByteArray& path, const QString& why) {
    return reportFailure({QFile::decodeName(path) + QStringLiteral(": ") + why});
}

/// What the trimmer shows of a waveform, as a picture.
QByteArray pictureOf(const EZAudioFloatData& waveform) {
    constexpr QSizeF kSize(1200, 300);
    QuickDisplayRefreshes refreshes;
    const auto plot = EZAudioPlot::initWithFrame(refreshes, QRectF(QPointF(), kSize));
    plot->setBackgroundColor(QStringLiteral("#000000"));
    plot->setColor(QStringLiteral("#d41b28"));
    plot->setShouldFill(true);
    plot->setShouldMirror(true);
    plot->setShouldOptimizeForRealtimePlot(false);
    plot->updateBuffer(waveform.bufferForChannel(0), waveform.bufferSize());
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    plotImage(*plot).save(&buffer, "PNG");
    return png;
}

int runWaveform(const CommandLine& line) {
    MediaLibrary media;
    QtRunLoop runLoop;
    std::unique_ptr<ExtAudioFile> probe;
    if (const AudioStatus status = media.open(line.file.toStdString(), probe); status != kAudioNoError) {
        return reportFile(line.file, openErrorText(status));
    }
    probe.reset();
    const auto file = EZAudioFile::audioFileWithURL(line.file.toStdString(),
                                                    {.files = media, .converters = media, .queues = runLoop});
    if (!file || file->totalFrames() <= 0) {
        return reportFile(line.file, QStringLiteral("it holds no sound"));
    }
    const auto waveform = file->getWaveformDataWithNumberOfPoints(static_cast<std::uint32_t>(line.points));
    if (!waveform) {
        return reportFile(line.file, openErrorText(kAudioFileUnspecifiedError));
    }
    if (line.output.isEmpty()) {
        return print(waveformText(*waveform, line.json));
    }
    if (QFile::encodeName(QFile::decodeName(line.output)) != line.output) {
        return reportFile(line.output, QStringLiteral("a picture's name must be text"));
    }
    const QByteArray png = pictureOf(*waveform);
    QSaveFile output(QFile::decodeName(line.output));
    if (!output.open(QIODevice::WriteOnly) || output.write(png) != png.size() || !output.commit()) {
        return reportFile(line.output, output.errorString());
    }
    return EXIT_SUCCESS;
}

/// The part to keep, or why there is none.
Result<AssetTimeRange> rangeOf(const CommandLine& line, const Asset& asset) {
    const std::int32_t timescale = asset.duration.timescale;
    if (!(line.to > line.from)) {
        return failure(QStringLiteral("--to must be later than --from"));
    }
    if (line.from >= asset.duration.seconds()) {
        return failure(QStringLiteral("it is only %1 s long").arg(asset.duration.seconds()));
    }
    return AssetTimeRange{AssetTime::withSeconds(line.from, timescale),
                          AssetTime::withSeconds(line.to - line.from, timescale)};
}

/// A name among the recordings that nothing has yet.
QByteArray freeNameFor(const QByteArray& file, const AppContainer& container, const Clock& clock) {
    const QByteArray first = trimrules::outputPath(container.documentsPath(), clock.now(), file);
    const qsizetype point = first.size() - trimrules::pathExtension(file).size() - 1;
    QByteArray name = first;
    for (int number = 2; existsAt(name); ++number) {
        name = first.left(point) + '_' + QByteArray::number(number) + first.mid(point);
    }
    return name;
}

int runTrim(const CommandLine& line, const AppContainer& container) {
    MediaLibrary media;
    const QtRunLoop runLoop;
    std::unique_ptr<ExtAudioFile> probe;
    if (const AudioStatus status = media.open(line.file.toStdString(), probe); status != kAudioNoError) {
        return reportFile(line.file, openErrorText(status));
    }
    probe.reset();
    const Asset asset = media.assetWithURL(line.file);
    const auto range = rangeOf(line, asset);
    if (!range) {
        return reportFile(line.file, range.error().text);
    }
    const auto session = media.exportSession(asset, AssetExportPreset::Passthrough);
    if (!session) {
        return reportFile(line.file, session.error().text);
    }
    const QByteArray output = line.output.isEmpty() ? freeNameFor(line.file, container, runLoop.clock()) : line.output;
    (*session)->setOutputURL(output);
    (*session)->setOutputFileType(trimrules::outputFileType(line.file));
    (*session)->setTimeRange(*range);
    (*session)->exportAsynchronously([] {});
    (*session)->waitUntilFinished();
    if ((*session)->status() != AssetExportStatus::Completed) {
        return reportFile(output, (*session)->error().text);
    }
    return print(output + '\n');
}

}  // namespace

bool isHeadless(Command command) {
    return command == Command::Get || command == Command::Set || command == Command::List ||
           command == Command::Waveform || command == Command::Trim;
}

int runHeadless(int& argc, char** argv, const CommandLine& line, const AppContainer& container) {
    const QCoreApplication application(argc, argv);
    if (line.command == Command::Waveform) {
        return runWaveform(line);
    }
    if (line.command == Command::Trim) {
        return runTrim(line, container);
    }
    SettingsFiles files(container);
    // Otherwise the first launch would write its values over one that is set here before it.
    files.store.writeFirstLaunchValues();
    files.store.writeSortIfAbsent();
    const Suites suites{files.standard, files.shared};
    switch (line.command) {
        case Command::Get:
            return runGet(line, suites);
        case Command::Set:
            return runSet(line, suites);
        default:
            return runList(line, files, container);
    }
}

}  // namespace tavi
