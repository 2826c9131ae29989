#include "adapters/ffmpeg/recording/RecordingContainer.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "files/FileError.h"

namespace tavi {

namespace {

// Errors stay in the file and never reach FFmpeg, which would drop every later write.
int writeToFile(void* opaque, AvWrittenByte* data, int size) {
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

}  // namespace

Result<std::unique_ptr<RecordingContainer>> RecordingContainer::create(RecordingFile& file,
                                                                       const RecordingFormat& format,
                                                                       const AVCodecContext& encoder) {
    std::unique_ptr<RecordingContainer> container(new RecordingContainer(file, format, encoder));
    const Result<void> opened = container->open();
    return opened ? Result<std::unique_ptr<RecordingContainer>>(std::move(container)) : tl::unexpected(opened.error());
}

Result<void> RecordingContainer::open() {
    AVFormatContext* container = nullptr;
    int code = avformat_alloc_output_context2(&container, nullptr, m_format.muxer, nullptr);
    m_output.reset(container);
    m_io = makeAvIo(&m_file, nullptr, writeToFile, seekInFile);
    AVStream* stream = container != nullptr ? avformat_new_stream(container, nullptr) : nullptr;
    if (!m_io || stream == nullptr) {
        return avFailure(QStringLiteral("The recording could not be set up"), code);
    }
    container->pb = m_io.get();
    container->flags |= AVFMT_FLAG_CUSTOM_IO | AVFMT_FLAG_BITEXACT;
    container->flush_packets = 0;
    stream->time_base = m_encoder.time_base;
    code = avcodec_parameters_from_context(stream->codecpar, &m_encoder);

    AvOptions options;
    if (m_format.isFragmented) {
        options.set("movflags", "empty_moov+delay_moov+frag_custom+default_base_moof+skip_trailer");
        // The default of milliseconds would round the edit list.
        options.set("movie_timescale", m_format.sampleRate);
    } else if (m_format.muxer == std::string_view("wav")) {
        options.set("rf64", "auto");
    }
    if (code >= 0) {
        code = avformat_write_header(container, options.get());
    }
    if (code < 0) {
        return avFailure(QStringLiteral("The recording could not be set up"), code);
    }
    avio_flush(m_io.get());
    m_dataOffset = m_file.size();
    if (m_file.error() != 0) {
        return failure(QString::fromStdString(writeErrorText(m_file.error())));
    }
    return {};
}

int RecordingContainer::store(AVPacket& packet) {
    packet.stream_index = 0;
    const AVStream* stream = m_output->streams[0];
    m_storedUntil = packet.pts + packet.duration;
    av_packet_rescale_ts(&packet, m_encoder.time_base, stream->time_base);
    const int code = av_write_frame(m_output.get(), &packet);
    av_packet_unref(&packet);
    if (code >= 0 && m_storedUntil - m_flushedUntil >= m_format.sampleRate) {
        flush();
    }
    return code;
}

void RecordingContainer::flush() {
    if (m_storedUntil > m_flushedUntil) {
        m_flushedUntil = m_storedUntil;
        writeOut();
    }
}

void RecordingContainer::writeOut() {
    if (m_format.isFragmented) {
        // The first of these calls writes the movie header only, and the second the fragment after it.
        for (int calls = m_hasFragments ? 1 : 2; calls > 0; --calls) {
            av_write_frame(m_output.get(), nullptr);
        }
        m_hasFragments = true;
    }
    avio_flush(m_io.get());
}

void RecordingContainer::close() {
    avio_flush(m_io.get());
    if (m_file.isBroken()) {
        if (m_format.isFragmented) {
            return;
        }
        // The lengths in the headers are to be those of what is there, in whole frames or packets.
        const std::int64_t unit = std::lcm(2, std::max(1, m_encoder.block_align));
        m_file.shorten(m_dataOffset + (m_file.size() - m_dataOffset) / unit * unit);
        avio_seek(m_io.get(), m_file.size(), SEEK_SET);
    }
    if (m_format.isFragmented && !m_hasFragments) {
        writeOut();
    }
    av_write_trailer(m_output.get());
    avio_flush(m_io.get());
}

}  // namespace tavi
