#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
}

#include <QString>
#include <memory>

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

/// FFmpeg's words for one of its error codes.
inline QString avErrorText(int code) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromUtf8(text);
}

}  // namespace tavi
