#include "adapters/ffmpeg/reading/Codecs.h"

#include <algorithm>

#include "platform/AudioTypes.h"

namespace tavi {

std::uint32_t formatOf(AVCodecID codec) {
    switch (codec) {
        case AV_CODEC_ID_AAC:
            return kAudioFormatMPEG4AAC;
        case AV_CODEC_ID_ALAC:
            return kAudioFormatAppleLossless;
        case AV_CODEC_ID_ADPCM_IMA_QT:
            return kAudioFormatAppleIMA4;
        case AV_CODEC_ID_ILBC:
            return kAudioFormatiLBC;
        case AV_CODEC_ID_MP3:
            return fourCharacterCode(".mp3");
        case AV_CODEC_ID_FLAC:
            return fourCharacterCode("flac");
        case AV_CODEC_ID_OPUS:
            return fourCharacterCode("opus");
        case AV_CODEC_ID_AC3:
            return fourCharacterCode("ac-3");
        case AV_CODEC_ID_AMR_NB:
            return fourCharacterCode("samr");
        default: {
            const bool isLinear = codec >= AV_CODEC_ID_FIRST_AUDIO && codec < AV_CODEC_ID_ADPCM_IMA_QT;
            return isLinear ? kAudioFormatLinearPCM : fourCharacterCode("????");
        }
    }
}

std::int64_t prerollOf(const AVCodecParameters& parameters) {
    const std::int64_t packet = parameters.frame_size > 0 ? parameters.frame_size : 4096;
    switch (parameters.codec_id) {
        case AV_CODEC_ID_ALAC:
        case AV_CODEC_ID_FLAC:
        case AV_CODEC_ID_WAVPACK:
            return 0;
        case AV_CODEC_ID_MP3:
            // A packet may hold its bits in the nine before it.
            return 12 * packet;
        case AV_CODEC_ID_OPUS:
            return std::max(4 * packet, std::int64_t{48000} / 4);
        default:
            return std::max(4 * packet, std::int64_t{parameters.seek_preroll});
    }
}

}  // namespace tavi
