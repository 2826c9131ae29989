#include "adapters/ffmpeg/FfmpegExtAudioFile.h"

#include <algorithm>
#include <cmath>

#include "adapters/ffmpeg/AvFile.h"

namespace tavi {

namespace {

/// Small enough to stay in the processor's nearest memory on its way through the steps.
constexpr std::size_t kChunkFrames = 2048;
constexpr std::uint32_t kMaximumClientChannels = 8;

}  // namespace

void FfmpegExtAudioFile::Planes::resize(int channels, std::size_t frames) {
    m_samples.resize(static_cast<std::size_t>(channels) * frames);
    m_planes.clear();
    for (std::size_t i = 0; i < static_cast<std::size_t>(channels); ++i) {
        m_planes.push_back(m_samples.data() + i * frames);
    }
}

FfmpegExtAudioFile::FfmpegExtAudioFile(std::unique_ptr<SoundSource> source, FileDescriptor information)
    : m_source(std::move(source)), m_information(std::move(information)) {}

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
        (encoding->kind == PcmEncoding::Kind::Float32 || encoding->kind == PcmEncoding::Kind::Signed16) &&
        format.channelsPerFrame >= 1 && format.channelsPerFrame <= kMaximumClientChannels && format.sampleRate >= 1 &&
        format.sampleRate <= 768000 && format.sampleRate == std::floor(format.sampleRate);
    if (!isSupported) {
        return kAudioFileUnsupportedDataFormatError;
    }
    const int channels = static_cast<int>(m_source->format().channelsPerFrame);
    const int clientChannels = static_cast<int>(format.channelsPerFrame);
    const double rate = m_source->format().sampleRate;
    std::optional<RateConverter> converter;
    if (format.sampleRate != rate) {
        converter = rate == std::floor(rate)
                        ? RateConverter::create(static_cast<int>(rate), static_cast<int>(format.sampleRate),
                                                std::min(channels, clientChannels))
                        : std::nullopt;
        if (!converter) {
            return kAudioFileUnsupportedDataFormatError;
        }
    }
    std::int64_t frame = 0;
    tell(frame);
    m_client = format;
    m_encoding = encoding;
    m_narrowChannels = std::min(channels, clientChannels);
    m_narrow.emplace(channels, m_source->channelMask(), m_narrowChannels);
    m_widen.emplace(m_narrowChannels, channels == m_narrowChannels ? m_source->channelMask() : 0, clientChannels);
    m_rate = std::move(converter);
    m_sourcePlanes.resize(channels, kChunkFrames);
    m_narrowPlanes.resize(m_narrowChannels, kChunkFrames);
    m_clientPlanes.resize(clientChannels, kChunkFrames);
    return seek(frame);
}

AudioStatus FfmpegExtAudioFile::read(std::uint32_t& frames, AudioBufferList& data) {
    const std::uint32_t wanted = std::exchange(frames, 0);
    const std::uint32_t buffers = isClientPlanar() ? m_client.channelsPerFrame : 1;
    if (!m_encoding || data.numberBuffers != buffers) {
        return kAudioParameterError;
    }
    const bool isDirect = isClientPlanar() && m_encoding->kind == PcmEncoding::Kind::Float32;
    const std::size_t frameBytes = m_client.bytesPerFrame;
    std::size_t done = 0;
    while (done < wanted) {
        std::array<float*, kMaximumClientChannels> planes{};
        for (std::uint32_t i = 0; i < m_client.channelsPerFrame; ++i) {
            planes[i] = isDirect ? static_cast<float*>(data.buffers[i].data) + done : m_clientPlanes.data()[i];
        }
        const std::size_t count = readClient(planes.data(), std::min(kChunkFrames, wanted - done));
        if (count == 0) {
            break;
        }
        for (std::uint32_t i = 0; !isDirect && i < m_client.channelsPerFrame; ++i) {
            auto* to = static_cast<std::uint8_t*>(data.buffers[isClientPlanar() ? i : 0].data) + done * frameBytes +
                       (isClientPlanar() ? 0 : i * m_encoding->bytes());
            packPcm(*m_encoding, planes[i], to, isClientPlanar() ? 1 : m_client.channelsPerFrame, count);
        }
        done += count;
    }
    if (done > 0) {
        m_sought.reset();
    }
    m_position += static_cast<std::int64_t>(done);
    frames = static_cast<std::uint32_t>(done);
    for (std::uint32_t i = 0; i < buffers; ++i) {
        data.buffers[i].dataByteSize = static_cast<std::uint32_t>(done * frameBytes);
    }
    return kAudioNoError;
}

std::size_t FfmpegExtAudioFile::readClient(float* const* planes, std::size_t frames) {
    // Channels that are only copied need no plane of their own.
    const bool isInPlace = m_widen->isIdentity() || m_widen->isCopy();
    const std::size_t count = readNarrow(isInPlace ? planes : m_narrowPlanes.data(), frames);
    if (m_widen->isIdentity()) {
        return count;
    }
    if (isInPlace) {
        for (std::uint32_t i = 1; i < m_client.channelsPerFrame; ++i) {
            std::copy_n(planes[0], count, planes[i]);
        }
    } else {
        m_widen->mix(m_narrowPlanes.data(), planes, count);
    }
    return count;
}

std::size_t FfmpegExtAudioFile::readNarrow(float* const* planes, std::size_t frames) {
    if (!m_rate) {
        return readSource(planes, frames);
    }
    for (;;) {
        const std::size_t count = m_rate->read(planes, frames);
        if (count > 0) {
            return count;
        }
        const std::size_t taken = readSource(planes, frames);
        if (taken > 0) {
            m_rate->write(planes, taken);
        } else if (!m_isFinished) {
            m_isFinished = true;
            m_rate->finish();
        } else {
            return 0;
        }
    }
}

std::size_t FfmpegExtAudioFile::readSource(float* const* planes, std::size_t frames) {
    if (m_narrow->isIdentity()) {
        return m_source->read(planes, frames);
    }
    const std::size_t count = m_source->read(m_sourcePlanes.data(), frames);
    m_narrow->mix(m_sourcePlanes.data(), planes, count);
    return count;
}

AudioStatus FfmpegExtAudioFile::seek(std::int64_t frame) {
    if (frame < 0) {
        return kAudioParameterError;
    }
    frame = std::min(frame, m_source->length());
    m_sought = frame;
    m_isFinished = false;
    if (m_rate) {
        m_position = m_rate->outputFrameFor(frame);
        m_source->seek(m_rate->startAt(m_position));
    } else {
        m_position = frame;
        m_source->seek(frame);
    }
    return kAudioNoError;
}

AudioStatus FfmpegExtAudioFile::tell(std::int64_t& frame) const {
    if (m_sought) {
        frame = *m_sought;
    } else {
        frame = m_rate ? std::min(m_rate->inputFrameFor(m_position), m_source->length()) : m_position;
    }
    return kAudioNoError;
}

}  // namespace tavi
