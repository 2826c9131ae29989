#include "adapters/ffmpeg/exporting/PacketExport.h"

namespace tavi {

tl::unexpected<Error> damagedSource() {
    return failure(QStringLiteral("The sound file is damaged."));
}

tl::unexpected<Error> shortenedSource() {
    return failure(QStringLiteral("The sound file became shorter while it was read."));
}

Result<bool> exportDone(const ExportJob& job) {
    job.file.flush();
    const Result<void> result = job.file.result();
    return result ? Result<bool>(true) : tl::unexpected(result.error());
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
