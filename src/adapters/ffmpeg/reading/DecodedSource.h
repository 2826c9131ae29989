#pragma once

#include <memory>
#include <optional>
#include <stop_token>

#include "adapters/ffmpeg/reading/PacketDecoder.h"
#include "files/FileDescriptor.h"
#include "sound/io/SoundSource.h"

namespace tavi {

/// Any sound file that FFmpeg decodes.
///
/// Where packets tell the exact time, sound is put where it belongs: packets that cannot be decoded leave silence of
/// their length. Otherwise it is counted from the start, and so is every seek.
class DecodedSource : public SoundSource {
public:
    /// Decodes a little to learn what comes out. The descriptor is taken only on success. Once the stop is asked for no
    /// more is found in the file.
    static AudioStatus open(FileDescriptor& file, std::unique_ptr<SoundSource>& source, const std::stop_token& stop);

    const AudioStreamBasicDescription& format() const override { return m_format; }
    std::uint64_t channelMask() const override { return m_channelMask; }
    std::int64_t length() override;
    std::uint32_t maxPacketSize() const override { return m_packets->maxPacketSize(); }
    bool isRandomAccess() const override { return m_packets->hasExactTimes(); }
    std::size_t read(float* const* planes, std::size_t frames) override;
    void seek(std::int64_t frame) override;

private:
    DecodedSource() = default;

    AudioStatus start();
    void describe();
    /// Makes the next decoded frame the current one and finds its place; false at the end.
    bool nextFrame();
    void place();
    bool restart();
    /// What can be decoded of a length that is declared.
    std::int64_t foundLength(std::int64_t declared);
    std::int64_t framesOf(std::int64_t time) const;

    FileDescriptor m_file;
    std::unique_ptr<PacketReader> m_packets;
    std::unique_ptr<PacketDecoder> m_decoder;
    AudioStreamBasicDescription m_format;
    std::uint64_t m_channelMask = 0;
    int m_rate = 0;
    int m_channels = 0;

    /// What the decoder's first frame counts as, in frames by its time.
    std::int64_t m_origin = 0;
    /// Once it has been asked for.
    std::optional<std::int64_t> m_length;
    /// The next frame to hand out.
    std::int64_t m_position = 0;
    /// Where the current decoded frame begins, and how many samples it has.
    std::int64_t m_frameStart = 0;
    std::int64_t m_frameEnd = 0;
    bool m_isPlaced = false;
    bool m_isFrameSound = false;
    bool m_hasFrame = false;
};

}  // namespace tavi
