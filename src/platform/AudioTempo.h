#pragma once

#include <cstddef>
#include <memory>

#include "platform/Error.h"

namespace tavi {

/// Makes sound faster or slower and keeps its pitch. One thread at a time.
///
/// The frame that is taken as number n after reset() belongs to the frame that was pushed as number n * rate.
class AudioTempo {
public:
    virtual ~AudioTempo() = default;

    /// Forgets everything and begins anew at a rate of 0.5 to 2.0.
    virtual Result<void> reset(double rate) = 0;
    /// Interleaved frames. Take until nothing is left before pushing more.
    virtual Result<void> push(const float* interleaved, std::size_t frames) = 0;
    /// Nothing more will be pushed: what is held back can be taken.
    virtual Result<void> finish() = 0;
    /// Takes up to capacity frames; how many there were. 0 when more must be pushed, and for good after finish().
    virtual std::size_t take(float* interleaved, std::size_t capacity) = 0;
};

class AudioTempos {
public:
    virtual ~AudioTempos() = default;

    /// For 1 or 2 channels; needs reset() first. Any thread.
    virtual Result<std::unique_ptr<AudioTempo>> create(int sampleRate, int channels) = 0;
};

}  // namespace tavi
