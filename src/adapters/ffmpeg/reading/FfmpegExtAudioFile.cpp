#include "adapters/ffmpeg/reading/FfmpegExtAudioFile.h"

#include <algorithm>
#include <utility>

#include "adapters/ffmpeg/reading/AvFile.h"

namespace tavi {

FfmpegExtAudioFile::FfmpegExtAudioFile(std::unique_ptr<SoundSource> source, FileDescriptor information)
    : m_source(std::move(source)),
      m_information(std::move(information)),
      m_read([this](float* const* planes, std::size_t frames) { return m_source->read(planes, frames); }) {}

AudioStatus FfmpegExtAudioFile::fileDataFormat(AudioStreamBasicDescription& format) const {
    format = m_source->format();
    return kAudioNoError;
}

AudioStatus FfmpegExtAudioFile::fileLengthFrames(std::int64_t& frames) const {
    frames = m_source->length();
    return kAudioNoError;
}

AudioStatus FfmpegExtAudioFile::fileMaxPacketSize(std::uint32_t& bytes) const {
    bytes = m_source->maxPacketSize();
    return kAudioNoError;
}

AudioStatus FfmpegExtAudioFile::infoDictionary(AudioFileInfo& info) const {
    std::unique_ptr<AvFile> file;
    const AudioStatus status = AvFile::open(m_information.get(), file);
    if (status == kAudioNoError) {
        info = file->info();
    }
    return status;
}

AudioStatus FfmpegExtAudioFile::setClientDataFormat(const AudioStreamBasicDescription& format) {
    const auto encoding = PcmEncoding::of(format);
    const bool isSupported =
        encoding && !encoding->isBigEndian &&
        (encoding->kind == PcmEncoding::Kind::Float32 || encoding->kind == PcmEncoding::Kind::Signed16);
    const AudioStreamBasicDescription& own = m_source->format();
    auto converter = isSupported ? FormatConverter::create(static_cast<int>(own.channelsPerFrame),
                                                           m_source->channelMask(), own.sampleRate, format)
                                 : std::nullopt;
    if (!converter) {
        return kAudioFileUnsupportedDataFormatError;
    }
    m_isDirect = m_source->has16Bits() && encoding->kind == PcmEncoding::Kind::Signed16 &&
                 (format.formatFlags & kAudioFormatFlagIsNonInterleaved) == 0 && format.sampleRate == own.sampleRate &&
                 format.channelsPerFrame == own.channelsPerFrame;
    std::int64_t frame = 0;
    tell(frame);
    m_converter = std::move(converter);
    return seek(frame);
}

AudioStatus FfmpegExtAudioFile::read(std::uint32_t& frames, AudioBufferList& data) {
    const std::uint32_t wanted = std::exchange(frames, 0);
    if (!m_converter || !FormatConverter::fits(data, m_converter->client())) {
        return kAudioParameterError;
    }
    frames = static_cast<std::uint32_t>(m_isDirect ? readDirectly(data.buffers[0], wanted)
                                                   : m_converter->read(m_read, data, wanted));
    m_position += frames;
    if (frames > 0) {
        m_sought.reset();
    }
    return kAudioNoError;
}

std::size_t FfmpegExtAudioFile::readDirectly(AudioBuffer& buffer, std::size_t frames) {
    auto* samples = static_cast<std::int16_t*>(buffer.data);
    std::size_t done = 0;
    for (std::size_t count = 1; done < frames && count > 0; done += count) {
        count = m_source->read16(samples + done * m_source->format().channelsPerFrame, frames - done);
    }
    buffer.dataByteSize = static_cast<std::uint32_t>(done * m_converter->client().bytesPerFrame);
    return done;
}

AudioStatus FfmpegExtAudioFile::seek(std::int64_t frame) {
    if (frame < 0) {
        return kAudioParameterError;
    }
    frame = std::min(frame, m_source->length());
    m_sought = frame;
    m_position = m_converter ? m_converter->outputFrameFor(frame) : frame;
    m_source->seek(m_converter ? std::min(m_converter->startAt(m_position), m_source->length()) : frame);
    return kAudioNoError;
}

AudioStatus FfmpegExtAudioFile::tell(std::int64_t& frame) const {
    if (m_sought || !m_converter) {
        frame = m_sought.value_or(0);
    } else {
        frame = std::min(m_converter->inputFrameFor(m_position), m_source->length());
    }
    return kAudioNoError;
}

}  // namespace tavi
