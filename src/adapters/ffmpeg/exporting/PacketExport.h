#pragma once

#include <filesystem>

#include "adapters/ffmpeg/exporting/ExportFile.h"
#include "platform/AssetExportSession.h"

namespace tavi {

/// What an export is made of. Positions are frames that are meant to be heard, at the asset's rate.
struct ExportJob {
    /// The source, open for reading.
    int source = -1;
    std::filesystem::path sourcePath;
    AssetFileType type = AssetFileType::AppleM4A;
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int32_t rate = 0;
    float volume = 1.0F;
    ExportControl& control;
    ExportFile& file;
};

/// Copies the packets of a stretch; nothing is encoded again.
///
/// - WAV of linear PCM to WAVE: to the frame; RF64 (EBU Tech 3306) from 4 GiB on.
/// - CAF of linear PCM to CAF: to the frame.
/// - CAF of IMA4 to CAF: to the frame by its packet table. Players that leave it aside play whole packets of 64 frames.
/// - MP4 of AAC or Apple Lossless to M4A: to the frame by an edit list, in the media's own time scale.
/// - ADTS of AAC to M4A: the same.
/// - What libavformat reads to what it writes: by an edit list in M4A; elsewhere from the packet before the start on.
///
/// In the last case Vorbis in M4A starts with the packet after the start, as FFmpeg plays no part of its packets.
///
/// AAC gets two packets before the start that are decoded but not heard. Everything but the last is copied in large
/// blocks.
Result<void> exportPackets(const ExportJob& job);

/// The ways of single containers. False when the source is not theirs, or does not fit the container that is asked for.
Result<bool> exportWavPackets(const ExportJob& job);
Result<bool> exportCafPackets(const ExportJob& job);
Result<bool> exportMp4Packets(const ExportJob& job);
Result<bool> exportAdtsPackets(const ExportJob& job);
/// Through libavformat.
Result<void> exportAnyPackets(const ExportJob& job);

/// What the ways have in common: that the source is no good, that it is no longer what it was, and the end.
tl::unexpected<Error> damagedSource();
tl::unexpected<Error> shortenedSource();
Result<bool> exportDone(const ExportJob& job);

}  // namespace tavi
