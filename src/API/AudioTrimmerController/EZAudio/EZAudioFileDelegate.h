#pragma once

#include <cstdint>

namespace tavi {

class EZAudioFile;

/// Hears where a reader is and what it reads, on the thread that reads or seeks.
class EZAudioFileDelegate {
public:
    virtual ~EZAudioFileDelegate() = default;

    virtual void audioFileUpdatedPosition(EZAudioFile&) {}
    virtual void audioFile(EZAudioFile&, std::int64_t /*updatedPosition*/) {}
    /// Whether audioFile() below is wanted; it costs a conversion.
    virtual bool wantsAudio() const { return false; }
    /// What has been read, one array of bufferSize floats a channel; valid until this returns.
    virtual void audioFile(EZAudioFile&, float** /*readAudio*/, std::uint32_t /*bufferSize*/,
                           std::uint32_t /*numberOfChannels*/) {}
};

}  // namespace tavi
