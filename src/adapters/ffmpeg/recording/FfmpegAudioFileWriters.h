#pragma once

#include <filesystem>

#include "files/PositionedIo.h"
#include "platform/AudioFileWriter.h"

namespace tavi {

/// Makes writers that encode with the FFmpeg libraries; RecordingFormat.h tells into what.
///
/// A recording can be as long as the disk allows and takes no more memory for it. At any moment the file can be read up
/// to about a second before its end, so that a killed program loses no more than that. When the disk is full the sound
/// that did not fit is stored in a reserve, write() reports it, and finish() completes the file in what is left of the
/// reserve.
class FfmpegAudioFileWriters : public AudioFileWriters {
public:
    /// The function that the files are written with.
    explicit FfmpegAudioFileWriters(PwriteFunction pwrite = systemPwrite()) : m_pwrite(std::move(pwrite)) {}

    /// Creates the file, the encoder and what stands before the first sound.
    Result<std::unique_ptr<AudioFileWriter>> create(const std::filesystem::path& path,
                                                    const AudioRecordSettings& settings) override;

private:
    PwriteFunction m_pwrite;
};

}  // namespace tavi
