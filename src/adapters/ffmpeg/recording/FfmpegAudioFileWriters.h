#pragma once

#include <filesystem>

#include "files/PositionedIo.h"
#include "platform/AudioFileWriter.h"

namespace tavi {

/// Makes writers that encode with the FFmpeg libraries; RecordingFormat.h tells into what.
///
/// A recording can be as long as the disk allows and takes no more memory for it. At any moment the file can be read up
/// to its last flush, so that a killed program loses no more than what came after it. When the disk is full the sound
/// that did not fit is stored in a reserve, write() reports it, and finish() completes the file in what is left of the
/// reserve.
class FfmpegAudioFileWriters : public AudioFileWriters {
public:
    /// The functions that the files are written with, and brought to the disk while they grow.
    explicit FfmpegAudioFileWriters(PwriteFunction pwrite = systemPwrite(), SyncFunction sync = systemSync())
        : m_pwrite(std::move(pwrite)), m_sync(std::move(sync)) {}

    /// Creates the file, the encoder and what stands before the first sound.
    Result<std::unique_ptr<AudioFileWriter>> create(const std::filesystem::path& path,
                                                    const AudioRecordSettings& settings) override;

private:
    PwriteFunction m_pwrite;
    SyncFunction m_sync;
};

}  // namespace tavi
