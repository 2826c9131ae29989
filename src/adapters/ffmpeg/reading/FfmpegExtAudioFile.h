#pragma once

#include <memory>
#include <optional>

#include "adapters/ffmpeg/converting/FormatConverter.h"
#include "files/FileDescriptor.h"
#include "platform/ExtAudioFile.h"
#include "sound/io/SoundSource.h"

namespace tavi {

/// A sound file through whichever source reads its kind the fastest, brought into the client's format.
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
    /// Fills the buffer with the source's own 16-bit samples; how many frames came.
    std::size_t readDirectly(AudioBuffer& buffer, std::size_t frames);

    std::unique_ptr<SoundSource> m_source;
    FileDescriptor m_information;
    FormatConverter::Source m_read;
    std::optional<FormatConverter> m_converter;
    /// The client wants the samples as the source has them.
    bool m_isDirect = false;
    /// In client frames.
    std::int64_t m_position = 0;
    /// The frame that was sought, until something is read.
    std::optional<std::int64_t> m_sought;
};

}  // namespace tavi
