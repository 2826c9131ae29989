#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "adapters/ffmpeg/converting/SampleConverter.h"
#include "adapters/ffmpeg/recording/RecordingContainer.h"
#include "adapters/ffmpeg/recording/RecordingEncoder.h"
#include "adapters/ffmpeg/recording/RecordingFile.h"
#include "adapters/ffmpeg/recording/RecordingFormat.h"
#include "platform/AudioFileWriter.h"

namespace tavi {

/// Converts, encodes and packs sound into one file. One thread at a time.
///
/// Without finish() the file is closed as it is: readable up to the last flush, but without final headers.
class FfmpegAudioFileWriter : public AudioFileWriter {
public:
    /// Opens the encoder and writes the headers into the file.
    static Result<std::unique_ptr<AudioFileWriter>> create(std::unique_ptr<RecordingFile> file,
                                                           const RecordingFormat& format);
    ~FfmpegAudioFileWriter() override = default;
    FfmpegAudioFileWriter(const FfmpegAudioFileWriter&) = delete;
    FfmpegAudioFileWriter& operator=(const FfmpegAudioFileWriter&) = delete;

    double secondsHeld() const override { return static_cast<double>(m_encoder.framesHeld()) / m_format.sampleRate; }
    Result<void> setInputFormat(const AudioInputFormat& format) override;
    Result<void> write(const float* interleaved, std::size_t frames) override;
    Result<void> flush() override;
    Result<void> pause() override;
    Result<void> sync() override;
    Result<void> finish() override;

private:
    FfmpegAudioFileWriter(std::unique_ptr<RecordingFile> file, const RecordingFormat& format, RecordingEncoder encoder);

    /// So many converted frames, or a code of FFmpeg's, have come.
    Result<void> take(int frames);
    /// What was written is in the file: brings it to the disk when that is due.
    Result<void> keep(bool isSyncDue);
    /// Encodes what the converter and the encoder hold back.
    Result<void> drain();
    Result<void> fail(const Error& error);

    // In the order in which they use each other.
    std::unique_ptr<RecordingFile> m_file;
    RecordingFormat m_format;
    RecordingEncoder m_encoder;
    std::unique_ptr<RecordingContainer> m_container;
    std::optional<SampleConverter> m_converter;
    int m_channelsIn = 0;
    bool m_finished = false;
    /// Encoded frames whose way to the disk has begun.
    std::int64_t m_framesSynced = 0;
    std::optional<Error> m_failure;
};

}  // namespace tavi
