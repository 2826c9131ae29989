// Writes a short recording of every type into a folder: make_corpus FOLDER

#include <QDir>
#include <cmath>
#include <cstdio>

#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "files/PathText.h"

int main(int argc, char** argv) {
    constexpr std::pair<const char*, std::uint32_t> kTypes[] = {{"m4a", tavi::kAudioFormatAppleLossless},
                                                                {"wav", tavi::kAudioFormatLinearPCM},
                                                                {"caf", tavi::kAudioFormatAppleIMA4},
                                                                {"mp4", tavi::kAudioFormatMPEG4AAC},
                                                                {"aac", tavi::kAudioFormatMPEG4AAC}};
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    for (const auto& [extension, format] : kTypes) {
        for (const int channels : {1, 2}) {
            for (const bool isFinished : {true, false}) {
                const QString path = folder.filePath(QStringLiteral("%1-%2.").arg(channels).arg(isFinished) +
                                                     QString::fromLatin1(extension));
                QFile::remove(path);
                tavi::AudioRecordSettings settings;
                settings.formatID = format;
                settings.sampleRate = 8000;
                settings.numberOfChannels = channels;
                auto writer = tavi::FfmpegAudioFileWriters().create(tavi::nativePath(path), settings);
                std::vector<float> samples;
                for (int i = 0; i < 6000 * channels; ++i) {
                    samples.push_back(std::sin(static_cast<float>(i) * 0.1F) * 0.3F);
                }
                const auto frames = samples.size() / static_cast<std::size_t>(channels);
                if (!writer || !(*writer)->setInputFormat({8000, channels}) ||
                    !(*writer)->write(samples.data(), frames) || (isFinished && !(*writer)->finish())) {
                    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
                    return EXIT_FAILURE;
                }
            }
        }
    }
    return EXIT_SUCCESS;
}
