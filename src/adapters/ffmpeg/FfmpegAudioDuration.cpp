#include "adapters/ffmpeg/FfmpegAudioDuration.h"

#include <fcntl.h>

#include <QFile>

#include "adapters/ffmpeg/AvHandles.h"
#include "adapters/ffmpeg/HeaderDuration.h"
#include "adapters/ffmpeg/PositionedIo.h"

namespace tavi {

namespace {

/// Files of sound only. Without this FFmpeg takes text for a picture, and opens what play lists name.
constexpr auto kContainers =
    "aac,ac3,aiff,amr,ape,asf,au,avi,caf,eac3,flac,matroska,webm,mov,mp4,mp3,mpegts,oga,ogg,opus,tta,w64,wav,wv";

double libraryDuration(const QString& path) {
    av_log_set_level(AV_LOG_QUIET);
    AVDictionary* options = nullptr;
    av_dict_set(&options, "format_whitelist", kContainers, 0);
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    AVFormatContext* context = nullptr;
    // With its protocol, so that no name is taken for an address.
    const QByteArray url = "file:" + QFile::encodeName(path);
    const int code = avformat_open_input(&context, url.constData(), nullptr, &options);
    av_dict_free(&options);
    const AvInput input(context);
    if (code < 0 || avformat_find_stream_info(context, nullptr) < 0) {
        return 0;
    }
    const int index = av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (index < 0 || context->streams[index]->codecpar->sample_rate <= 0) {
        return 0;
    }
    const AVStream* stream = context->streams[index];
    double seconds = 0;
    if (stream->duration != AV_NOPTS_VALUE) {
        seconds = static_cast<double>(stream->duration) * av_q2d(stream->time_base);
    } else if (context->duration != AV_NOPTS_VALUE) {
        seconds = static_cast<double>(context->duration) / AV_TIME_BASE;
    }
    return seconds > 0 ? seconds : 0;
}

}  // namespace

double FfmpegAudioDuration::durationOfFile(const QString& path) const {
    // Not blocking, as a pipe of that name would.
    const FileDescriptor file = FileDescriptor::open(path, O_RDONLY | O_NONBLOCK);
    if (!file.isValid() || regularFileSize(file.get()) <= 0) {
        return 0;
    }
    if (const auto seconds = headerDuration(file.get())) {
        return *seconds;
    }
    return libraryDuration(path);
}

}  // namespace tavi
