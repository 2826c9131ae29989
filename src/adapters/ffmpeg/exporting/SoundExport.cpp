#include "adapters/ffmpeg/exporting/SoundExport.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "adapters/ffmpeg/reading/FfmpegExtAudioFiles.h"
#include "adapters/ffmpeg/recording/FfmpegAudioFileWriters.h"

namespace tavi {

namespace {

constexpr std::uint32_t kBlockFrames = 16384;

/// The lowest rate of AAC (ISO/IEC 14496-3, 1.6.3.4) that holds all of the sound.
double aacRate(double rate) {
    constexpr std::array<int, 12> kRates = {8000,  11025, 12000, 16000, 22050, 24000,
                                            32000, 44100, 48000, 64000, 88200, 96000};
    const auto found = std::find_if(kRates.begin(), kRates.end(), [rate](int each) { return each >= rate; });
    return found != kRates.end() ? *found : 48000;
}

}  // namespace

Result<void> exportSound(const ExportJob& job) {
    std::unique_ptr<ExtAudioFile> input;
    AudioStreamBasicDescription format;
    if (FfmpegExtAudioFiles().open(job.sourcePath, input) != kAudioNoError ||
        input->fileDataFormat(format) != kAudioNoError) {
        return failure(QStringLiteral("The sound file could not be read."));
    }
    AudioStreamBasicDescription client;
    client.sampleRate = aacRate(format.sampleRate);
    client.formatID = kAudioFormatLinearPCM;
    client.formatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked;
    client.channelsPerFrame = std::min(format.channelsPerFrame, 2U);
    client.bitsPerChannel = 32;
    client.framesPerPacket = 1;
    client.bytesPerFrame = client.bytesPerPacket = 4 * client.channelsPerFrame;
    if (input->setClientDataFormat(client) != kAudioNoError || input->seek(job.start) != kAudioNoError) {
        return failure(QStringLiteral("The sound file could not be read."));
    }
    AudioRecordSettings settings;
    settings.formatID = kAudioFormatMPEG4AAC;
    settings.sampleRate = client.sampleRate;
    settings.numberOfChannels = static_cast<int>(client.channelsPerFrame);
    settings.encoderAudioQuality = 127;
    job.file.discard();
    auto writer = FfmpegAudioFileWriters().create(job.file.temporaryPath(), settings);
    if (!writer) {
        return tl::unexpected(writer.error());
    }
    const auto channels = static_cast<int>(client.channelsPerFrame);
    Result<void> result = (*writer)->setInputFormat({static_cast<int>(client.sampleRate), channels});

    const auto total = std::llround(static_cast<double>(job.end - job.start) * client.sampleRate / job.rate);
    std::vector<float> samples(std::size_t{kBlockFrames} * client.channelsPerFrame);
    for (std::int64_t done = 0; result && done < total && !job.control.isCancelled();) {
        auto frames = static_cast<std::uint32_t>(std::min<std::int64_t>(kBlockFrames, total - done));
        AudioBufferList list{1, {{client.channelsPerFrame, frames * client.bytesPerFrame, samples.data()}}};
        if (input->read(frames, list) != kAudioNoError || frames == 0) {
            return shortenedSource();
        }
        const std::size_t count = std::size_t{frames} * client.channelsPerFrame;
        if (job.volume != 1.0F) {
            std::transform(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(count), samples.begin(),
                           [&job](float sample) { return sample * job.volume; });
        }
        result = (*writer)->write(samples.data(), frames);
        done += frames;
        job.control.setProgress(static_cast<double>(done) / static_cast<double>(total));
    }
    const Result<void> finished = result && !job.control.isCancelled() ? (*writer)->finish() : Result<void>();
    return result ? finished : result;
}

}  // namespace tavi
