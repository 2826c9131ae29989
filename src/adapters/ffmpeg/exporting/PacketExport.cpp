#include "adapters/ffmpeg/exporting/PacketExport.h"

#include <array>
#include <numeric>

#include "adapters/ffmpeg/FileErrors.h"
#include "adapters/ffmpeg/reading/AdtsPackets.h"
#include "sound/caf/CafHeader.h"
#include "sound/caf/CafWriter.h"
#include "sound/caf/Ima4Cut.h"
#include "sound/mp4/Mp4MovieWriter.h"
#include "sound/mp4/Mp4Sound.h"
#include "sound/wav/WavHeader.h"
#include "sound/wav/WavWriter.h"

namespace tavi {

namespace {

/// Packets of AAC that a decoder hears before the first that is played: each overlaps with the one before.
constexpr std::uint64_t kAacPreroll = 2;
constexpr int kAacPacketFrames = 1024;
// Where the heard part begins in the last packet of an M4A file, FFmpeg's demuxer plays nothing. So one packet always
// follows the first that is heard, though it may be behind the end.

tl::unexpected<Error> damaged() {
    return failure(QStringLiteral("The sound file is damaged."));
}

Result<bool> done(const ExportJob& job) {
    job.file.flush();
    const Result<void> result = job.file.result();
    return result ? Result<bool>(true) : tl::unexpected(result.error());
}

}  // namespace

Result<bool> exportWavPackets(const ExportJob& job) {
    const auto header = readWavHeader(job.source);
    if (!header || job.type != AssetFileType::Wave || job.end > header->frames) {
        return false;
    }
    const std::int64_t frames = job.end - job.start;
    const std::int64_t bytes = frames * header->frameBytes;
    // Some players give up at the byte that would pad an odd number of them: the last frame comes twice instead.
    const std::int64_t padding = bytes % 2 != 0 ? 1 : 0;
    const std::int64_t from = header->dataOffset + job.start * header->frameBytes;
    std::vector<std::uint8_t> format(std::min(header->formatBytes, 4096U));
    if (format.size() < header->formatBytes ||
        readFully(job.source, format.data(), format.size(), header->formatOffset) < format.size()) {
        return damaged();
    }
    job.file.append(wavHeader(format, static_cast<std::uint64_t>(bytes + padding * header->frameBytes),
                              static_cast<std::uint64_t>(frames + padding)));
    job.file.setControl(job.control, bytes);
    job.file.copy(job.source, from, bytes);
    if (padding > 0) {
        job.file.copy(job.source, from + bytes - header->frameBytes, header->frameBytes);
    }
    return done(job);
}

Result<bool> exportCafPackets(const ExportJob& job) {
    const auto header = readCafHeader(job.source);
    const bool isLinear = header && header->formatID == kAudioFormatLinearPCM && header->packetFrames == 1;
    const bool isIma4 = header && header->formatID == kAudioFormatAppleIMA4 && header->channels <= 8 &&
                        header->packetFrames == kIma4PacketFrames &&
                        header->packetBytes == kIma4PacketBytes * header->channels;
    if (job.type != AssetFileType::CoreAudioFormat || !(isLinear || isIma4) || header->packetBytes == 0 ||
        header->channels == 0 || job.end > header->frames) {
        return false;
    }
    const std::int64_t perPacket = header->packetFrames;
    const std::int64_t start = header->primingFrames + job.start;
    const std::int64_t end = header->primingFrames + job.end;
    const std::int64_t first = start / perPacket;
    const std::int64_t packets = (end + perPacket - 1) / perPacket - first;
    const std::int64_t dataBytes = packets * header->packetBytes;
    const std::int64_t priming = start - first * perPacket;
    const std::int64_t frames = job.end - job.start;
    const CafPacketTable table{packets, frames, priming, packets * perPacket - priming - frames};
    const auto head = cafHeaderLike(job.source, isIma4 ? std::optional(table) : std::nullopt, dataBytes);
    if (!head) {
        return tl::unexpected(errorOf(head.error()));
    }
    job.file.append(*head);
    std::vector<std::uint8_t> changed;
    if (isIma4) {
        auto found = Ima4Cut(job.source, *header, [&job] { return job.control.isCancelled(); }).firstPackets(first);
        if (!found) {
            return tl::unexpected(errorOf(found.error()));
        }
        changed = std::move(*found);
        changed.resize(std::min(changed.size(), static_cast<std::size_t>(dataBytes)));
    }
    job.file.setControl(job.control, dataBytes);
    job.file.append(changed);
    const auto replaced = static_cast<std::int64_t>(changed.size());
    job.file.copy(job.source, header->dataOffset + first * header->packetBytes + replaced, dataBytes - replaced);
    return done(job);
}

namespace {

/// The packets of an M4A file that is written.
struct Packets {
    void add(std::uint32_t size, std::uint32_t packetDuration) {
        samples.push_back({size, packetDuration});
        duration += packetDuration;
    }
    /// Makes the last packet end there, as the file of an encoder does.
    void endAt(std::int64_t time) {
        if (!samples.empty() && time < duration && duration - time < samples.back().duration) {
            samples.back().duration -= static_cast<std::uint32_t>(duration - time);
            duration = time;
        }
    }

