// The waveform of an hour in every type that is recorded, beside FFmpeg's own program decoding the same file into a
// pipe with a reducer of the plainest kind at its end; and the most memory that a waveform takes.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "adapters/qt/QtRunLoop.h"
#include "files/PathText.h"

namespace {

constexpr int kPoints = 1024;
constexpr int kRounds = 3;
constexpr int kSeconds = 3600;

struct Recording {
    const char* name;
    const char* extension;
    std::uint32_t format;
    int rate;
    int channels;
};

constexpr Recording kRecordings[] = {
    {"wav", "wav", tavi::kAudioFormatLinearPCM, 44100, 2},
    {"ima4", "caf", tavi::kAudioFormatAppleIMA4, 44100, 2},
    {"aac", "mp4", tavi::kAudioFormatMPEG4AAC, 44100, 2},
    {"lossless", "m4a", tavi::kAudioFormatAppleLossless, 44100, 2},
    {"lossless-16k", "m4a", tavi::kAudioFormatAppleLossless, 16000, 2},
    {"aac-16k", "mp4", tavi::kAudioFormatMPEG4AAC, 16000, 2},
    {"wav-8k", "wav", tavi::kAudioFormatLinearPCM, 8000, 1},
    {"aac-8k", "mp4", tavi::kAudioFormatMPEG4AAC, 8000, 1},
};

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Records an hour of a tone that swells, in noise, unless that has been done.
QString recorded(const QDir& folder, const Recording& recording) {
    const QString path = folder.filePath(QString::fromLatin1(recording.name) + QLatin1Char('.') +
                                         QString::fromLatin1(recording.extension));
    if (QFile::exists(path)) {
        return path;
    }
    std::fprintf(stderr, "recording %s\n", qPrintable(path));
    const QString unfinished =
        folder.filePath(QStringLiteral("unfinished.") + QString::fromLatin1(recording.extension));
    QFile::remove(unfinished);
    tavi::AudioRecordSettings settings;
    settings.formatID = recording.format;
    settings.sampleRate = recording.rate;
    settings.numberOfChannels = recording.channels;
    settings.encoderAudioQuality = 64;
    auto writer = tavi::FfmpegAudioFileWriters().create(tavi::nativePath(unfinished), settings);
    if (!writer || !(*writer)->setInputFormat({recording.rate, recording.channels})) {
        std::fprintf(stderr, "cannot record %s\n", qPrintable(path));
        std::exit(EXIT_FAILURE);
    }
    std::mt19937 random(1);
    std::uniform_real_distribution<float> noise(-0.05F, 0.05F);
    const auto channels = static_cast<std::size_t>(recording.channels);
    std::vector<float> second(static_cast<std::size_t>(recording.rate) * channels);
    for (int at = 0; at < kSeconds; ++at) {
        const float level = 0.05F + 0.3F * static_cast<float>(at % 60) / 60;
        for (std::size_t i = 0; i < second.size(); ++i) {
            const double phase = 880 * std::numbers::pi * static_cast<double>(i / channels) / recording.rate;
            second[i] = level * static_cast<float>(std::sin(phase)) + noise(random);
        }
        if (!(*writer)->write(second.data(), static_cast<std::size_t>(recording.rate))) {
            std::exit(EXIT_FAILURE);
        }
    }
    if (!(*writer)->finish() || !QFile::rename(unfinished, path)) {
        std::exit(EXIT_FAILURE);
    }
    return path;
}

/// Our way. Its points, and the seconds that it took.
double ours(const QString& path, std::vector<float>& points) {
    tavi::FfmpegExtAudioFiles files;
    tavi::FfmpegAudioConverters converters;
    tavi::QtRunLoop runLoop;
    const auto start = Clock::now();
    const auto file = tavi::EZAudioFile::audioFileWithURL(
        tavi::nativePath(path), {.files = files, .converters = converters, .queues = runLoop});
    const auto data = file->getWaveformDataWithNumberOfPoints(kPoints);
    const double seconds = secondsSince(start);
    points.assign(data->bufferForChannel(1), data->bufferForChannel(1) + kPoints);
    return seconds;
}

/// FFmpeg's program into a pipe.
double theirs(const QString& path, std::vector<float>& points) {
    constexpr std::size_t kFramesPerPoint = std::size_t{kSeconds} * 44100 / kPoints;
    const auto start = Clock::now();
    const QByteArray command =
        "exec ffmpeg -v error -nostdin -i '" + QFile::encodeName(path) + "' -f f32le -ac 2 -ar 44100 -";
    FILE* pipe = popen(command.constData(), "r");
    std::vector<float> samples(kFramesPerPoint * 2);
    points.clear();
    while (pipe != nullptr && std::fread(samples.data(), sizeof(float), samples.size(), pipe) == samples.size() &&
           points.size() < kPoints) {
        double left = 0;
        double right = 0;
        for (std::size_t i = 0; i < samples.size(); i += 2) {
            left += static_cast<double>(samples[i] * samples[i]);
            right += static_cast<double>(samples[i + 1] * samples[i + 1]);
        }
        points.push_back(static_cast<float>(std::sqrt(right / kFramesPerPoint)) + (left < 0 ? 1.0F : 0.0F));
    }
    if (pipe != nullptr) {
        pclose(pipe);
    }
    points.resize(kPoints);
    return secondsSince(start);
}

/// The most memory that a process which makes one waveform has ever had, in MB.
double peakMemory(const char* program, const QString& path) {
    const pid_t child = fork();
    if (child == 0) {
        const QByteArray name = QFile::encodeName(path);
        execl(program, program, "--once", name.constData(), nullptr);
        _exit(EXIT_FAILURE);
    }
    int status = 0;
    struct rusage usage = {};
    wait4(child, &status, 0, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::vector<float> points;
    if (argc == 3 && qstrcmp(argv[1], "--once") == 0) {
        return ours(QFile::decodeName(argv[2]), points) >= 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../bench-data"));
    folder.mkpath(QStringLiteral("."));
    for (const Recording& recording : kRecordings) {
        if (argc == 2 && qstrcmp(argv[1], recording.name) != 0) {
            continue;
        }
        const QString path = recorded(folder, recording);
        std::vector<double> mine;
        std::vector<double> beside;
        std::vector<float> other;
        for (int round = 0; round < kRounds; ++round) {
            mine.push_back(ours(path, points));
            beside.push_back(theirs(path, other));
        }
        double worst = 0;
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            // The sums of both are of the same sound; their resamplers and what they make of mono differ.
            const double scale = recording.channels == 1 ? std::numbers::sqrt2 : 1;
            worst =
                std::max(worst, std::abs(static_cast<double>(other[i]) * scale / static_cast<double>(points[i]) - 1));
        }
        std::printf("figure: %s %.3f s\n", recording.name, median(mine));
        std::printf("figure: %s-ffmpeg %.3f s\n", recording.name, median(beside));
        std::printf("figure: %s-difference %.4f %%\n", recording.name, 100 * worst);
        std::printf("figure: %s-memory %.1f MB\n", recording.name, peakMemory(argv[0], path));
        std::fflush(stdout);
    }
    return EXIT_SUCCESS;
}
