#pragma once

#include <cstdint>
#include <functional>

#include "files/FileError.h"
#include "sound/mp4/Mp4Movie.h"
#include "sound/mp4/Mp4Packet.h"

namespace tavi {

/// Reads the packets of a file of one track in fragments (ISO/IEC 14496-12, 8.8), fragment by fragment: its memory does
/// not grow with the file. Borrows the descriptor. One thread at a time.
class Mp4FragmentReader {
public:
    /// Fails when the file has more tracks, when its header has packets of its own beside the fragments, and when it
    /// has no fragments.
    static FileResult<Mp4FragmentReader> open(int fd, const Mp4Movie& movie);

    /// Hands out the packets of every whole fragment in order, until visit returns false, and returns where the last
    /// fragment it came to ends. A fragment that was cut off by the end of the file, or that makes no sense, does not
    /// count; neither does a movie header at the end. Fails when there are fragments and none makes sense.
    FileResult<std::int64_t> forEachRun(const std::function<bool(const Mp4Run&)>& visit) const;

private:
    Mp4FragmentReader() = default;

    int m_fd = -1;
    std::int64_t m_movieEnd = 0;
    Mp4FragmentDefaults m_defaults;
};

}  // namespace tavi
