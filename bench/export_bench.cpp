// Half an hour out of three: what an export takes, beside FFmpeg's program and a plain copy of as many bytes, and what
// it takes to read an hour as 16-bit samples, beside FFmpeg's picture of its waves. Needs the program ffmpeg.
//
// export_bench FOLDER keeps the sources there; without one, in "bench-data" beside the folder of this program.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "adapters/ffmpeg/exporting/FfmpegAssets.h"
#include "files/PathText.h"

namespace {

constexpr int kRounds = 5;
constexpr int kHours = 3;
constexpr int kStart = 3671;
constexpr int kLength = 1800;

struct Kind {
    const char* extension;
    QStringList coding;
    tavi::AssetFileType type;
    /// The most of FFmpeg's time that is aimed at, for an export and for reading.
    double exportAim;
    double readAim;
};

void run(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral("ffmpeg"),
                  QStringList{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y")} + arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        std::fprintf(stderr, "ffmpeg %s failed\n%s", qPrintable(arguments.join(QLatin1Char(' '))),
                     process.readAllStandardError().constData());
        std::exit(EXIT_FAILURE);
    }
}

double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A minute is encoded, and its packets repeated.
void makeSource(const Kind& kind, const QString& path, int minutes) {
    if (QFileInfo::exists(path)) {
        return;
    }
    const QString minute = path + QStringLiteral(".minute.") + QString::fromLatin1(kind.extension);
    const QString making = path + QStringLiteral(".making.") + QString::fromLatin1(kind.extension);
    run(QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                    QStringLiteral("anoisesrc=color=pink:amplitude=0.1:sample_rate=44100:duration=60:seed=1[a];"
                                   "sine=440:sample_rate=44100:duration=60[b];[a][b]amix,tremolo=f=0.3"),
                    QStringLiteral("-ac"), QStringLiteral("2")} +
        kind.coding + QStringList{minute});
    run({QStringLiteral("-stream_loop"), QString::number(minutes - 1), QStringLiteral("-i"), minute,
         QStringLiteral("-c"), QStringLiteral("copy"), making});
    QFile::remove(minute);
    QFile::rename(making, path);
}

void copyPlainly(const QString& from, const QString& to, qint64 bytes) {
    const int source = ::open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC);
    const int target = ::open(QFile::encodeName(to).constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    std::vector<char> block(std::size_t{1} << 20);
    qint64 offset = QFileInfo(from).size() / 3;
    while (bytes > 0) {
        const ssize_t count =
            ::pread(source, block.data(), std::min(block.size(), static_cast<std::size_t>(bytes)), offset);
        if (count <= 0 || ::write(target, block.data(), static_cast<std::size_t>(count)) != count) {
            std::perror("copy");
            std::exit(EXIT_FAILURE);
        }
        offset += count;
        bytes -= count;
    }
    ::fsync(target);
    ::close(source);
    ::close(target);
}

void exportOnce(const QString& from, const QString& to, tavi::AssetFileType type, tavi::AssetExportPreset preset,
                int seconds) {
    QFile::remove(to);
    tavi::FfmpegAssets assets;
    auto session = assets.exportSession(assets.assetWithURL(tavi::nativePath(from)), preset);
    if (session) {
        (*session)->setOutputURL(tavi::nativePath(to));
        (*session)->setOutputFileType(type);
        (*session)->setTimeRange({{kStart, 1}, {seconds, 1}});
        (*session)->exportAsynchronously([] {});
        (*session)->waitUntilFinished();
    }
    if (!session || (*session)->status() != tavi::AssetExportStatus::Completed) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(from),
                     qPrintable(session ? (*session)->error().text : session.error().text));
        std::exit(EXIT_FAILURE);
    }
}

std::int64_t readOnce(const QString& path) {
    tavi::FfmpegAssets assets;
    auto reader = assets.assetReader(assets.assetWithURL(tavi::nativePath(path)));
    std::int64_t sum = 0;
    if (reader && (*reader)->startReading()) {
        while (const auto buffer = (*reader)->copyNextSampleBuffer()) {
            sum += buffer->samples[0];
        }
    }
    return sum;
}

