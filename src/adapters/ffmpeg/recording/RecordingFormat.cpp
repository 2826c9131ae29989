#include "adapters/ffmpeg/recording/RecordingFormat.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "files/PathText.h"

namespace tavi {

namespace {

struct Quality {
    int upTo;
    std::int64_t bitRatePerChannel;
    const char* aacCoder;
    RecordingFormat::Resampler resampler;
};

constexpr std::array<Quality, 3> kQualities{{
    {31, 24000, "fast", {16, 8, 0.91}},
    {95, 32000, "fast", {32, 10, 0.95}},
    {127, 96000, "twoloop", {64, 10, 0.97}},
}};

const Quality& qualityFor(int value) {
    for (const Quality& quality : kQualities) {
        if (value <= quality.upTo) {
            return quality;
        }
    }
    return kQualities.back();
}

/// At most a tenth of a second, which a kill may lose; and even, as are the bytes of a WAV file.
int packetFramesAt(int sampleRate) {
    return std::min(4096, static_cast<int>(std::bit_floor(static_cast<unsigned>(sampleRate) / 10)));
}

}  // namespace

Result<RecordingFormat> recordingFormat(const std::filesystem::path& path, const AudioRecordSettings& settings) {
    RecordingFormat format;
    const bool isRateUsable = settings.sampleRate >= 8000 && settings.sampleRate <= 96000 &&
                              settings.sampleRate == std::floor(settings.sampleRate);
    if (!isRateUsable || settings.numberOfChannels < 1 || settings.numberOfChannels > 2) {
        return failure(
            QStringLiteral("The recording settings name a sample rate or channel count that no file takes."));
    }
    format.sampleRate = static_cast<int>(settings.sampleRate);
    format.channels = settings.numberOfChannels;
    format.resampler = qualityFor(settings.sampleRateConverterAudioQuality).resampler;

    switch (settings.formatID) {
        case kAudioFormatAppleLossless:
            format.codec = AV_CODEC_ID_ALAC;
            format.sampleFormat = AV_SAMPLE_FMT_S16P;
            format.packetFrames = packetFramesAt(format.sampleRate);
            format.muxer = "ipod";
            format.isFragmented = true;
            return format;
        case kAudioFormatLinearPCM:
            format.muxer = "wav";
            format.packetFrames = packetFramesAt(format.sampleRate);
            if (settings.linearPCMIsFloat || settings.linearPCMIsBigEndian) {
                return failure(QStringLiteral("A WAV file takes little-endian integers."));
            }
            if (settings.linearPCMBitDepth == 8) {
                format.codec = AV_CODEC_ID_PCM_U8;
                format.sampleFormat = AV_SAMPLE_FMT_U8;
                return format;
            }
            if (settings.linearPCMBitDepth == 16) {
                format.codec = AV_CODEC_ID_PCM_S16LE;
                format.sampleFormat = AV_SAMPLE_FMT_S16;
                return format;
            }
            return failure(QStringLiteral("Only 8-bit and 16-bit linear PCM can be recorded."));
        case kAudioFormatAppleIMA4:
            format.codec = AV_CODEC_ID_ADPCM_IMA_QT;
            format.sampleFormat = AV_SAMPLE_FMT_S16P;
            format.muxer = "caf";
            return format;
        case kAudioFormatMPEG4AAC: {
            const Quality& quality = qualityFor(settings.encoderAudioQuality);
            format.codec = AV_CODEC_ID_AAC;
            format.sampleFormat = AV_SAMPLE_FMT_FLTP;
            format.isFragmented = !pathText(path).endsWith(QLatin1String(".aac"), Qt::CaseInsensitive);
            format.muxer = format.isFragmented ? "mp4" : "adts";
            format.bitRate = std::min(quality.bitRatePerChannel, std::int64_t{6} * format.sampleRate) * format.channels;
            format.aacCoder = quality.aacCoder;
            return format;
        }
        default:
            return failure(QStringLiteral("The recording settings name an unknown format."));
    }
}

}  // namespace tavi
