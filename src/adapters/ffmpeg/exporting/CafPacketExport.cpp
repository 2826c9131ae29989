#include "adapters/ffmpeg/exporting/PacketExport.h"
#include "files/PathText.h"
#include "sound/caf/CafHeader.h"
#include "sound/caf/CafWriter.h"
#include "sound/caf/Ima4Cut.h"

namespace tavi {

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
    return exportDone(job);
}

}  // namespace tavi
