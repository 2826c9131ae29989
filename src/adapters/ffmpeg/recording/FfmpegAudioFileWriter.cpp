#include "adapters/ffmpeg/recording/FfmpegAudioFileWriter.h"

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libavutil/samplefmt.h>
}

#include <algorithm>
#include <numeric>
#include <string_view>

#include "adapters/ffmpeg/FileErrors.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"
#include "sound/mp4/Mp4Finalizer.h"

namespace tavi {

namespace {

constexpr int kIoBufferBytes = 64 * 1024;
/// Frames in one encoder frame where the codec takes any number.
constexpr int kFreeFrameSize = 4096;

// Errors stay in the file and never reach FFmpeg, which would drop every later write. From FFmpeg 7 on the bytes are
// const.
template <typename Byte>
int writeToFile(void* opaque, Byte* data, int size) {
    static_cast<RecordingFile*>(opaque)->write(data, static_cast<std::size_t>(size));
    return size;
}

std::int64_t seekInFile(void* opaque, std::int64_t offset, int whence) {
    auto* file = static_cast<RecordingFile*>(opaque);
    switch (whence & ~AVSEEK_FORCE) {
        case AVSEEK_SIZE:
            return file->size();
        case SEEK_CUR:
            offset += file->position();
            break;
        case SEEK_END:
            offset += file->size();
            break;
        default:
            break;
    }
    if (offset < 0) {
        return AVERROR(EINVAL);
    }
    file->seek(offset);
    return offset;
}

tl::unexpected<Error> avFailure(const QString& what, int code) {
    return failure(what + QStringLiteral(": ") + avErrorText(code));
}

}  // namespace

Result<std::unique_ptr<AudioFileWriter>> FfmpegAudioFileWriters::create(const std::filesystem::path& path,
                                                                        const AudioRecordSettings& settings) {
    av_log_set_level(AV_LOG_QUIET);
    const Result<RecordingFormat> format = recordingFormat(path, settings);
    if (!format) {
        return tl::unexpected(format.error());
    }
    Result<std::unique_ptr<RecordingFile>> file = RecordingFile::create(path, m_pwrite);
    if (!file) {
        return tl::unexpected(file.error());
    }
    Result<std::unique_ptr<AudioFileWriter>> writer = FfmpegAudioFileWriter::create(std::move(*file), *format);
    if (!writer) {
        ::unlink(path.c_str());
    }
    return writer;
}

FfmpegAudioFileWriter::FfmpegAudioFileWriter(std::unique_ptr<RecordingFile> file, const RecordingFormat& format)
    : m_file(std::move(file)), m_format(format), m_frame(av_frame_alloc()), m_packet(av_packet_alloc()) {}

Result<std::unique_ptr<AudioFileWriter>> FfmpegAudioFileWriter::create(std::unique_ptr<RecordingFile> file,
                                                                       const RecordingFormat& format) {
    std::unique_ptr<FfmpegAudioFileWriter> writer(new FfmpegAudioFileWriter(std::move(file), format));
    Result<void> opened = writer->openEncoder();
    if (opened) {
        opened = writer->openContainer();
    }
    if (!opened) {
        return tl::unexpected(opened.error());
    }
    return writer;
}

Result<void> FfmpegAudioFileWriter::openEncoder() {
    const AVCodec* codec = avcodec_find_encoder(m_format.codec);
    m_encoder.reset(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    if (!m_encoder || !m_frame || !m_packet) {
        return failure(QStringLiteral("The encoder for this kind of recording is missing."));
    }
    m_encoder->sample_fmt = m_format.sampleFormat;
    m_encoder->sample_rate = m_format.sampleRate;
    m_encoder->time_base = {1, m_format.sampleRate};
    m_encoder->bit_rate = m_format.bitRate;
    // Same sound, same file: no name or version of the library in it.
    m_encoder->flags |= AV_CODEC_FLAG_BITEXACT;
    if (m_format.isFragmented) {
        m_encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    }
    av_channel_layout_default(&m_encoder->ch_layout, m_format.channels);
    if (m_format.codec == AV_CODEC_ID_AAC) {
        av_opt_set(m_encoder->priv_data, "aac_coder", m_format.aacCoder, 0);
    }
    int code = avcodec_open2(m_encoder.get(), codec, nullptr);
    if (code < 0) {
        return avFailure(QStringLiteral("The encoder could not be opened"), code);
    }
    m_frameSize = m_encoder->frame_size > 0 ? m_encoder->frame_size : kFreeFrameSize;
    m_frame->nb_samples = m_frameSize;
    m_frame->format = m_format.sampleFormat;
    m_frame->sample_rate = m_format.sampleRate;
    av_channel_layout_default(&m_frame->ch_layout, m_format.channels);
    code = av_frame_get_buffer(m_frame.get(), 0);
    if (code < 0) {
        return avFailure(QStringLiteral("The encoder could not be opened"), code);
    }
    return {};
}

Result<void> FfmpegAudioFileWriter::openContainer() {
    AVFormatContext* container = nullptr;
    int code = avformat_alloc_output_context2(&container, nullptr, m_format.muxer, nullptr);
    m_container.reset(container);
    auto* buffer = static_cast<unsigned char*>(av_malloc(kIoBufferBytes));
    m_io.reset(avio_alloc_context(buffer, kIoBufferBytes, 1, m_file.get(), nullptr, writeToFile, seekInFile));
    AVStream* stream = container != nullptr ? avformat_new_stream(container, nullptr) : nullptr;
    if (!m_io || stream == nullptr) {
        return avFailure(QStringLiteral("The recording could not be set up"), code);
    }
    container->pb = m_io.get();
    container->flags |= AVFMT_FLAG_CUSTOM_IO | AVFMT_FLAG_BITEXACT;
    container->flush_packets = 0;
    stream->time_base = m_encoder->time_base;
    code = avcodec_parameters_from_context(stream->codecpar, m_encoder.get());

    AVDictionary* options = nullptr;
    if (m_format.isFragmented) {
        av_dict_set(&options, "movflags", "empty_moov+delay_moov+frag_custom+default_base_moof+skip_trailer", 0);
        // The default of milliseconds would round the edit list.
        av_dict_set_int(&options, "movie_timescale", m_format.sampleRate, 0);
    } else if (m_format.muxer == std::string_view("wav")) {
        av_dict_set(&options, "rf64", "auto", 0);
    }
    if (code >= 0) {
        code = avformat_write_header(container, &options);
    }
    av_dict_free(&options);
    if (code < 0) {
        return avFailure(QStringLiteral("The recording could not be set up"), code);
    }
    avio_flush(m_io.get());
    m_dataOffset = m_file->size();
    if (m_file->error() != 0) {
        return failure(QString::fromStdString(writeErrorText(m_file->error())));
    }
    return {};
}

Result<void> FfmpegAudioFileWriter::setInputFormat(const AudioInputFormat& format) {
    if (m_converter) {
        return fail({QStringLiteral("The shape of the sound was given twice.")});
    }
    Result<SampleConverter> converter = SampleConverter::create(format, m_format);
    if (!converter) {
        return fail(converter.error());
    }
    m_channelsIn = format.channels;
    m_converter = std::move(*converter);
    return {};
}

Result<void> FfmpegAudioFileWriter::write(const float* interleaved, std::size_t frames) {
    if (m_failure) {
        return tl::unexpected(*m_failure);
    }
    if (!m_converter || m_finished) {
        return fail({QStringLiteral("Sound came before its shape was known or after the end.")});
    }
    while (frames > 0) {
        const int count = static_cast<int>(std::min<std::size_t>(frames, SampleConverter::kMaximumFrames));
        int offered = count;
        std::uint8_t* planes[AV_NUM_DATA_POINTERS] = {};
        for (int taken = 1; taken > 0; offered = 0) {
            const int capacity = room(planes);
            taken = m_converter->convert(interleaved, offered, planes, capacity);
            if (const Result<void> result = take(taken); !result) {
                return fail(result.error());
            }
        }
        interleaved += static_cast<std::ptrdiff_t>(count) * m_channelsIn;
        frames -= static_cast<std::size_t>(count);
        if (m_file->error() != 0) {
            return fail({QString::fromStdString(writeErrorText(m_file->error()))});
        }
    }
    return {};
}

int FfmpegAudioFileWriter::room(std::uint8_t** planes) const {
    const int bytes = av_get_bytes_per_sample(m_format.sampleFormat);
    if (av_sample_fmt_is_planar(m_format.sampleFormat) != 0) {
        for (int channel = 0; channel < m_format.channels; ++channel) {
            planes[channel] = m_frame->data[channel] + static_cast<std::ptrdiff_t>(m_filled) * bytes;
        }
    } else {
        planes[0] = m_frame->data[0] + static_cast<std::ptrdiff_t>(m_filled) * bytes * m_format.channels;
    }
    return m_frameSize - m_filled;
}

Result<void> FfmpegAudioFileWriter::take(int frames) {
    if (frames < 0) {
        return avFailure(QStringLiteral("The sound could not be converted"), frames);
    }
    m_filled += frames;
    if (m_filled < m_frameSize) {
        return {};
    }
    m_frame->pts = m_framesEncoded;
    m_framesEncoded += m_filled;
    m_filled = 0;
    Result<void> result = encodeFrame(m_frame.get());
    // The encoder may still look at the old frame.
    if (const int code = av_frame_make_writable(m_frame.get()); code < 0) {
        return avFailure(QStringLiteral("The sound could not be encoded"), code);
    }
    return result;
}

Result<void> FfmpegAudioFileWriter::encodeFrame(const AVFrame* frame) {
    int code = avcodec_send_frame(m_encoder.get(), frame);
    while (code >= 0) {
        code = avcodec_receive_packet(m_encoder.get(), m_packet.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF) {
            return {};
        }
        if (code >= 0) {
            code = storePacket();
        }
    }
    return avFailure(QStringLiteral("The sound could not be encoded"), code);
}

int FfmpegAudioFileWriter::storePacket() {
    m_packet->stream_index = 0;
    const AVStream* stream = m_container->streams[0];
    const std::int64_t end = m_packet->pts + m_packet->duration;
    av_packet_rescale_ts(m_packet.get(), m_encoder->time_base, stream->time_base);
    const int code = av_write_frame(m_container.get(), m_packet.get());
    av_packet_unref(m_packet.get());
    if (code >= 0 && end - m_flushedUntil >= m_format.sampleRate) {
        m_flushedUntil = end;
        flushContainer();
    }
    return code;
}

void FfmpegAudioFileWriter::flushContainer() {
    if (m_format.isFragmented) {
        // The first of these calls writes the movie header only, and the second the fragment after it.
        for (int calls = m_hasFragments ? 1 : 2; calls > 0; --calls) {
            av_write_frame(m_container.get(), nullptr);
        }
        m_hasFragments = true;
    }
    avio_flush(m_io.get());
}

Result<void> FfmpegAudioFileWriter::drain() {
    if (!m_converter) {
        return {};
    }
    const std::int64_t end = m_converter->expectedFrames();
    Result<void> result;
    for (bool isEmpty = false; result && m_framesEncoded + m_filled < end;) {
        std::uint8_t* planes[AV_NUM_DATA_POINTERS] = {};
        const auto missing = end - m_framesEncoded - m_filled;
        int count = static_cast<int>(std::min<std::int64_t>(room(planes), missing));
        const int drained = isEmpty ? 0 : m_converter->drain(planes, count);
        if (drained == 0) {
            // The resampler can come out short by a frame.
            isEmpty = true;
            av_samples_set_silence(m_frame->data, m_filled, count, m_format.channels, m_format.sampleFormat);
        } else {
            count = drained;
        }
        result = take(count);
    }
    if (result && m_filled > 0) {
        if (m_format.codec == AV_CODEC_ID_ADPCM_IMA_QT) {
            // A packet is always whole.
            av_samples_set_silence(m_frame->data, m_filled, m_frameSize - m_filled, m_format.channels,
                                   m_format.sampleFormat);
            result = take(m_frameSize - m_filled);
        } else {
            if (m_filled * m_encoder->block_align % 2 != 0) {
                // Some players of WAV files give up at the byte that would pad an odd number: the last frame comes
                // twice.
                av_samples_copy(m_frame->data, m_frame->data, m_filled, m_filled - 1, 1, m_format.channels,
                                m_format.sampleFormat);
                ++m_filled;
            }
            m_frame->nb_samples = m_filled;
            m_frame->pts = m_framesEncoded;
            m_framesEncoded += m_filled;
            m_filled = 0;
            result = encodeFrame(m_frame.get());
        }
    }
    return result ? encodeFrame(nullptr) : result;
}

Result<void> FfmpegAudioFileWriter::finish() {
    if (m_finished) {
        return {};
    }
    m_finished = true;
    Result<void> result;
    if (!m_file->isBroken()) {
        result = drain();
    }
    closeContainer();
    // What follows has to do with whatever room there is.
    m_file->releaseReserve();
    if (m_format.isFragmented) {
        const Result<void> finalized = resultOf(finalizeMp4(m_file->fd(), m_file->pwrite()));
        result = result ? finalized : result;
    }
    if (m_file->isBroken()) {
        result = failure(QString::fromStdString(writeErrorText(m_file->error())));
    }
    if (const int error = m_file->sync(); error != 0 && result) {
        result = failure(QString::fromStdString(writeErrorText(error)));
    }
    m_container.reset();
    m_io.reset();
    m_file.reset();
    // What write() has said already is not said again.
    return m_failure ? Result<void>() : result;
}

void FfmpegAudioFileWriter::closeContainer() {
    avio_flush(m_io.get());
    if (m_file->isBroken()) {
        if (m_format.isFragmented) {
            return;
        }
        // The lengths in the headers are to be those of what is there, in whole frames or packets.
        const std::int64_t unit = std::lcm(2, std::max(1, m_encoder->block_align));
        m_file->shorten(m_dataOffset + (m_file->size() - m_dataOffset) / unit * unit);
        avio_seek(m_io.get(), m_file->size(), SEEK_SET);
    }
    if (m_format.isFragmented && !m_hasFragments) {
        flushContainer();
    }
    av_write_trailer(m_container.get());
    avio_flush(m_io.get());
}

Result<void> FfmpegAudioFileWriter::fail(const Error& error) {
    m_failure = error;
    return tl::unexpected(error);
}

}  // namespace tavi
