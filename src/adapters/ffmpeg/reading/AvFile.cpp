#include "adapters/ffmpeg/reading/AvFile.h"

extern "C" {
#include <libavutil/avstring.h>
}

#include <algorithm>
#include <cstdio>
#include <limits>
#include <utility>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// Files of sound only. Without this FFmpeg takes text for a picture, and opens what play lists name.
constexpr auto kContainers =
    "aac,ac3,aiff,amr,ape,asf,au,avi,caf,eac3,flac,matroska,webm,mov,mp4,mp3,mpegts,oga,ogg,opus,tta,w64,wav,wv";

/// More than any header, and more than lies between two packets of a track of sound.
constexpr std::int64_t kMostBetweenPackets = std::int64_t{32} << 20;

AudioStatus statusOf(int code) {
    // No demuxer wants it, or one did until it saw more.
    return code == AVERROR_INVALIDDATA || code == AVERROR_DEMUXER_NOT_FOUND ? kAudioFileUnsupportedFileTypeError
                                                                            : kAudioFileInvalidFileError;
}

void addEntries(const AVDictionary* dictionary, AudioFileInfo& info) {
    const AVDictionaryEntry* entry = nullptr;
    while ((entry = av_dict_get(dictionary, "", entry, AV_DICT_IGNORE_SUFFIX)) != nullptr) {
        // Old files hold bytes of other alphabets.
        info.emplace(QString::fromUtf8(entry->key).toStdString(), QString::fromUtf8(entry->value).toStdString());
    }
}

}  // namespace

AvFile::AvFile(int fd, std::stop_token stop)
    : m_fd(fd),
      m_stop(std::move(stop)),
      m_bytesLeft(kMostBetweenPackets),
      m_io(makeAvIo(this, &AvFile::readPacket, nullptr, &AvFile::seekTo)) {}

AvFile::~AvFile() = default;

int AvFile::readPacket(void* opaque, std::uint8_t* data, int size) {
    auto* self = static_cast<AvFile*>(opaque);
    if (self->m_stop.stop_requested()) {
        return AVERROR_EOF;
    }
    const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(size, self->m_bytesLeft));
    const std::size_t count = readFully(self->m_fd, data, wanted, self->m_offset);
    self->m_offset += static_cast<std::int64_t>(count);
    self->m_bytesLeft -= static_cast<std::int64_t>(count);
    return count > 0 ? static_cast<int>(count) : AVERROR_EOF;
}

std::int64_t AvFile::seekTo(void* opaque, std::int64_t offset, int whence) {
    auto* self = static_cast<AvFile*>(opaque);
    const std::int64_t size = regularFileSize(self->m_fd);
    if ((whence & AVSEEK_SIZE) != 0) {
        return size;
    }
    switch (whence & ~AVSEEK_FORCE) {
        case SEEK_CUR:
            offset += self->m_offset;
            break;
        case SEEK_END:
            offset += size;
            break;
        default:
            break;
    }
    if (offset < 0) {
        return AVERROR(EINVAL);
    }
    self->m_offset = offset;
    return offset;
}

AudioStatus AvFile::open(int fd, std::unique_ptr<AvFile>& file, const std::stop_token& stop) {
    av_log_set_level(AV_LOG_QUIET);
    std::unique_ptr<AvFile> opened(new AvFile(fd, stop));
    AVFormatContext* context = avformat_alloc_context();
    if (context == nullptr || !opened->m_io) {
        avformat_free_context(context);
        return kAudioFileUnspecifiedError;
    }
    context->pb = opened->m_io.get();
    AvOptions options;
    options.set("format_whitelist", kContainers);
    options.set("protocol_whitelist", "none");
    int code = avformat_open_input(&context, nullptr, nullptr, options.get());
    opened->m_input.reset(context);
    if (code < 0) {
        return statusOf(code);
    }
    code = avformat_find_stream_info(context, nullptr);
    if (code < 0) {
        return statusOf(code);
    }
    opened->m_stream = av_find_best_stream(context, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (opened->m_stream < 0) {
        return kAudioFileUnsupportedDataFormatError;
    }
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        context->streams[i]->discard = static_cast<int>(i) == opened->m_stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
    opened->m_bytesLeft = kMostBetweenPackets;
    context->pb->eof_reached = 0;
    file = std::move(opened);
    return kAudioNoError;
}

bool AvFile::is(const char* container) const {
    return av_match_name(container, m_input->iformat->name) != 0;
}

std::optional<std::int64_t> AvFile::heardFrom() {
    const std::int64_t first = stream().start_time;
    // A movie's edit leaves out what comes before; that of a file with fragments only moves the times.
    return is("mov") && first != AV_NOPTS_VALUE && first < 0 ? std::optional<std::int64_t>(0) : std::nullopt;
}

bool AvFile::next(AVPacket& packet) {
    for (;;) {
        av_packet_unref(&packet);
        if (av_read_frame(m_input.get(), &packet) < 0) {
            return false;
        }
        if (packet.stream_index == m_stream) {
            m_bytesLeft = kMostBetweenPackets;
            return true;
        }
    }
}

bool AvFile::seek(std::int64_t time, std::int64_t latest) {
    // Files without an index are searched from packet to packet, which only libavformat sees.
    m_bytesLeft = std::numeric_limits<std::int64_t>::max();
    const int code =
        avformat_seek_file(m_input.get(), m_stream, std::numeric_limits<std::int64_t>::min(), time, latest, 0);
    m_bytesLeft = kMostBetweenPackets;
    return code >= 0;
}

AudioFileInfo AvFile::info() {
    AudioFileInfo info;
    addEntries(m_input->metadata, info);
    addEntries(stream().metadata, info);
    return info;
}

}  // namespace tavi
