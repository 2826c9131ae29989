extern "C" {
#include <libavutil/mathematics.h>
}

#include <array>
#include <optional>

#include "adapters/ffmpeg/exporting/M4aPackets.h"
#include "adapters/ffmpeg/reading/AdtsPackets.h"
#include "sound/mp4/Mp4Description.h"

namespace tavi {

namespace {

constexpr int kPacketFrames = 1024;

/// What the header of an ADTS frame says (ISO/IEC 13818-7, 6.2), put as an AudioSpecificConfig.
struct AdtsConfiguration {
    explicit AdtsConfiguration(const std::uint8_t* header) {
        headerBytes = (header[1] & 1) != 0 ? 7 : 9;
        const unsigned configuration = (header[2] & 1U) << 2 | header[3] >> 6U;
        channels = configuration == 7 ? 8 : configuration;
        // The profile counts from 1 there.
        const unsigned object = (header[2] >> 6U) + 1U;
        const unsigned rateIndex = header[2] >> 2U & 15U;
        config = {static_cast<std::uint8_t>(object << 3 | rateIndex >> 1),
                  static_cast<std::uint8_t>(rateIndex << 7 | configuration << 3)};
    }

    int headerBytes = 0;
    /// 0 where only the sound itself tells.
    std::uint32_t channels = 0;
    std::array<std::uint8_t, 2> config{};
};

/// Moves the packets of a stream into an M4A file, in large writes.
class AdtsCopy {
public:
    explicit AdtsCopy(const ExportJob& job) : m_job(job), m_written(job) {}

    /// Fails for what M4A files do not hold as it is.
    Result<void> add(const AVPacket& packet) {
        const AdtsConfiguration own(packet.data);
        if (packet.duration != 1 || packet.size <= own.headerBytes || own.channels == 0 ||
            (m_configuration && own.config != m_configuration->config)) {
            return failure(QStringLiteral("This kind of AAC cannot be put into an M4A file as it is."));
        }
        if (!m_configuration) {
            m_begin = packet.pts * kPacketFrames;
        }
        m_configuration = own;
        constexpr std::size_t kGatheredBytes = std::size_t{256} * 1024;
        if (m_gathered.size() >= kGatheredBytes) {
            flush();
        }
        m_last.assign(packet.data + own.headerBytes, packet.data + packet.size);
        append();
        return {};
    }
    bool isEmpty() const { return !m_configuration; }
    /// Where the packets begin and end in the stream.
    std::int64_t begin() const { return m_begin; }
    std::int64_t end() const { return m_begin + m_written.duration(); }
    /// Adds the last packet again.
    void repeat() { append(); }
    /// What is heard is told in frames of the stream.
    Result<bool> finish(std::int64_t start, std::int64_t end, std::uint32_t rate) {
        flush();
        const auto description = mp4AacDescription(m_configuration->config, m_configuration->channels, rate);
        return m_written.finish({rate, description, {}, start - m_begin, end - m_begin});
    }

private:
    void append() {
        m_gathered.insert(m_gathered.end(), m_last.begin(), m_last.end());
        m_written.add(static_cast<std::uint32_t>(m_last.size()), kPacketFrames);
    }
    void flush() {
        m_job.file.append(m_gathered);
        m_gathered.clear();
    }

    const ExportJob& m_job;
    M4aPackets m_written;
    std::optional<AdtsConfiguration> m_configuration;
    std::int64_t m_begin = 0;
    std::vector<std::uint8_t> m_gathered;
    std::vector<std::uint8_t> m_last;
};

}  // namespace

Result<bool> exportAdtsPackets(const ExportJob& job) {
    const auto packets = job.type == AssetFileType::AppleM4A ? AdtsPackets::open(job.source) : nullptr;
    if (!packets) {
        return false;
    }
    const std::int64_t rate = packets->timeBase().den;
    const std::int64_t start = av_rescale(job.start, rate, job.rate);
    const std::int64_t end = av_rescale(job.end, rate, job.rate);
    const std::int64_t heard = start / kPacketFrames;
    const std::int64_t first = std::max<std::int64_t>(0, heard - kAacPreroll);
    const std::int64_t last = std::max((end + kPacketFrames - 1) / kPacketFrames, heard + 2);
    const AvPacket packet(av_packet_alloc());
    AdtsCopy copy(job);
    packets->seek(first);
    while (!job.control.isCancelled() && job.file.result() && packets->next(*packet) && packet->pts < last) {
        if (const Result<void> added = copy.add(*packet); !added) {
            return tl::unexpected(added.error());
        }
        job.control.setProgress(static_cast<double>(packet->pts - first) / static_cast<double>(last - first));
    }
    if (const Result<void> written = job.file.result(); !written) {
        return tl::unexpected(written.error());
    }
    if (copy.isEmpty()) {
        return damagedSource();
    }
    if (copy.end() <= (heard + 1) * kPacketFrames) {
        copy.repeat();
    }
    if (copy.end() < end && !job.control.isCancelled()) {
        return shortenedSource();
    }
    return copy.finish(start, end, static_cast<std::uint32_t>(rate));
}

}  // namespace tavi