    std::vector<Mp4Sample> samples;
    std::int64_t duration = 0;
};

/// Appends the header that names packets, the first of which lies at that offset.
Result<bool> appendMovie(const ExportJob& job, const Packets& packets, std::size_t offset,
                         const Mp4MovieDescription& sound) {
    const Mp4Runs runs = mp4RunsOf(packets.samples, static_cast<std::int64_t>(offset));
    const auto totals = Mp4Totals::of(runs);
    const auto written =
        writeMp4Movie(sound, *totals, runs, [&](std::span<const std::uint8_t> bytes) { job.file.append(bytes); });
    return written ? done(job) : tl::unexpected(errorOf(written.error()));
}

}  // namespace

Result<bool> exportMp4Packets(const ExportJob& job) {
    const auto sound = job.type == AssetFileType::AppleM4A ? Mp4Sound::open(job.source) : std::nullopt;
    const bool isAac = sound && sound->description().coding() == mp4Type("mp4a");
    if (!sound || !(isAac || sound->description().coding() == mp4Type("alac"))) {
        return false;
    }
    const auto mediaTime = [&](std::int64_t frame) {
        return sound->start() + av_rescale(frame, sound->timeScale(), job.rate);
    };
    const std::int64_t start = mediaTime(job.start);
    const std::int64_t end = mediaTime(job.end);
    const std::uint64_t preroll = isAac ? kAacPreroll : 0;
    const std::int64_t size = regularFileSize(job.source);
    std::vector<Mp4Packet> packets;
    std::int64_t bytes = 0;
    std::int64_t origin = -1;
    std::int64_t last = -1;
    const bool isUnderstood = sound->forEachPacket(start, preroll, [&](std::int64_t begin, const Mp4Packet& packet) {
        // Packets that share bytes could make a small file a large one.
        const bool isThere = packet.size > 0 && packet.offset <= size && packet.size <= size - packet.offset &&
                             bytes + packet.size <= size;
        if (isThere && (begin < end || last <= start)) {
            packets.push_back(packet);
            origin = origin < 0 ? begin : origin;
            last = begin;
            bytes += packet.size;
            return true;
        }
        return false;
    });
    const std::int64_t there =
        origin + std::accumulate(packets.begin(), packets.end(), std::int64_t{0},
                                 [](std::int64_t sum, const Mp4Packet& packet) { return sum + packet.duration; });
    if (!isUnderstood && sound->isFragmented()) {
        return false;
    }
    if (!isUnderstood || packets.empty() || there < end) {
        return damaged();
    }
    if (last <= start) {
        packets.push_back(packets.back());
        bytes += packets.back().size;
    }
    Packets written;
    const auto head = mp4FileHead(static_cast<std::uint64_t>(bytes));
    job.file.append(head);
    job.file.setControl(job.control, bytes);
    for (const Mp4Packet& packet : packets) {
        written.add(packet.size, packet.duration);
        job.file.copy(job.source, packet.offset, packet.size);
        if (!job.file.result()) {
            break;
        }
    }
    job.file.flush();
    written.endAt(end - origin);
    const auto userData = sound->movie().readUserData(job.source);
    return appendMovie(job, written, head.size(),
                       {sound->timeScale(), sound->description().box(), userData, start - origin, end - start});
}

namespace {

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

}  // namespace

Result<bool> exportAdtsPackets(const ExportJob& job) {
    constexpr std::size_t kGatheredBytes = std::size_t{256} * 1024;
    const auto packets = job.type == AssetFileType::AppleM4A ? AdtsPackets::open(job.source) : nullptr;
    if (!packets) {
        return false;
    }
    const std::int64_t rate = packets->timeBase().den;
    const std::int64_t start = av_rescale(job.start, rate, job.rate);
    const std::int64_t end = av_rescale(job.end, rate, job.rate);
    const std::int64_t first = std::max<std::int64_t>(0, start / kAacPacketFrames - static_cast<int>(kAacPreroll));
    const std::int64_t last = std::max((end + kAacPacketFrames - 1) / kAacPacketFrames, start / kAacPacketFrames + 2);
    const AvPacket packet(av_packet_alloc());
    std::vector<std::uint8_t> gathered;
    std::optional<AdtsConfiguration> found;
    std::uint32_t size = 0;
    std::int64_t origin = -1;
    Packets written;
    std::uint64_t bytes = 0;
    const std::size_t offset = mp4FileHead(0).size();
    job.file.append(mp4FileHead(0));
    packets->seek(first);
    while (packets->next(*packet) && packet->pts < last) {
        const AdtsConfiguration own(packet->data);
        if (packet->duration != 1 || packet->size <= own.headerBytes || own.channels == 0 ||
            (found && own.config != found->config)) {
            return failure(QStringLiteral("This kind of AAC cannot be put into an M4A file as it is."));
        }
        found = own;
        origin = origin < 0 ? packet->pts * kAacPacketFrames : origin;
        if (gathered.size() >= kGatheredBytes) {
            job.file.append(gathered);
            gathered.clear();
            job.control.setProgress(static_cast<double>(packet->pts - first) / static_cast<double>(last - first));
            if (job.control.isCancelled() || !job.file.result()) {
                break;
            }
        }
        size = static_cast<std::uint32_t>(packet->size - own.headerBytes);
        gathered.insert(gathered.end(), packet->data + own.headerBytes, packet->data + packet->size);
        written.add(size, kAacPacketFrames);
        bytes += size;
    }
    if (!found) {
        return damaged();
    }
    if (written.duration <= start / kAacPacketFrames * kAacPacketFrames - origin + kAacPacketFrames) {
        const std::vector<std::uint8_t> again(gathered.end() - size, gathered.end());
        gathered.insert(gathered.end(), again.begin(), again.end());
        written.add(size, kAacPacketFrames);
        bytes += size;
    }
    job.file.append(gathered);
    if (written.duration < end - origin && job.file.result() && !job.control.isCancelled()) {
        return failure(QStringLiteral("The sound file became shorter while it was read."));
    }
    // The length of all packets was not known.
    job.file.overwrite(mp4FileHead(bytes), 0);
    written.endAt(end - origin);
    const auto description = mp4AacDescription(found->config, found->channels, static_cast<std::uint32_t>(rate));
    return appendMovie(job, written, offset,
                       {static_cast<std::uint32_t>(rate), description, {}, start - origin, end - start});
}

Result<void> exportPackets(const ExportJob& job) {
    for (const auto& way : {exportWavPackets, exportCafPackets, exportMp4Packets, exportAdtsPackets}) {
        const Result<bool> isDone = way(job);
        if (!isDone || *isDone) {
            return isDone ? Result<void>() : tl::unexpected(isDone.error());
        }
    }
    return exportAnyPackets(job);
}

}  // namespace tavi
