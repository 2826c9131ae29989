// Ten thousand recordings of every type: how long a listing takes the first time, again, and after one new file; beside
// libavformat and TagLib asking the same files for their lengths. The page cache is warm.

#include <taglib/fileref.h>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>

#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "adapters/qt/QtRunLoop.h"
#include "files/PathText.h"
#include "library/RecordingLister.h"
#include "library/RecordingOrder.h"

namespace {

constexpr int kFiles = 10'000;
constexpr int kRounds = 5;
constexpr int kRate = 16'000;

struct Type {
    const char* extension;
    std::uint32_t formatID;
};
constexpr std::array<Type, 5> kTypes{{{"m4a", tavi::kAudioFormatAppleLossless},
                                      {"wav", tavi::kAudioFormatLinearPCM},
                                      {"caf", tavi::kAudioFormatAppleIMA4},
                                      {"mp4", tavi::kAudioFormatMPEG4AAC},
                                      {"aac", tavi::kAudioFormatMPEG4AAC}}};

bool record(const QString& path, std::uint32_t formatID, double seconds) {
    tavi::AudioRecordSettings settings;
    settings.formatID = formatID;
    settings.sampleRate = kRate;
    settings.numberOfChannels = 2;
    auto writer = tavi::FfmpegAudioFileWriters().create(tavi::nativePath(path), settings);
    if (!writer || !(*writer)->setInputFormat({kRate, 2})) {
        return false;
    }
    std::vector<float> samples(static_cast<std::size_t>(seconds * kRate) * 2);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = 0.3F * std::sin(static_cast<float>(i) * 0.11F);
    }
    return (*writer)->write(samples.data(), samples.size() / 2) && (*writer)->finish();
}

bool fill(const QString& folder) {
    int copies = 0;
    for (const Type& type : kTypes) {
        for (int length = 0; length < 4; ++length) {
            const QString first = QStringLiteral("%1/%2.%3").arg(folder).arg(length).arg(QLatin1String(type.extension));
            if (!record(first, type.formatID, 2.3 + 2.1 * length)) {
                return false;
            }
            for (int i = 1; i < kFiles / 20; ++i) {
                const QString name =
                    QStringLiteral("%1/%2-%3.%4").arg(folder).arg(length).arg(i).arg(QLatin1String(type.extension));
                QFile copy(name);
                // Nobody makes two recordings in one minute.
                const auto made = QDateTime::fromSecsSinceEpoch(1'600'000'000 + (copies++) * 7207LL);
                if (!QFile::copy(first, name) || !copy.open(QIODevice::ReadWrite) ||
                    !copy.setFileTime(made, QFileDevice::FileModificationTime)) {
                    return false;
                }
            }
        }
    }
    return true;
}

double millisecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void askLibavformat(const QStringList& paths) {
    for (const QString& path : paths) {
        AVFormatContext* context = nullptr;
        if (avformat_open_input(&context, QFile::encodeName(path).constData(), nullptr, nullptr) == 0) {
            avformat_find_stream_info(context, nullptr);
            avformat_close_input(&context);
        }
    }
}

int askTagLib(const QStringList& paths) {
    int answers = 0;
    for (const QString& path : paths) {
        const TagLib::FileRef file(QFile::encodeName(path).constData(), true, TagLib::AudioProperties::Average);
        answers += file.audioProperties() != nullptr && file.audioProperties()->lengthInMilliseconds() > 0 ? 1 : 0;
    }
    return answers;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    av_log_set_level(AV_LOG_QUIET);
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/../bench-data/library");
    if (!QDir(folder).exists() && (!QDir().mkpath(folder) || !fill(folder))) {
        std::fprintf(stderr, "library_bench: cannot make recordings in %s\n", qPrintable(folder));
        return 1;
    }
    QStringList paths;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        paths.append(folder + QLatin1Char('/') + name);
    }
    const tavi::FfmpegAudioDuration durations;
    tavi::QtRunLoop runLoop;
    const std::filesystem::path documents = tavi::nativePath(folder);
    const QString extra = folder + QStringLiteral("/new.m4a");
    std::map<std::string, std::vector<double>> figures;
    int listed = 0;
    int answered = 0;
    for (int round = 0; round < kRounds; ++round) {
        QFile::remove(extra);
        tavi::RecordingLister lister(durations, runLoop);
        const auto list = [&] {
            auto entries = lister.list(documents, tavi::RecordingLister::Lengths::Measured);
            tavi::sortRecordings(entries, 1);
            listed = static_cast<int>(entries.size());
        };
        figures["libavformat"].push_back(millisecondsOf([&] { askLibavformat(paths); }));
        figures["taglib"].push_back(millisecondsOf([&] { answered = askTagLib(paths); }));
        figures["first"].push_back(millisecondsOf(list));
        figures["again"].push_back(millisecondsOf(list));
        QFile::copy(paths.first(), extra);
        figures["one-new"].push_back(millisecondsOf(list));
    }
    QFile::remove(extra);
    for (auto& [name, values] : figures) {
        std::sort(values.begin(), values.end());
        std::printf("figure: %s %.2f ms\n", name.c_str(), values[values.size() / 2]);
    }
    std::printf("figure: listed %d files\nfigure: taglib-answered %d files\n", listed, answered);
    return 0;
}
