#include <algorithm>
#include <optional>

#include "adapters/ffmpeg/exporting/PacketExport.h"
#include "adapters/ffmpeg/reading/AvFile.h"

namespace tavi {

namespace {

struct OutputCloser {
    void operator()(AVIOContext* io) const { avio_close(io); }
};
using OutputIo = std::unique_ptr<AVIOContext, OutputCloser>;

const char* muxerOf(AssetFileType type) {
    switch (type) {
        case AssetFileType::Wave:
            return "wav";
        case AssetFileType::CoreAudioFormat:
            return "caf";
        case AssetFileType::AppleM4A:
            break;
    }
    return "mp4";
}

/// Packets that a decoder must have heard before the first that is played, in frames.
std::int64_t prerollOf(const AVCodecParameters& parameters) {
    switch (parameters.codec_id) {
        case AV_CODEC_ID_AAC:
            return 2048;
        case AV_CODEC_ID_MP3:
            // A packet may hold its bits in the nine before it.
            return 10 * 1152;
        case AV_CODEC_ID_OPUS:
            return parameters.sample_rate / 12;
        case AV_CODEC_ID_VORBIS:
            return 4096;
        default:
            return 0;
    }
}

Error textOf(int code) {
    return {code == AVERROR(ENOSPC) ? QStringLiteral("The disk is full.")
                                    : QStringLiteral("The file could not be written: ") + avErrorText(code)};
}

/// The new file in the hands of libavformat.
class Output {
public:
    Result<void> open(const ExportJob& job, const AVStream& source);
    /// Takes over the packet. An error code of FFmpeg.
    int write(AVPacket& packet, AVRational timeBase);
    int finish();

private:
    AvOutput m_container;
    OutputIo m_io;
};

Result<void> Output::open(const ExportJob& job, const AVStream& source) {
    AVFormatContext* container = nullptr;
    avformat_alloc_output_context2(&container, nullptr, muxerOf(job.type), nullptr);
    m_container.reset(container);
    AVIOContext* io = nullptr;
    // With its protocol, so that no name is taken for an address.
    const std::string url = "file:" + job.file.temporaryPath().native();
    int code = container != nullptr ? avio_open(&io, url.c_str(), AVIO_FLAG_WRITE) : AVERROR(ENOMEM);
    m_io.reset(io);
    AVStream* stream = code >= 0 ? avformat_new_stream(container, nullptr) : nullptr;
    if (stream == nullptr) {
        return tl::unexpected(textOf(code));
    }
    container->pb = io;
    container->flags |= AVFMT_FLAG_BITEXACT;
    // Times before the start become an edit list.
    container->avoid_negative_ts = AVFMT_AVOID_NEG_TS_DISABLED;
    container->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
    code = avcodec_parameters_copy(stream->codecpar, source.codecpar);
    stream->codecpar->codec_tag = 0;
    stream->time_base = {1, source.codecpar->sample_rate};
    AvOptions options;
    if (job.type == AssetFileType::AppleM4A) {
        // The default of milliseconds would round the edit list.
        options.set("movie_timescale", source.codecpar->sample_rate);
    } else if (job.type == AssetFileType::Wave) {
        options.set("rf64", "auto");
    }
    if (code >= 0) {
        code = avformat_write_header(container, options.get());
    }
    if (code == AVERROR(ENOSPC)) {
        return tl::unexpected(textOf(code));
    }
    return code >= 0 ? Result<void>()
                     : failure(QStringLiteral("This kind of sound cannot be put into such a file as it is."));
}

int Output::write(AVPacket& packet, AVRational timeBase) {
    packet.stream_index = 0;
    packet.pos = -1;
    av_packet_rescale_ts(&packet, timeBase, m_container->streams[0]->time_base);
    const int code = av_write_frame(m_container.get(), &packet);
    return code < 0 ? code : m_io->error;
}

int Output::finish() {
    const int code = av_write_trailer(m_container.get());
    avio_flush(m_io.get());
    return code < 0 ? code : m_io->error;
}

/// Packets with the times at which they begin and how long they are: not every container says the latter, so each is
/// held back until the next one is known.
class TimedPackets {
public:
    TimedPackets(AvFile& file, std::int64_t origin) : m_file(file), m_end(origin) { m_hasHeld = read(*m_held); }

