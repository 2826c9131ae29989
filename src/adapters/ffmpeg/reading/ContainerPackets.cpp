#include "adapters/ffmpeg/reading/ContainerPackets.h"

extern "C" {
#include <libavutil/avstring.h>
}

#include <algorithm>
#include <cmath>
#include <cstring>

#include "files/PositionedIo.h"
#include "sound/HeaderDuration.h"
#include "sound/caf/CafHeader.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

constexpr std::int64_t kMaximumChannels = 64;
constexpr std::int64_t kMostPacketBytes = std::int64_t{1} << 30;

}  // namespace

AudioStatus ContainerPackets::open(int fd, std::unique_ptr<ContainerPackets>& packets, const std::stop_token& stop) {
    std::unique_ptr<ContainerPackets> opened(new ContainerPackets(fd, stop));
    const AudioStatus status = AvFile::open(fd, opened->m_file, stop);
    if (status != kAudioNoError) {
        return status;
    }
    AVStream& stream = opened->m_file->stream();
    const std::int64_t rate = stream.codecpar->sample_rate;
    const AVRational base = stream.time_base;
    const std::int64_t channels = stream.codecpar->ch_layout.nb_channels;
    if (!isSampleRate(static_cast<double>(rate)) || base.num <= 0 || base.den <= 0 || channels > kMaximumChannels) {
        return kAudioFileUnsupportedDataFormatError;
    }
    opened->m_hasExactTimes = opened->tellsExactTimes();
    const int entries = avformat_index_get_entries_count(&stream);
    for (int i = 0; i < entries; ++i) {
        const auto size = static_cast<std::uint32_t>(avformat_index_get_entry(&stream, i)->size);
        opened->m_maxPacketSize = std::max(opened->m_maxPacketSize, size);
    }
    if (opened->m_maxPacketSize == 0) {
        // No codec makes more of a frame than its samples.
        const int frames = stream.codecpar->frame_size > 0 ? stream.codecpar->frame_size : 4096;
        opened->m_maxPacketSize =
            static_cast<std::uint32_t>(std::clamp<std::int64_t>(frames * channels * 4, 0, kMostPacketBytes));
    }
    if (opened->is("caf")) {
        const auto header = readCafHeader(fd);
        opened->m_primingFrames = header ? header->primingFrames : 0;
    }
    packets = std::move(opened);
    return kAudioNoError;
}

bool ContainerPackets::is(const char* container) const {
    return m_file->is(container);
}

bool ContainerPackets::tellsExactTimes() const {
    const AVStream& stream = m_file->stream();
    const AVRational base = stream.time_base;
    const std::int64_t rate = stream.codecpar->sample_rate;
    const bool isFine = base.den % (base.num * rate) == 0;
    if (is("mov")) {
        // The times of movies are sums of what their packets last.
        return isFine || (base.num == 1 && rate % base.den == 0);
    }
    const AVCodecID codec = stream.codecpar->codec_id;
    const bool isLinear = codec >= AV_CODEC_ID_FIRST_AUDIO && codec < AV_CODEC_ID_ADPCM_IMA_QT;
    // libavformat's places after a seek have been found right in these.
    return isFine && (is("mp3") || is("flac") || is("ogg") || is("caf") || is("aac") ||
                      (isLinear && (is("wav") || is("w64") || is("aiff") || is("au"))));
}

std::int64_t ContainerPackets::declaredLength(int rate) {
    const AVStream& stream = m_file->stream();
    if (is("mov")) {
        return movieLength(rate);
    }
    if (is("caf")) {
        const auto header = readCafHeader(m_fd);
        if (header && header->frames >= 0) {
            return header->frames;
        }
    }
    const bool isGuessed = m_file->context().duration_estimation_method == AVFMT_DURATION_FROM_BITRATE;
    const bool isTold = !m_hasExactTimes || is("flac") || is("ogg");
    if (isTold && !isGuessed && stream.duration != AV_NOPTS_VALUE) {
        return av_rescale_q(stream.duration, stream.time_base, {1, rate});
    }
    if (isTold && !isGuessed && m_file->context().duration != AV_NOPTS_VALUE) {
        return av_rescale_q(m_file->context().duration, {1, AV_TIME_BASE}, {1, rate});
    }
    return m_hasExactTimes ? scannedLength(rate) : -1;
}

std::int64_t ContainerPackets::movieLength(int rate) const {
    AVStream& stream = m_file->stream();
    const AVRational frame = {1, rate};
    const auto seconds = headerDuration(m_fd, m_stop);
    std::int64_t length = seconds                             ? std::llround(std::min(*seconds * rate, 1e15))
                          : stream.duration != AV_NOPTS_VALUE ? av_rescale_q(stream.duration, stream.time_base, frame)
                                                              : -1;
    const int entries = avformat_index_get_entries_count(&stream);
    if (entries > 0 && stream.codecpar->frame_size > 0) {
        // No packet holds more than the codec's frames; the header may say anything.
        const std::int64_t most = std::int64_t{entries} * std::max(stream.codecpar->frame_size, 4096) * 2;
        length = std::min(length, most);
    }
    const std::int64_t size = regularFileSize(m_fd);
    for (int i = 0; i < entries; ++i) {
        const AVIndexEntry* entry = avformat_index_get_entry(&stream, i);
        if (entry->pos > size - entry->size) {
            return std::clamp<std::int64_t>(av_rescale_q(entry->timestamp, stream.time_base, frame), 0, length);
        }
    }
    return length;
}

std::int64_t ContainerPackets::scannedLength(int rate) {
    if (!m_isFresh && !rewind()) {
        return -1;
    }
    m_isFresh = false;
    const AvPacket packet(av_packet_alloc());
    std::int64_t duration = 0;
    while (m_file->next(*packet)) {
        m_maxPacketSize = std::max(m_maxPacketSize, static_cast<std::uint32_t>(packet->size));
        if ((packet->flags & AV_PKT_FLAG_DISCARD) == 0) {
            // Damaged files name any duration; their sum does not overflow.
            duration += std::clamp<std::int64_t>(packet->duration, 0, std::int64_t{1} << 32);
        }
    }
    return av_rescale_q(duration, m_file->stream().time_base, {1, rate});
}

bool ContainerPackets::rewind() {
    // Movies find their first packet again. Opening them once more would cost time and memory for their tables.
    const AVIndexEntry* first = is("mov") ? avformat_index_get_entry(&m_file->stream(), 0) : nullptr;
    if (first != nullptr && seek(first->timestamp)) {
        m_isFresh = true;
        return true;
    }
    std::unique_ptr<AvFile> file;
    if (AvFile::open(m_fd, file, m_stop) != kAudioNoError) {
        return false;
    }
    m_file = std::move(file);
    m_isFresh = true;
    return true;
}

bool ContainerPackets::seek(std::int64_t time) {
    m_isFresh = false;
    return m_file->seek(time, time);
}

}  // namespace tavi
