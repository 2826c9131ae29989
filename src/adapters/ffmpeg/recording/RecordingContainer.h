#pragma once

#include <memory>

#include "adapters/ffmpeg/AvHandles.h"
#include "adapters/ffmpeg/recording/RecordingFile.h"
#include "adapters/ffmpeg/recording/RecordingFormat.h"

namespace tavi {

/// The container that packets are put into, in the file that a recording grows into. One thread at a time.
class RecordingContainer {
public:
    /// Writes what stands before the first sound. The file and the encoder are borrowed.
    static Result<std::unique_ptr<RecordingContainer>> create(RecordingFile& file, const RecordingFormat& format,
                                                              const AVCodecContext& encoder);
    RecordingContainer(const RecordingContainer&) = delete;
    RecordingContainer& operator=(const RecordingContainer&) = delete;

    /// Takes over a packet, which reaches the file with the next flush, or within a second. FFmpeg's code of what
    /// failed, or 0.
    int store(AVPacket& packet);
    /// Hands all packets to the file, as a fragment where the container has such.
    void flush();
    /// Writes what is held back, and the headers that were not known before; of a file that has lost bytes for what is
    /// there.
    void close();

private:
    RecordingContainer(RecordingFile& file, const RecordingFormat& format, const AVCodecContext& encoder)
        : m_file(file), m_format(format), m_encoder(encoder) {}

    Result<void> open();
    /// Hands what libavformat holds back to the file.
    void writeOut();

    RecordingFile& m_file;
    RecordingFormat m_format;
    const AVCodecContext& m_encoder;
    AvIo m_io;
    AvOutput m_output;
    /// Bytes before the sound.
    std::int64_t m_dataOffset = 0;
    /// The presentation times up to which packets have come, and up to which they are in the file.
    std::int64_t m_storedUntil = 0;
    std::int64_t m_flushedUntil = 0;
    bool m_hasFragments = false;
};

}  // namespace tavi
