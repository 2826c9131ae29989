#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>

#include "adapters/ffmpeg/AvHandles.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// A sound file in the hands of libavformat, which reads it through a descriptor and opens nothing else. Prints
/// nothing. One thread at a time.
///
/// libavformat searches a damaged file for sound to its very end, be that gigabytes away. Where so much comes without a
/// packet that it can be no sound file the file is at its end for it, and so it is once the stop is asked for.
class AvFile {
public:
    /// Borrows the descriptor. On failure file is left empty and a code of kAudioFile... tells why.
    static AudioStatus open(int fd, std::unique_ptr<AvFile>& file, const std::stop_token& stop = {});

    AvFile(const AvFile&) = delete;
    AvFile& operator=(const AvFile&) = delete;
    ~AvFile();

    AVFormatContext& context() { return *m_input; }
    /// The track of sound that plays when nothing is chosen.
    AVStream& stream() { return *m_input->streams[m_stream]; }
    /// Whether the container has that name in libavformat.
    bool is(const char* container) const;
    /// The time from which on that track is heard, where packets before it are not.
    std::optional<std::int64_t> heardFrom();
    /// The next packet of that track; false at the end.
    bool next(AVPacket& packet);
    /// Goes to the packet at a time of that track or before, or else to one up to the latest time; false where there is
    /// none.
    bool seek(std::int64_t time, std::int64_t latest);
    AudioFileInfo info();

private:
    AvFile(int fd, std::stop_token stop);

    static int readPacket(void* opaque, std::uint8_t* data, int size);
    static std::int64_t seekTo(void* opaque, std::int64_t offset, int whence);

    int m_fd;
    std::stop_token m_stop;
    std::int64_t m_offset = 0;
    /// Bytes that may still be read before the next packet.
    std::int64_t m_bytesLeft;
    AvIo m_io;
    AvInput m_input;
    int m_stream = -1;
};

}  // namespace tavi
