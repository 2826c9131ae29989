#include "adapters/ffmpeg/exporting/PacketExport.h"
#include "files/PositionedIo.h"
#include "sound/wav/WavHeader.h"
#include "sound/wav/WavWriter.h"

namespace tavi {

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
        return damagedSource();
    }
    job.file.append(wavHeader(format, static_cast<std::uint64_t>(bytes + padding * header->frameBytes),
                              static_cast<std::uint64_t>(frames + padding)));
    job.file.setControl(job.control, bytes);
    job.file.copy(job.source, from, bytes);
    if (padding > 0) {
        job.file.copy(job.source, from + bytes - header->frameBytes, header->frameBytes);
    }
    return exportDone(job);
}

}  // namespace tavi
