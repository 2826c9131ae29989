// Playing through a private sound server: processor time beside ffplay on the same file at the same time, wake-ups,
// underruns with all processors busy, and how long after it is asked for a jump is heard.

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <numbers>
#include <thread>
#include <vector>

#include "adapters/ffmpeg/converting/FfmpegAudioTempo.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "adapters/player/FilePlayer.h"
#include "adapters/pulse/PulseAudioOutput.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/qt/QtRunLoop.h"
#include "files/PathText.h"
#include "support/EventLoop.h"
#include "support/PrivatePulse.h"

namespace {

using tavi::test::ChildProcess;

constexpr int kRate = 48000;
constexpr int kSeconds = 120;
constexpr int kMeasured = 20;

/// The value that a recording has at a time, so that what is heard tells which time it is of.
float levelAt(double seconds) {
    return static_cast<float>(0.1 + 0.8 * seconds / kSeconds);
}
double timeAt(float level) {
    return (static_cast<double>(level) - 0.1) / 0.8 * kSeconds;
}

void write(const QString& path, int rate, const std::function<float(double)>& sound) {
    tavi::AudioRecordSettings settings;
    settings.sampleRate = rate;
    auto writer = tavi::FfmpegAudioFileWriters().create(tavi::nativePath(path), settings);
    if (!writer || !(*writer)->setInputFormat({rate, 2})) {
        qFatal("cannot write %s", qPrintable(path));
    }
    std::vector<float> samples(static_cast<std::size_t>(rate) * 2);
    for (int second = 0; second < kSeconds; ++second) {
        for (std::size_t i = 0; i < samples.size(); ++i) {
            samples[i] = sound(second + static_cast<double>(i / 2) / rate);
        }
        if (!(*writer)->write(samples.data(), static_cast<std::size_t>(rate))) {
            qFatal("cannot write %s", qPrintable(path));
        }
    }
    if (!(*writer)->finish()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

struct Usage {
    double seconds = 0.0;
    double sleeps = 0.0;
};

/// What the kernel counts for the threads of a process that live.
Usage usageOf(qint64 pid) {
    Usage usage;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile schedule(tasks.filePath(task + QStringLiteral("/schedstat")));
        QFile status(tasks.filePath(task + QStringLiteral("/status")));
        if (schedule.open(QIODevice::ReadOnly) && status.open(QIODevice::ReadOnly)) {
            usage.seconds += schedule.readAll().split(' ').value(0).toDouble() / 1e9;
            const QByteArray text = status.readAll();
            usage.sleeps += text.mid(text.indexOf("\nvoluntary_ctxt_switches:") + 25).split('\n').value(0).toDouble();
        }
    }
    return usage;
}

void figure(const char* name, double value, const char* unit) {
    std::printf("figure: %s %.3f %s\n", name, value, unit);
    std::fflush(stdout);
}

class Bench {
public:
    Bench() {
        write(m_tone, 44100, [](double time) {
            const double phase = 2.0 * std::numbers::pi * time;
            return static_cast<float>(0.3 * std::sin(220.0 * phase) + 0.1 * std::sin(1234.5 * phase));
        });
        write(m_levels, kRate, levelAt);
    }

    void measureProcessor(double rate, const char* name) {
        const auto player = open(m_tone);
        player->setRate(static_cast<float>(rate));
        player->play();
        const auto other = ffplay(m_tone, rate);
        wait(3.0);
        const Usage before = usageOf(QCoreApplication::applicationPid());
        const Usage otherBefore = usageOf(other->pid());
        std::this_thread::sleep_for(std::chrono::seconds(kMeasured));
        const Usage after = usageOf(QCoreApplication::applicationPid());
        const Usage otherAfter = usageOf(other->pid());
        if (!other->isRunning() || !player->isPlaying()) {
            qFatal("Somebody has stopped playing.");
        }
        const double ours = 100.0 * (after.seconds - before.seconds) / kMeasured;
        const double theirs = 100.0 * (otherAfter.seconds - otherBefore.seconds) / kMeasured;
        const QByteArray prefix(name);
        figure(prefix + "-processor", ours, "%");
        figure(prefix + "-processor-ffplay", theirs, "%");
        figure(prefix + "-processor-ratio", ours / theirs, "times");
        figure(prefix + "-wake-ups", (after.sleeps - before.sleeps) / kMeasured, "1/s");
        figure(prefix + "-wake-ups-ffplay", (otherAfter.sleeps - otherBefore.sleeps) / kMeasured, "1/s");
    }

    void measurePause() {
        const auto player = open(m_tone);
        player->play();
        wait(2.0);
        player->pause();
        wait(7.0);
        const Usage before = usageOf(QCoreApplication::applicationPid());
        std::this_thread::sleep_for(std::chrono::seconds(10));
        const Usage after = usageOf(QCoreApplication::applicationPid());
        // Sleeping itself is one.
        figure("paused-wake-ups", after.sleeps - before.sleeps - 1.0, "in-10-s");
    }

    void measureGaps(double rate, const char* name) {
        std::vector<std::unique_ptr<ChildProcess>> hogs;
        for (unsigned i = 0; i < std::max(2U, std::thread::hardware_concurrency()); ++i) {
            hogs.push_back(std::make_unique<ChildProcess>(
                QStringList{QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("while :; do :; done")}));
        }
        const auto player = open(m_levels);
        player->setRate(static_cast<float>(rate));
        const auto listener = listen(m_heard, QStringLiteral("speaker"));
        const auto otherListener = listen(m_otherHeard, QStringLiteral("mic_sink"));
        player->play();
        const auto other = ffplay(m_levels, rate);
        wait(kMeasured);
        hogs.clear();
        figure(QByteArray(name) + "-gaps-all-busy", gapsIn(heard(m_heard)), "gaps");
        figure(QByteArray(name) + "-gaps-all-busy-ffplay", gapsIn(heard(m_otherHeard)), "gaps");
    }

    void measureJumps() {
        const auto player = open(m_levels);
        const auto listener = listen(m_heard, QStringLiteral("speaker"));
        player->play();
        wait(1.0);
        std::vector<double> asked;
        std::vector<double> waits;
        double farthest = 0.0;
        for (int i = 0; i < 20; ++i) {
            asked.push_back(player->currentTime());
            player->setCurrentTime(i % 2 == 0 ? 90.0 - i : 10.0 + i);
            wait(0.6);
        }
        const std::vector<float> samples = heard(m_heard);
        // A ramp of some milliseconds joins the sounds. Where it begins the old sound ends; behind it the new one tells
        // its time.
        constexpr std::size_t kBehind = kRate / 50;
        constexpr std::size_t kBefore = kRate / 1000;
        for (std::size_t i = kBefore; i + kBehind < samples.size() && waits.size() < asked.size(); ++i) {
            const auto jump = waits.size();
            const double target = jump % 2 == 0 ? 90.0 - static_cast<double>(jump) : 10.0 + static_cast<double>(jump);
            const double before = timeAt(samples[i - kBefore]) + static_cast<double>(kBefore) / kRate;
            const double after = timeAt(samples[i + kBehind]) - static_cast<double>(kBehind) / kRate;
            if (before > 0.0 && std::abs(timeAt(samples[i]) - before) > 0.1 && std::abs(after - target) < 1.0) {
                waits.push_back(before - asked[jump]);
                farthest = std::max(farthest, std::abs(after - target));
                i += kRate / 4;
            }
        }
        if (waits.size() != asked.size()) {
            qFatal("Heard %zu of %zu jumps.", waits.size(), asked.size());
        }
        std::sort(waits.begin(), waits.end());
        figure("jump-heard-after", 1000.0 * waits[waits.size() / 2], "ms");
        figure("jump-heard-after-at-most", 1000.0 * waits.back(), "ms");
        figure("jump-lands-off-by-at-most", 1000.0 * farthest, "ms");
    }

private:
    /// Runs of silence between the first sound and the last.
    static int gapsIn(const std::vector<float>& samples) {
        const auto isSound = [](float sample) { return sample > 0.05F; };
        const auto first = std::find_if(samples.begin(), samples.end(), isSound);
        const auto last = std::find_if(samples.rbegin(), samples.rend(), isSound).base();
        if (last - first < std::ptrdiff_t{kMeasured} * kRate / 2) {
            qFatal("Hardly anything was heard.");
        }
        int gaps = 0;
        for (auto at = first; at < last; at = std::find_if(at, last, isSound)) {
            at = std::find_if_not(at, last, isSound);
            gaps += at < last ? 1 : 0;
        }
        return gaps;
    }
    static std::unique_ptr<ChildProcess> ffplay(const QString& path, double rate) {
        const QString filter = rate == 1.0 ? QStringLiteral("anull") : QStringLiteral("atempo=%1").arg(rate);
        return std::make_unique<ChildProcess>(
            QStringList{QStringLiteral("env"), QStringLiteral("SDL_AUDIODRIVER=pulseaudio"),
                        QStringLiteral("PULSE_SINK=mic_sink"), QStringLiteral("ffplay"), QStringLiteral("-nodisp"),
                        QStringLiteral("-loglevel"), QStringLiteral("quiet"), QStringLiteral("-af"), filter, path});
    }
    std::unique_ptr<tavi::AudioPlayer> open(const QString& path) {
        auto player = m_players.playerWithContentsOfURL(tavi::nativePath(path));
        if (!player) {
            qFatal("%s", qPrintable(player.error().text));
        }
        (*player)->setEnableRate(true);
        return std::move(*player);
    }
    static void wait(double seconds) {
        QElapsedTimer timer;
        timer.start();
        while (static_cast<double>(timer.elapsed()) < 1000.0 * seconds) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
        }
    }
    std::unique_ptr<ChildProcess> listen(const QString& path, const QString& sink) const {
        QFile::remove(path);
        return m_server.listen(path, 1, sink);
    }
    static std::vector<float> heard(const QString& path) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        const QByteArray bytes = file.readAll();
        std::vector<float> samples(static_cast<std::size_t>(bytes.size()) / sizeof(float));
        std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
        return samples;
    }

    QTemporaryDir m_folder;
    const QString m_tone = m_folder.filePath(QStringLiteral("tone.m4a"));
    const QString m_levels = m_folder.filePath(QStringLiteral("levels.m4a"));
    const QString m_otherHeard = m_folder.filePath(QStringLiteral("other.raw"));
    const QString m_heard = m_folder.filePath(QStringLiteral("heard.raw"));
    tavi::test::PrivatePulse m_server;
    tavi::FfmpegExtAudioFiles m_files;
    tavi::FfmpegAudioTempos m_tempos;
    tavi::QtRunLoop m_runLoop;
    tavi::PulseAudioOutputs m_outputs{std::make_shared<tavi::PulseConnection>()};
    tavi::FilePlayers m_players{m_files, m_tempos, m_outputs, m_runLoop};
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Bench bench;
    bench.measureJumps();
    bench.measurePause();
    bench.measureProcessor(1.0, "normal");
    bench.measureProcessor(2.0, "double");
    bench.measureGaps(1.0, "normal");
    bench.measureGaps(2.0, "double");
    return EXIT_SUCCESS;
}
