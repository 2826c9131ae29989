#pragma once

#include <memory>
#include <stop_token>

#include "adapters/ffmpeg/reading/AvFile.h"
#include "adapters/ffmpeg/reading/PacketReader.h"

namespace tavi {

/// The packets of the sound in any container that libavformat reads.
class ContainerPackets : public PacketReader {
public:
    /// Borrows the descriptor. On failure packets is left empty. There are no more once the stop is asked for.
    static AudioStatus open(int fd, std::unique_ptr<ContainerPackets>& packets, const std::stop_token& stop);

    const AVCodecParameters& parameters() const override { return *m_file->stream().codecpar; }
    AVRational timeBase() const override { return m_file->stream().time_base; }
    bool hasExactTimes() const override { return m_hasExactTimes; }
    std::uint32_t maxPacketSize() const override { return m_maxPacketSize; }
    std::int64_t declaredLength(int rate) override;
    std::int64_t primingFrames() const override { return m_primingFrames; }
    std::optional<std::int64_t> startTime() const override { return m_file->heardFrom(); }
    bool next(AVPacket& packet) override {
        m_isFresh = false;
        return m_file->next(packet);
    }
    bool rewind() override;
    bool seek(std::int64_t time) override;

private:
    ContainerPackets(int fd, std::stop_token stop) : m_fd(fd), m_stop(std::move(stop)) {}

    bool is(const char* container) const;
    bool tellsExactTimes() const;
    /// Length from the movie's header, cut where the file ends before.
    std::int64_t movieLength(int rate) const;
    /// Adds up what the packets say; what a decoder leaves out of the first and last ones is counted, too.
    std::int64_t scannedLength(int rate);

    int m_fd;
    std::stop_token m_stop;
    mutable std::unique_ptr<AvFile> m_file;
    bool m_hasExactTimes = false;
    /// No packet has been read since it was opened.
    bool m_isFresh = true;
    std::uint32_t m_maxPacketSize = 0;
    std::int64_t m_primingFrames = 0;
};

}  // namespace tavi