    bool next() {
        if (!m_hasHeld) {
            return false;
        }
        std::swap(m_packet, m_held);
        m_hasHeld = read(*m_held);
        if (m_packet->duration <= 0 && m_hasHeld) {
            m_packet->duration = std::max<std::int64_t>(0, m_held->pts - m_packet->pts);
        }
        if (m_packet->duration <= 0) {
            m_packet->duration = m_duration;
        }
        m_duration = m_packet->duration;
        return true;
    }
    AVPacket& packet() { return *m_packet; }

private:
    bool read(AVPacket& packet) {
        if (!m_file.next(packet)) {
            return false;
        }
        packet.pts = packet.pts != AV_NOPTS_VALUE ? packet.pts : m_end;
        m_end = packet.pts + packet.duration;
        return true;
    }

    AvFile& m_file;
    AvPacket m_packet{av_packet_alloc()};
    AvPacket m_held{av_packet_alloc()};
    bool m_hasHeld = false;
    std::int64_t m_end;
    /// Of the packet before.
    std::int64_t m_duration = 0;
};

/// A stretch in the source's own times, and from where on packets are wanted, so that a decoder settles.
struct Stretch {
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int64_t first = 0;
};

/// What has been copied: nothing, or up to a time; and a code of FFmpeg's where that failed.
struct Copied {
    std::optional<std::int64_t> end;
    int code = 0;
};

Copied copyStretch(const ExportJob& job, const Stretch& stretch, AVRational timeBase, TimedPackets& packets,
                   Output& output) {
    Copied copied;
    bool isFollowed = false;
    while (copied.code >= 0 && !job.control.isCancelled() && packets.next()) {
        AVPacket& packet = packets.packet();
        const std::int64_t begin = packet.pts;
        // One packet always follows the first that is heard: see M4aPackets.h.
        if (begin >= stretch.end && isFollowed) {
            break;
        }
        const std::int64_t end = begin + packet.duration;
        if (end <= stretch.first) {
            continue;
        }
        // The last one that is heard ends with the stretch, and what follows it takes no time.
        packet.pts = packet.dts = std::min(begin, stretch.end) - stretch.start;
        packet.duration = std::min(packet.duration, std::max<std::int64_t>(0, stretch.end - begin));
        // What the whole file leaves out at its ends is not at those of the stretch.
        av_packet_free_side_data(&packet);
        job.control.setProgress(static_cast<double>(std::max<std::int64_t>(0, begin - stretch.start)) /
                                static_cast<double>(stretch.end - stretch.start));
        isFollowed = begin > stretch.start;
        copied.end = end;
        copied.code = output.write(packet, timeBase);
    }
    // In the file's last packet none follows: it comes again, behind the end.
    if (copied.end && copied.code >= 0 && !isFollowed && job.type == AssetFileType::AppleM4A) {
        AVPacket& again = packets.packet();
        again.pts = again.dts = stretch.end - stretch.start;
        again.duration = 0;
        copied.code = output.write(again, timeBase);
    }
    return copied;
}

}  // namespace

Result<void> exportAnyPackets(const ExportJob& job) {
    std::unique_ptr<AvFile> input;
    if (AvFile::open(job.source, input) != kAudioNoError) {
        return failure(QStringLiteral("The sound file could not be read."));
    }
    AVStream& stream = input->stream();
    const auto timeOf = [&](std::int64_t frame) { return av_rescale_q(frame, {1, job.rate}, stream.time_base); };
    Output output;
    if (Result<void> opened = output.open(job, stream); !opened) {
        return opened;
    }
    const std::int64_t origin =
        input->heardFrom().value_or(stream.start_time != AV_NOPTS_VALUE ? stream.start_time : 0);
    Stretch stretch{origin + timeOf(job.start), origin + timeOf(job.end)};
    stretch.first = stretch.start - timeOf(prerollOf(*stream.codecpar));
    if (stretch.first > origin) {
        // A packet earlier, as packets are found by their start.
        input->seek(stretch.first - timeOf(job.rate / 10), stretch.first);
    }
    TimedPackets packets(*input, origin);
    Copied copied = copyStretch(job, stretch, stream.time_base, packets, output);
    if (copied.code >= 0 && !copied.end) {
        return damagedSource();
    }
    if (copied.code >= 0 && *copied.end < stretch.end - timeOf(job.rate / 2) && !job.control.isCancelled()) {
        return shortenedSource();
    }
    const int code = copied.code >= 0 ? output.finish() : copied.code;
    return code >= 0 ? Result<void>() : tl::unexpected(textOf(code));
}

}  // namespace tavi
