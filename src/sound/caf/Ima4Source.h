#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "files/FileDescriptor.h"
#include "sound/caf/CafHeader.h"
#include "sound/caf/Ima4Packet.h"
#include "sound/io/SoundSource.h"

namespace tavi {

/// IMA 4:1 ADPCM in CAF files, read in large blocks. In a file that was cut the first frames of the first packet are
/// not to be heard; the file declares them as priming.
class Ima4Source : public SoundSource {
public:
    /// Null for other files. The descriptor is taken over only on success.
    static std::unique_ptr<Ima4Source> open(FileDescriptor& file);

    const AudioStreamBasicDescription& format() const override { return m_format; }
    std::int64_t length() override { return m_header.frames; }
    std::uint32_t maxPacketSize() const override { return m_header.packetBytes; }
    bool isRandomAccess() const override { return false; }
    std::size_t read(float* const* planes, std::size_t frames) override;
    bool has16Bits() const override { return true; }
    std::size_t read16(std::int16_t* samples, std::size_t frames) override;
    /// Decodes up to the frame where no read or seek has come that far before.
    void seek(std::int64_t frame) override;

private:
    Ima4Source() = default;

    /// Takes up to that many decoded frames, which then end at m_used in m_samples; returns how many.
    std::size_t takeDecoded(std::size_t frames);
    /// Decodes the next packets into m_samples; false at the end of the file.
    bool decodeBlock();

    FileDescriptor m_file;
    CafHeader m_header;
    AudioStreamBasicDescription m_format;
    std::vector<std::uint8_t> m_bytes;
    /// Decoded samples of one channel after the other, for kBlockPackets packets each.
    std::vector<std::int16_t> m_samples;
    std::vector<Ima4State> m_states;
    /// The states at the start of every block that has been decoded, for seeking.
    std::vector<Ima4State> m_history;
    std::int64_t m_block = 0;
    std::size_t m_used = 0;
    std::size_t m_available = 0;
    std::int64_t m_position = 0;
};

}  // namespace tavi
