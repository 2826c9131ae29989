#pragma once

#include "adapters/ffmpeg/AvHandles.h"
#include "adapters/ffmpeg/recording/RecordingContainer.h"
#include "adapters/ffmpeg/recording/RecordingFormat.h"

namespace tavi {

/// Gathers sound in frames of the size that a codec wants, and encodes them. One thread at a time.
class RecordingEncoder {
public:
    static Result<RecordingEncoder> create(const RecordingFormat& format);

    const AVCodecContext& context() const { return *m_context; }
    /// The most frames that it holds back. AAC: a packet that is not full, one that the encoder looks ahead to, and one
    /// that a decoder gives back only with the next.
    int framesHeld() const { return m_format.codec == AV_CODEC_ID_AAC ? 3 * m_frameSize : m_frameSize; }
    /// How many frames have been taken.
    std::int64_t frames() const { return m_encoded + m_filled; }
    /// Where the next of them go, one pointer a plane, and how many fit.
    int room(std::uint8_t** planes) const;
    /// Silences the next of them.
    void silence(int frames);
    /// So many have been put there. What a frame of the codec holds goes into the container.
    Result<void> take(int frames, RecordingContainer& container);
    /// Encodes what is held back, where the codec has packets of any length: but for a last odd frame.
    Result<void> encodeShort(RecordingContainer& container);
    /// Encodes what is held back.
    Result<void> finish(RecordingContainer& container);

private:
    explicit RecordingEncoder(const RecordingFormat& format)
        : m_format(format), m_frame(av_frame_alloc()), m_packet(av_packet_alloc()) {}

    Result<void> open();
    /// The rest, which is no whole frame.
    Result<void> encodeLast(RecordingContainer& container);
    /// What has been put into the frame.
    Result<void> encodeFilled(RecordingContainer& container);
    /// Null ends the sound.
    Result<void> encode(const AVFrame* frame, RecordingContainer& container);

    RecordingFormat m_format;
    AvCodec m_context;
    AvFrame m_frame;
    AvPacket m_packet;
    /// Frames that one of the codec's takes, and how many of them are there.
    int m_frameSize = 0;
    int m_filled = 0;
    /// Frames given to the codec.
    std::int64_t m_encoded = 0;
};

}  // namespace tavi
