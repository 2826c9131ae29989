#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "adapters/ffmpeg/ChannelMixer.h"
#include "adapters/ffmpeg/PcmSamples.h"
#include "adapters/ffmpeg/PositionedIo.h"
#include "adapters/ffmpeg/RateConverter.h"
#include "adapters/ffmpeg/SoundSource.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// A sound file through whichever source reads its kind the fastest, brought into the client's format: channels first
/// where they become fewer, then the rate, then channels where they become more, and last the samples' type.
class FfmpegExtAudioFile : public ExtAudioFile {
public:
    /// information is the same file, for what it says about itself.
    FfmpegExtAudioFile(std::unique_ptr<SoundSource> source, FileDescriptor information);

    AudioStatus fileDataFormat(AudioStreamBasicDescription& format) const override;
    AudioStatus fileLengthFrames(std::int64_t& frames) const override;
    AudioStatus fileMaxPacketSize(std::uint32_t& bytes) const override;
    AudioStatus infoDictionary(AudioFileInfo& info) const override;
    bool isRandomAccess() const override { return m_source->isRandomAccess(); }
    AudioStatus setClientDataFormat(const AudioStreamBasicDescription& format) override;
    AudioStatus read(std::uint32_t& frames, AudioBufferList& data) override;
    AudioStatus seek(std::int64_t frame) override;
    AudioStatus tell(std::int64_t& frame) const override;

private:
    /// Planes of floats for one chunk.
    class Planes {
    public:
        void resize(int channels, std::size_t frames);
        float* const* data() { return m_planes.data(); }

    private:
        std::vector<float> m_samples;
        std::vector<float*> m_planes;
    };

    bool isClientPlanar() const { return (m_client.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0; }
    /// Up to that many client frames, 0 at the end only. One plane a client channel.
    std::size_t readClient(float* const* planes, std::size_t frames);
    /// The same at the rate of the client, in as many channels as are resampled.
    std::size_t readNarrow(float* const* planes, std::size_t frames);
    /// The same at the rate of the file.
    std::size_t readSource(float* const* planes, std::size_t frames);

    std::unique_ptr<SoundSource> m_source;
    FileDescriptor m_information;
    AudioStreamBasicDescription m_client;
    std::optional<PcmEncoding> m_encoding;
    /// From the file's channels to the fewer of both, and from these to the client's.
    std::optional<ChannelMixer> m_narrow;
    std::optional<ChannelMixer> m_widen;
    std::optional<RateConverter> m_rate;
    int m_narrowChannels = 0;
    bool m_isFinished = false;
    Planes m_sourcePlanes;
    Planes m_narrowPlanes;
    Planes m_clientPlanes;
    /// In file frames where the rates agree, otherwise in client frames.
    std::int64_t m_position = 0;
    /// The frame that was sought, until something is read.
    std::optional<std::int64_t> m_sought;
};

}  // namespace tavi
