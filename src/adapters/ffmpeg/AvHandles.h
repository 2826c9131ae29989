#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/dict.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
}

#include <QString>
#include <cstdint>
#include <memory>
#include <type_traits>

#include "platform/Error.h"

namespace tavi {

struct AvDeleter {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwrContext* context) const { swr_free(&context); }
    void operator()(AVIOContext* context) const {
        av_freep(&context->buffer);
        avio_context_free(&context);
    }
};

using AvCodec = std::unique_ptr<AVCodecContext, AvDeleter>;
using AvParameters = std::unique_ptr<AVCodecParameters, AvDeleter>;
using AvFrame = std::unique_ptr<AVFrame, AvDeleter>;
using AvPacket = std::unique_ptr<AVPacket, AvDeleter>;
using AvResampler = std::unique_ptr<SwrContext, AvDeleter>;
using AvIo = std::unique_ptr<AVIOContext, AvDeleter>;

/// A file that is read; the pointer comes from avformat_open_input().
struct AvInputDeleter {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};
using AvInput = std::unique_ptr<AVFormatContext, AvInputDeleter>;

/// A file that is written; the pointer comes from avformat_alloc_output_context2().
struct AvOutputDeleter {
    void operator()(AVFormatContext* context) const { avformat_free_context(context); }
};
using AvOutput = std::unique_ptr<AVFormatContext, AvOutputDeleter>;

/// From FFmpeg 7 on, what is written is const.
using AvWrittenByte = std::conditional_t<(LIBAVFORMAT_VERSION_MAJOR >= 61), const std::uint8_t, std::uint8_t>;

/// A file's bytes for libavformat, through functions of the caller's, of which it needs one to read or write; null
/// where there is no memory.
inline AvIo makeAvIo(void* opaque, int (*read)(void*, std::uint8_t*, int), int (*write)(void*, AvWrittenByte*, int),
                     std::int64_t (*seek)(void*, std::int64_t, int)) {
    constexpr int kBufferBytes = 64 * 1024;
    auto* buffer = static_cast<unsigned char*>(av_malloc(kBufferBytes));
    AvIo io(buffer != nullptr
                ? avio_alloc_context(buffer, kBufferBytes, write != nullptr ? 1 : 0, opaque, read, write, seek)
                : nullptr);
    if (!io) {
        av_free(buffer);
    }
    return io;
}

/// Options for one of FFmpeg's functions, which takes out those that it knows.
class AvOptions {
public:
    AvOptions() = default;
    AvOptions(const AvOptions&) = delete;
    AvOptions& operator=(const AvOptions&) = delete;
    ~AvOptions() { av_dict_free(&m_options); }

    void set(const char* name, const char* value) { av_dict_set(&m_options, name, value, 0); }
    void set(const char* name, std::int64_t value) { av_dict_set_int(&m_options, name, value, 0); }
    AVDictionary** get() { return &m_options; }

private:
    AVDictionary* m_options = nullptr;
};

/// Places of loudspeakers, which can hold memory.
struct AvLayout : AVChannelLayout {
    AvLayout() : AVChannelLayout{} {}
    AvLayout(const AvLayout&) = delete;
    AvLayout& operator=(const AvLayout&) = delete;
    ~AvLayout() { av_channel_layout_uninit(this); }
};

/// FFmpeg's words for one of its error codes.
inline QString avErrorText(int code) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromUtf8(text);
}

/// A failure of FFmpeg's: what could not be done, and why.
inline tl::unexpected<Error> avFailure(const QString& what, int code) {
    return failure(what + QStringLiteral(": ") + avErrorText(code));
}

}  // namespace tavi
