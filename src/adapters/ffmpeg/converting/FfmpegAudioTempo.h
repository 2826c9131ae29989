#pragma once

#include "platform/AudioTempo.h"

namespace tavi {

/// Changes the tempo with FFmpeg's "atempo" filter: overlapping pieces of sound, laid where their waves agree.
class FfmpegAudioTempos : public AudioTempos {
public:
    Result<std::unique_ptr<AudioTempo>> create(int sampleRate, int channels) override;
};

}  // namespace tavi
