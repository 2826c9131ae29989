#include "adapters/ffmpeg/reading/FfmpegAudioDuration.h"

#include <fcntl.h>

#include "adapters/ffmpeg/reading/AvFile.h"
#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "sound/HeaderDuration.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

double libraryDuration(int fd, const std::stop_token& stop) {
    std::unique_ptr<AvFile> file;
    if (AvFile::open(fd, file, stop) != kAudioNoError || !isSampleRate(file->stream().codecpar->sample_rate)) {
        return 0;
    }
    const AVStream* stream = &file->stream();
    const AVFormatContext* context = &file->context();
    double seconds = 0;
    if (stream->duration != AV_NOPTS_VALUE) {
        seconds = static_cast<double>(stream->duration) * av_q2d(stream->time_base);
    } else if (context->duration != AV_NOPTS_VALUE) {
        seconds = static_cast<double>(context->duration) / AV_TIME_BASE;
    }
    return seconds > 0 ? seconds : 0;
}

}  // namespace

double FfmpegAudioDuration::durationOfFile(const std::filesystem::path& path, const std::stop_token& stop) const {
    // Not blocking, as a pipe of that name would.
    const FileDescriptor file = FileDescriptor::open(path, O_RDONLY | O_NONBLOCK);
    if (!file.isValid() || regularFileSize(file.get()) <= 0) {
        return 0;
    }
    if (const auto seconds = headerDuration(file.get(), stop)) {
        return *seconds;
    }
    return libraryDuration(file.get(), stop);
}

}  // namespace tavi
