// Opens what the fuzzer makes up as a sound file, reads and seeks in it, and makes its waveform.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"
#include "adapters/ffmpeg/converting/FfmpegAudioConverters.h"
#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"
#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"

namespace {

/// Nothing here is asynchronous.
class NoQueues : public tavi::DispatchQueues {
public:
    void dispatchMain(std::function<void()>) override {}
    void dispatchBackground(std::function<void()>) override {}
};

void read(const std::string& path, const tavi::AudioStreamBasicDescription& format) {
    tavi::FfmpegExtAudioFiles files;
    tavi::FfmpegAudioConverters converters;
    NoQueues queues;
    const auto file = tavi::EZAudioFile::audioFileWithURL(
        path, {.files = files, .converters = converters, .queues = queues}, {}, format);
    if (!file || file->totalFrames() < 0) {
        std::abort();
    }
    const auto points = file->getWaveformDataWithNumberOfPoints(16);
    const std::int64_t frames = file->totalFrames();
    file->seekToFrame(frames / 2);
    tavi::AudioBufferList* list = tavi::EZAudioUtilities::audioBufferListWithNumberOfFrames(
        512, format.channelsPerFrame, tavi::EZAudioUtilities::isInterleaved(format));
    std::uint32_t count = 0;
    bool isEnd = false;
    file->readFrames(512, list, &count, &isEnd);
    file->seekToFrame(std::max<std::int64_t>(0, frames - 100));
    file->readFrames(512, list, &count, &isEnd);
    tavi::EZAudioUtilities::freeBufferList(list);
    file->metadata();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Its checks would end the process, and fill the terminal where they do not.
    static const bool isQuiet = [] {
        tavi::EZAudioUtilities::setShouldExitOnCheckResultFail(false);
        return std::freopen("/dev/null", "w", stdout) != nullptr;
    }();
    const int fd = memfd_create("sound", MFD_CLOEXEC);
    if (!isQuiet || fd < 0 || write(fd, data, size) != static_cast<ssize_t>(size)) {
        std::abort();
    }
    const std::string path = "/proc/self/fd/" + std::to_string(fd);
    read(path, tavi::EZAudioFile::defaultClientFormat());
    auto mono = tavi::EZAudioUtilities::monoFloatFormatWithSampleRate(8000);
    read(path, mono);
    tavi::FfmpegAudioDuration().durationOfFile(path);
    close(fd);
    return 0;
}
