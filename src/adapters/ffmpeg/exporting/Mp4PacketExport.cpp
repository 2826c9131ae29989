extern "C" {
#include <libavutil/mathematics.h>
}

#include "adapters/ffmpeg/exporting/M4aPackets.h"
#include "files/PositionedIo.h"
#include "sound/mp4/Mp4Sound.h"

namespace tavi {

namespace {

/// The packets of a stretch, and when the first and the last of them begin and all of them end.
struct Stretch {
    std::vector<Mp4Packet> packets;
    std::int64_t bytes = 0;
    std::int64_t begin = 0;
    std::int64_t last = -1;
    std::int64_t end = 0;
};

/// Nothing where the tables cannot be followed.
std::optional<Stretch> findStretch(const Mp4Sound& sound, std::int64_t size, std::int64_t start, std::int64_t end,
                                   std::uint64_t preroll) {
    Stretch found;
    const bool isUnderstood = sound.forEachPacket(start, preroll, [&](std::int64_t begin, const Mp4Packet& packet) {
        // Packets that share bytes could make a small file a large one.
        const bool isThere = packet.size > 0 && packet.offset <= size && packet.size <= size - packet.offset &&
                             found.bytes + packet.size <= size;
        if (!isThere || (begin >= end && found.last > start)) {
            return false;
        }
        if (found.packets.empty()) {
            found.begin = found.end = begin;
        }
        found.packets.push_back(packet);
        found.bytes += packet.size;
        found.last = begin;
        found.end += packet.duration;
        return true;
    });
    return isUnderstood ? std::optional(std::move(found)) : std::nullopt;
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
    auto found = findStretch(*sound, regularFileSize(job.source), start, end, isAac ? kAacPreroll : 0);
    if (!found && sound->isFragmented()) {
        return false;
    }
    if (!found || found->packets.empty() || found->end < end) {
        return damagedSource();
    }
    if (found->last <= start) {
        found->packets.push_back(found->packets.back());
        found->bytes += found->packets.back().size;
    }
    M4aPackets written(job);
    job.file.setControl(job.control, found->bytes);
    for (const Mp4Packet& packet : found->packets) {
        written.add(packet.size, packet.duration);
        job.file.copy(job.source, packet.offset, packet.size);
        if (!job.file.result()) {
            break;
        }
    }
    return written.finish({sound->timeScale(), sound->description().box(), sound->movie().readUserData(job.source),
                           start - found->begin, end - found->begin});
}

}  // namespace tavi
