#include "adapters/ffmpeg/reading/FfmpegAssetReader.h"

#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"

namespace tavi {

namespace {

constexpr std::uint32_t kMaximumChannels = 8;
/// Few enough to stay in the processor's cache.
constexpr std::size_t kPieceFrames = 16384;
constexpr std::int64_t kStretchFrames = std::int64_t{1} << 18;
/// Shorter files are not worth a second decoder.
constexpr double kSharedSeconds = 60;

/// Packed 16-bit samples of as many channels and of the rate that a file has.
AudioStreamBasicDescription clientFormat(const AudioStreamBasicDescription& own) {
    AudioStreamBasicDescription client;
    client.sampleRate = own.sampleRate;
    client.formatID = kAudioFormatLinearPCM;
    client.formatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    client.channelsPerFrame = own.channelsPerFrame;
    client.bitsPerChannel = 16;
    client.framesPerPacket = 1;
    client.bytesPerFrame = client.bytesPerPacket = 2 * own.channelsPerFrame;
    return client;
}

/// Makes the samples as many as there are of so many frames.
void read(ExtAudioFile& file, std::uint32_t channels, std::size_t frames, std::vector<std::int16_t>& samples) {
    samples.resize(frames * channels);
    auto count = static_cast<std::uint32_t>(frames);
    AudioBufferList list{1, {{channels, static_cast<std::uint32_t>(samples.size() * 2), samples.data()}}};
    samples.resize(file.read(count, list) == kAudioNoError ? std::size_t{count} * channels : 0);
}

}  // namespace

bool FfmpegAssetReader::open(Decoder& decoder) {
    AudioStreamBasicDescription format;
    if (FfmpegExtAudioFiles().open(m_asset.path, decoder.file) != kAudioNoError ||
        decoder.file->fileDataFormat(format) != kAudioNoError || format.channelsPerFrame > kMaximumChannels ||
        decoder.file->setClientDataFormat(clientFormat(format)) != kAudioNoError) {
        return false;
    }
    m_channels = format.channelsPerFrame;
    return true;
}

bool FfmpegAssetReader::startReading() {
    if (m_status != AssetReaderStatus::Unknown) {
        return false;
    }
    m_decoders.resize(1);
    if (!open(m_decoders[0])) {
        m_decoders.clear();
        m_status = AssetReaderStatus::Failed;
        m_error = {QStringLiteral("The sound file could not be read.")};
        return false;
    }
    m_status = AssetReaderStatus::Reading;
    AudioStreamBasicDescription format;
    std::int64_t frames = 0;
    const ExtAudioFile& file = *m_decoders[0].file;
    file.fileDataFormat(format);
    Decoder second;
    if (format.formatID != kAudioFormatLinearPCM && file.isRandomAccess() &&
        file.fileLengthFrames(frames) == kAudioNoError &&
        static_cast<double>(frames) > kSharedSeconds * format.sampleRate && open(second)) {
        second.start = kStretchFrames;
        m_decoders.push_back(std::move(second));
        readAhead(m_decoders[0]);
        readAhead(m_decoders[1]);
    }
    return true;
}

void FfmpegAssetReader::readAhead(Decoder& decoder) const {
    // Where there can be no more threads the work is done when its result is asked for.
    decoder.ahead = std::async(std::launch::async | std::launch::deferred,
                               [file = decoder.file.get(), start = decoder.start, channels = m_channels] {
                                   Samples samples;
                                   if (file->seek(start) == kAudioNoError) {
                                       read(*file, channels, kStretchFrames, samples);
                                   }
                                   return samples;
                               });
    decoder.start += 2 * kStretchFrames;
}

std::optional<SampleBuffer> FfmpegAssetReader::copyNextSampleBuffer() {
    if (m_status != AssetReaderStatus::Reading) {
        return std::nullopt;
    }
    Decoder& decoder = m_decoders[m_turn];
    if (decoder.ahead.valid()) {
        m_samples = decoder.ahead.get();
        readAhead(decoder);
        m_turn = 1 - m_turn;
    } else {
        read(*decoder.file, m_channels, kPieceFrames, m_samples);
    }
    if (m_samples.empty()) {
        m_status = AssetReaderStatus::Completed;
        m_decoders.clear();
        return std::nullopt;
    }
    const auto frames = static_cast<std::int64_t>(m_samples.size() / m_channels);
    const std::int32_t timescale = m_asset.duration.timescale;
    const AssetTime start{m_position, timescale};
    m_position += frames;
    return SampleBuffer{m_samples, m_channels, start, {frames, timescale}};
}

void FfmpegAssetReader::cancelReading() {
    if (m_status == AssetReaderStatus::Reading) {
        m_status = AssetReaderStatus::Cancelled;
        m_decoders.clear();
    }
}

}  // namespace tavi
