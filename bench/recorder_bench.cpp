// Half an hour of recording at full speed in every type: how fast it goes, what memory it holds after a minute and at
// the end, and by how much the file's length is off. recorder_bench [MINUTES [EXTENSION...]], such as 1440 wav for a
// day in one type. With LOW in the environment it records in the lowest quality, which takes a tenth of the time.

#include <QCoreApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <atomic>
#include <cctype>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <string_view>
#include <thread>
#include <vector>

#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "adapters/qt/QtRunLoop.h"
#include "adapters/recorder/CaptureRecorder.h"
#include "files/PathText.h"

namespace {

constexpr int kRate = 48000;
constexpr std::size_t kFragment = kRate / 12;
constexpr std::int64_t kMinute = std::int64_t{60} * kRate;

/// Counts what has been written, so that the feeder does not run ahead of it.
class CountingWriter : public tavi::AudioFileWriter {
public:
    CountingWriter(std::unique_ptr<tavi::AudioFileWriter> writer, std::atomic<std::int64_t>& written)
        : m_writer(std::move(writer)), m_written(written) {}

    double secondsHeld() const override { return m_writer->secondsHeld(); }
    tavi::Result<void> setInputFormat(const tavi::AudioInputFormat& format) override {
        return m_writer->setInputFormat(format);
    }
    tavi::Result<void> write(const float* interleaved, std::size_t frames) override {
        const auto result = m_writer->write(interleaved, frames);
        m_written += static_cast<std::int64_t>(frames);
        return result;
    }
    tavi::Result<void> flush() override { return m_writer->flush(); }
    tavi::Result<void> pause() override { return m_writer->pause(); }
    tavi::Result<void> sync() override { return m_writer->sync(); }
    tavi::Result<void> finish() override { return m_writer->finish(); }

private:
    std::unique_ptr<tavi::AudioFileWriter> m_writer;
    std::atomic<std::int64_t>& m_written;
};

/// Hands its listener over to the feeder.
class OpenInputs : public tavi::AudioInputs {
public:
    class Input : public tavi::AudioInput {
    public:
        explicit Input(tavi::AudioInputListener& listener) : m_listener(listener) {}
        void resume() override {}
        void pause() override { m_listener.audioInputDidPause(); }
        QString deviceName() const override { return {}; }

    private:
        tavi::AudioInputListener& m_listener;
    };

    tavi::Result<std::unique_ptr<tavi::AudioInput>> open(tavi::AudioInputListener& newListener) override {
        listener = &newListener;
        return std::make_unique<Input>(newListener);
    }

    tavi::AudioInputListener* listener = nullptr;
};

double residentMegabytes() {
    long total = 0;
    long resident = 0;
    if (FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &total, &resident) != 2) {
            resident = 0;
        }
        std::fclose(file);
    }
    return static_cast<double>(resident) * 4096.0 / 1048576.0;
}

std::vector<float> tone() {
    std::vector<float> samples(kFragment * 2);
    for (std::size_t i = 0; i < kFragment; ++i) {
        // A whole number of periods fits into a fragment.
        const double phase = 2.0 * std::numbers::pi * 12.0 * 80.0 * static_cast<double>(i) / kRate;
        samples[2 * i] = static_cast<float>(0.5 * std::sin(phase));
        samples[2 * i + 1] = static_cast<float>(0.25 * std::sin(2.0 * phase));
    }
    return samples;
}

struct Type {
    const char* extension;
    std::uint32_t format;
};

void measure(const Type& type, std::int64_t minutes, tavi::RunLoop& runLoop) {
    const char* extension = type.extension;
    const QTemporaryDir folder;
    tavi::AudioRecordSettings settings;
    settings.formatID = type.format;
    if (std::getenv("LOW") != nullptr) {
        settings.sampleRate = 8000.0;
        settings.numberOfChannels = 1;
        settings.encoderAudioQuality = 0;
        settings.sampleRateConverterAudioQuality = 0;
    }
    const auto path = tavi::nativePath(folder.filePath(QStringLiteral("recording.") + QString::fromLatin1(extension)));
    tavi::FfmpegAudioFileWriters writers;
    auto writer = writers.create(path, settings);
    if (!writer) {
        std::fprintf(stderr, "%s: %s\n", extension, qPrintable(writer.error().text));
        std::exit(EXIT_FAILURE);
    }
    std::atomic<std::int64_t> written = 0;
    OpenInputs inputs;
    tavi::CaptureRecorder recorder(inputs, std::make_unique<CountingWriter>(std::move(*writer), written), runLoop);
    recorder.record();
    inputs.listener->audioInputDidOpen({kRate, 2});
    const std::vector<float> fragment = tone();
    double early = 0.0;
    const auto start = std::chrono::steady_clock::now();
    for (std::int64_t fed = 0; fed < minutes * kMinute; fed += static_cast<std::int64_t>(kFragment)) {
        while (fed - written > std::int64_t{4} * kRate) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        inputs.listener->audioInputDidCapture(fragment.data(), kFragment);
        if (fed == kMinute) {
            early = residentMegabytes();
        }
    }
    const double late = residentMegabytes();
    recorder.waitUntilFinished();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf("figure: %s-memory-1-minute %.2f MB\n", extension, early);
    std::printf("figure: %s-memory-%lld-minutes %.2f MB\n", extension, static_cast<long long>(minutes), late);
    std::printf("figure: %s-speed %.0f times\n", extension, 60.0 * static_cast<double>(minutes) / seconds.count());
    std::printf("figure: %s-length-off %.6f s\n", extension,
                tavi::FfmpegAudioDuration().durationOfFile(path) - 60.0 * static_cast<double>(minutes));
    std::array<char, 5> magic{};
    std::ifstream(path).read(magic.data(), 4);
    std::printf("%s: %.2f GB, begins with %s\n", extension, static_cast<double>(std::filesystem::file_size(path)) / 1e9,
                std::isprint(magic[0]) != 0 ? magic.data() : "");
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    tavi::QtRunLoop runLoop;
    const std::int64_t minutes = argc > 1 ? std::atoll(argv[1]) : 30;
    const std::vector<std::string_view> wanted(argv + std::min(argc, 2), argv + argc);
    for (const Type& type : {Type{"m4a", tavi::kAudioFormatAppleLossless},
                             {"wav", tavi::kAudioFormatLinearPCM},
                             {"caf", tavi::kAudioFormatAppleIMA4},
                             {"mp4", tavi::kAudioFormatMPEG4AAC},
                             {"aac", tavi::kAudioFormatMPEG4AAC}}) {
        if (wanted.empty() || std::find(wanted.begin(), wanted.end(), type.extension) != wanted.end()) {
            measure(type, minutes, runLoop);
        }
    }
    return EXIT_SUCCESS;
}
