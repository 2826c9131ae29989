#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "adapters/ffmpeg/AvHandles.h"
#include "adapters/ffmpeg/converting/SampleConverter.h"
#include "adapters/ffmpeg/recording/RecordingFile.h"
#include "adapters/ffmpeg/recording/RecordingFormat.h"
#include "platform/AudioFileWriter.h"

namespace tavi {

/// Converts, encodes and packs sound into one file. One thread at a time.
///
/// Without finish() the file is closed as it is: readable, but without its last second and without final headers.
class FfmpegAudioFileWriter : public AudioFileWriter {
public:
    /// Opens the encoder and writes the headers into the file.
    static Result<std::unique_ptr<AudioFileWriter>> create(std::unique_ptr<RecordingFile> file,
                                                           const RecordingFormat& format);
    ~FfmpegAudioFileWriter() override = default;
    FfmpegAudioFileWriter(const FfmpegAudioFileWriter&) = delete;
    FfmpegAudioFileWriter& operator=(const FfmpegAudioFileWriter&) = delete;

    Result<void> setInputFormat(const AudioInputFormat& format) override;
    Result<void> write(const float* interleaved, std::size_t frames) override;
    Result<void> finish() override;

private:
    FfmpegAudioFileWriter(std::unique_ptr<RecordingFile> file, const RecordingFormat& format);

    Result<void> openEncoder();
    Result<void> openContainer();
    /// Where the next converted frames go, and how many fit.
    int room(std::uint8_t** planes) const;
    Result<void> take(int frames);
    Result<void> encodeFrame(const AVFrame* frame);
    /// FFmpeg's code of what failed, or 0.
    int storePacket();
    /// Hands what the container holds back to the file.
    void flushContainer();
    /// Encodes what the converter and the encoder hold back.
    Result<void> drain();
    void closeContainer();
    Result<void> fail(const Error& error);

    // The file outlives the container that writes into it.
    std::unique_ptr<RecordingFile> m_file;
    RecordingFormat m_format;
    AvIo m_io;
    AvOutput m_container;
    AvCodec m_encoder;
    AvFrame m_frame;
    AvPacket m_packet;
    std::optional<SampleConverter> m_converter;
    int m_channelsIn = 0;
    /// Frames that one encoder frame takes, and how many of them are there.
    int m_frameSize = 0;
    int m_filled = 0;
    /// Frames given to the encoder, and the presentation time up to which the container was flushed.
    std::int64_t m_framesEncoded = 0;
    std::int64_t m_flushedUntil = 0;
    /// Bytes before the sound.
    std::int64_t m_dataOffset = 0;
    bool m_hasFragments = false;
    bool m_finished = false;
    std::optional<Error> m_failure;
};

}  // namespace tavi
