#include "adapters/ffmpeg/FfmpegAssetReader.h"

#include "adapters/ffmpeg/FfmpegExtAudioFiles.h"

namespace tavi {

namespace {

/// Little enough to stay in the processor's cache.
constexpr std::uint32_t kPieceFrames = 8192;
constexpr std::uint32_t kMaximumChannels = 8;

}  // namespace

bool FfmpegAssetReader::fail(const QString& text) {
    m_status = AssetReaderStatus::Failed;
    m_error = {text};
    m_file.reset();
    return false;
}

bool FfmpegAssetReader::startReading() {
    if (m_status != AssetReaderStatus::Unknown) {
        return false;
    }
    AudioStreamBasicDescription format;
    if (FfmpegExtAudioFiles().open(m_asset.path.toStdString(), m_file) != kAudioNoError ||
        m_file->fileDataFormat(format) != kAudioNoError) {
        return fail(QStringLiteral("The sound file could not be read."));
    }
    m_channels = format.channelsPerFrame;
    AudioStreamBasicDescription client;
    client.sampleRate = format.sampleRate;
    client.formatID = kAudioFormatLinearPCM;
    client.formatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    client.channelsPerFrame = m_channels;
    client.bitsPerChannel = 16;
    client.framesPerPacket = 1;
    client.bytesPerFrame = client.bytesPerPacket = 2 * m_channels;
    if (m_channels > kMaximumChannels || m_file->setClientDataFormat(client) != kAudioNoError) {
        return fail(QStringLiteral("The sound file has too many channels."));
    }
    m_samples.resize(std::size_t{kPieceFrames} * m_channels);
    m_status = AssetReaderStatus::Reading;
    return true;
}

std::optional<SampleBuffer> FfmpegAssetReader::copyNextSampleBuffer() {
    if (m_status != AssetReaderStatus::Reading) {
        return std::nullopt;
    }
    std::uint32_t frames = kPieceFrames;
    AudioBufferList list{1, {{m_channels, frames * 2 * m_channels, m_samples.data()}}};
    if (m_file->read(frames, list) != kAudioNoError) {
        fail(QStringLiteral("The sound file could not be read."));
        return std::nullopt;
    }
    if (frames == 0) {
        m_status = AssetReaderStatus::Completed;
        m_file.reset();
        return std::nullopt;
    }
    const std::int32_t timescale = m_asset.duration.timescale;
    const AssetTime start{m_position, timescale};
    m_position += frames;
    return SampleBuffer{std::span<const std::int16_t>(m_samples).first(std::size_t{frames} * m_channels),
                        m_channels,
                        start,
                        {frames, timescale}};
}

void FfmpegAssetReader::cancelReading() {
    if (m_status == AssetReaderStatus::Reading) {
        m_status = AssetReaderStatus::Cancelled;
        m_file.reset();
    }
}

}  // namespace tavi
