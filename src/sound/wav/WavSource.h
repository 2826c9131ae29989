#pragma once

#include <memory>
#include <vector>

#include "files/FileDescriptor.h"
#include "sound/io/PcmSamples.h"
#include "sound/io/SoundSource.h"
#include "sound/wav/WavHeader.h"

namespace tavi {

/// Linear PCM in WAV and RF64 files, read in large blocks.
class WavSource : public SoundSource {
public:
    /// Null for other files. The descriptor is taken over only on success.
    static std::unique_ptr<WavSource> open(FileDescriptor& file);

    const AudioStreamBasicDescription& format() const override { return m_format; }
    std::uint64_t channelMask() const override { return m_header.channelMask; }
    std::int64_t length() override { return m_header.frames; }
    std::uint32_t maxPacketSize() const override { return m_header.frameBytes; }
    std::size_t read(float* const* planes, std::size_t frames) override;
    bool has16Bits() const override {
        return m_encoding.kind == PcmEncoding::Kind::Unsigned8 || m_encoding.kind == PcmEncoding::Kind::Signed16;
    }
    std::size_t read16(std::int16_t* samples, std::size_t frames) override;
    void seek(std::int64_t frame) override { m_position = frame; }

private:
    WavSource() = default;

    /// Reads the next frames, as many as fit into room bytes; returns how many.
    std::size_t readFrames(void* target, std::size_t room, std::size_t frames);

    FileDescriptor m_file;
    WavHeader m_header;
    AudioStreamBasicDescription m_format;
    PcmEncoding m_encoding;
    std::int64_t m_position = 0;
    std::vector<std::uint8_t> m_bytes;
};

}  // namespace tavi
