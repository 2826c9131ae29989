#include "adapters/ffmpeg/converting/FormatConverter.h"

#include <algorithm>
#include <cmath>

#include "adapters/ffmpeg/converting/ChannelMatrix.h"
#include "sound/io/SampleRate.h"

namespace tavi {

namespace {

/// Small enough to stay in the processor's nearest memory on its way through the steps.
constexpr std::size_t kChunkFrames = 2048;
constexpr std::uint32_t kMaximumClientChannels = 8;

bool isPlanar(const AudioStreamBasicDescription& format) {
    return (format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
}

bool isWholeRate(double rate) {
    return isSampleRate(rate) && rate == std::floor(rate);
}

}  // namespace

void FormatConverter::Planes::resize(int channels, std::size_t frames) {
    m_samples.resize(static_cast<std::size_t>(channels) * frames);
    m_planes.clear();
    for (std::size_t i = 0; i < static_cast<std::size_t>(channels); ++i) {
        m_planes.push_back(m_samples.data() + i * frames);
    }
}

std::optional<FormatConverter> FormatConverter::create(int channels, std::uint64_t channelMask, double rate,
                                                       const AudioStreamBasicDescription& client) {
    const auto encoding = PcmEncoding::of(client);
    const bool isRateKept = client.sampleRate == rate && rate >= 1;
    if (!encoding || client.channelsPerFrame < 1 || client.channelsPerFrame > kMaximumClientChannels || channels < 1 ||
        channels > kMaximumMixChannels || !(isRateKept || (isWholeRate(rate) && isWholeRate(client.sampleRate)))) {
        return std::nullopt;
    }
    FormatConverter converter;
    const int clientChannels = static_cast<int>(client.channelsPerFrame);
    if (!isRateKept || channels != clientChannels) {
        converter.m_stream = StreamConverter::create({static_cast<int>(rate), channels, channelMask},
                                                     {static_cast<int>(client.sampleRate), clientChannels});
        if (!converter.m_stream) {
            return std::nullopt;
        }
    }
    converter.m_client = client;
    converter.m_encoding = *encoding;
    converter.m_inputPlanes.resize(channels, kChunkFrames);
    converter.m_clientPlanes.resize(clientChannels, kChunkFrames);
    return converter;
}

bool FormatConverter::fits(const AudioBufferList& data, const AudioStreamBasicDescription& format) {
    return data.numberBuffers == (isPlanar(format) ? format.channelsPerFrame : 1);
}

std::int64_t FormatConverter::outputFrameFor(std::int64_t inputFrame) const {
    return m_stream ? m_stream->outputFrames(inputFrame) : inputFrame;
}

std::int64_t FormatConverter::inputFrameFor(std::int64_t outputFrame) const {
    return m_stream ? m_stream->inputFrameFor(outputFrame) : outputFrame;
}

std::int64_t FormatConverter::startAt(std::int64_t outputFrame) {
    m_isFinished = false;
    return m_stream ? m_stream->startAt(outputFrame) : outputFrame;
}

std::size_t FormatConverter::read(const Source& source, AudioBufferList& data, std::size_t frames) {
    const bool isDirect = isPlanar(m_client) && m_encoding == PcmEncoding{PcmEncoding::Kind::Float32, false};
    const std::size_t stride = isPlanar(m_client) ? 1 : m_client.channelsPerFrame;
    std::size_t done = 0;
    while (done < frames) {
        std::array<float*, kMaximumClientChannels> planes{};
        for (std::uint32_t i = 0; i < m_client.channelsPerFrame; ++i) {
            planes[i] = isDirect ? static_cast<float*>(data.buffers[i].data) + done : m_clientPlanes.data()[i];
        }
        const std::size_t count = readPlanes(source, planes.data(), std::min(kChunkFrames, frames - done));
        if (count == 0) {
            break;
        }
        for (std::uint32_t i = 0; !isDirect && i < m_client.channelsPerFrame; ++i) {
            const AudioBuffer& buffer = data.buffers[isPlanar(m_client) ? i : 0];
            auto* to = static_cast<std::uint8_t*>(buffer.data) + done * m_client.bytesPerFrame;
            packPcm(m_encoding, planes[i], to + (isPlanar(m_client) ? 0 : i * m_encoding.bytes()), stride, count);
        }
        done += count;
    }
    for (std::uint32_t i = 0; i < data.numberBuffers; ++i) {
        data.buffers[i].dataByteSize = static_cast<std::uint32_t>(done * m_client.bytesPerFrame);
    }
    return done;
}

std::size_t FormatConverter::readPlanes(const Source& source, float* const* planes, std::size_t frames) {
    if (!m_stream) {
        return source(planes, frames);
    }
    for (;;) {
        const std::size_t count = m_stream->read(planes, frames);
        if (count > 0 || m_isFinished) {
            return count;
        }
        const std::size_t taken = source(m_inputPlanes.data(), kChunkFrames);
        if (taken > 0) {
            m_stream->write(m_inputPlanes.data(), taken);
        } else {
            m_isFinished = true;
            m_stream->finish();
        }
    }
}

}  // namespace tavi