/// Largest memory of a process that does nothing but the work.
double megabytes(const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    rusage usage = {};
    int status = 0;
    ::wait4(child, &status, 0, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void figure(const QString& name, double value, const char* unit, double beside, double aim) {
    std::printf("figure: %s %.1f %s", qPrintable(name), value, unit);
    if (beside > 0) {
        std::printf(" beside %.1f", beside);
    }
    std::printf(" aim %.2f\n", aim);
    std::fflush(stdout);
}

void measure(const Kind& kind, const QString& folder) {
    const QString extension = QString::fromLatin1(kind.extension);
    const QString name = extension == QLatin1String("mp4") ? QStringLiteral("aac") : extension;
    const QString long3 = folder + QStringLiteral("/three-hours.") + extension;
    const QString hour = folder + QStringLiteral("/hour.") + extension;
    makeSource(kind, long3, kHours * 60);
    makeSource(kind, hour, 60);
    const QString ours = folder + QStringLiteral("/ours.") + extension;
    const QString theirs = folder + QStringLiteral("/theirs.") + extension;
    const auto exportIt = [&] { exportOnce(long3, ours, kind.type, tavi::AssetExportPreset::Passthrough, kLength); };
    const double exportMemory = megabytes(exportIt);
    const double readMemory = megabytes([&] { readOnce(hour); });
    std::vector<double> exported;
    std::vector<double> copied;
    std::vector<double> ffmpeg;
    std::vector<double> read;
    std::vector<double> waves;
    for (int round = 0; round < kRounds; ++round) {
        exported.push_back(milliseconds(exportIt));
        copied.push_back(milliseconds([&] { copyPlainly(long3, theirs, QFileInfo(ours).size()); }));
        ffmpeg.push_back(milliseconds([&] {
            run({QStringLiteral("-ss"), QString::number(kStart), QStringLiteral("-to"),
                 QString::number(kStart + kLength), QStringLiteral("-i"), long3, QStringLiteral("-c"),
                 QStringLiteral("copy"), theirs});
        }));
        read.push_back(milliseconds([&] { readOnce(hour); }));
        waves.push_back(milliseconds([&] {
            run({QStringLiteral("-i"), hour, QStringLiteral("-filter_complex"),
                 QStringLiteral("showwavespic=s=1000x200"), QStringLiteral("-frames:v"), QStringLiteral("1"),
                 folder + QStringLiteral("/waves.png")});
        }));
    }
    figure(name + QStringLiteral("-export-beside-ffmpeg"), median(exported), "ms", median(ffmpeg), kind.exportAim);
    figure(name + QStringLiteral("-export-beside-a-copy"), median(exported), "ms", median(copied), 1.3);
    figure(name + QStringLiteral("-export-memory"), exportMemory, "MB", 0, 64);
    figure(name + QStringLiteral("-read-beside-ffmpeg"), median(read), "ms", median(waves), kind.readAim);
    figure(name + QStringLiteral("-read-memory"), readMemory, "MB", 0, 64);
    QFile::remove(ours);
    QFile::remove(theirs);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1])
                                    : QCoreApplication::applicationDirPath() + QStringLiteral("/../bench-data");
    QDir().mkpath(folder);
    const auto coding = [](const char* codec, const char* option = nullptr, const char* value = nullptr) {
        QStringList list{QStringLiteral("-c:a"), QString::fromLatin1(codec)};
        return option != nullptr ? list << QString::fromLatin1(option) << QString::fromLatin1(value) : list;
    };
    measure({"wav", coding("pcm_u8"), tavi::AssetFileType::Wave, 0.9, 0.06}, folder);
    measure({"m4a", coding("alac", "-sample_fmt", "s16p"), tavi::AssetFileType::AppleM4A, 0.9, 0.6}, folder);
    measure({"mp4", coding("aac", "-b:a", "128k"), tavi::AssetFileType::AppleM4A, 0.35, 0.4}, folder);
    measure({"caf", coding("adpcm_ima_qt"), tavi::AssetFileType::CoreAudioFormat, 0.12, 0.05}, folder);
    return EXIT_SUCCESS;
}
