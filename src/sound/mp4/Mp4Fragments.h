#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "files/FileError.h"

namespace tavi {

struct Mp4Sample {
    std::uint32_t size = 0;
    /// In units of the media time scale.
    std::uint32_t duration = 0;
};

/// Samples that lie one after the other in the file.
struct Mp4Run {
    std::int64_t offset = 0;
    std::span<const Mp4Sample> samples;
};

/// A fragmented file of one track (ISO/IEC 14496-12, 8.8) as it is read, fragment by fragment: its memory does not grow
/// with the file. It borrows the descriptor.
class Mp4Fragments {
public:
    /// Reads the movie header. Fails when the file is no fragmented MP4 file with exactly one track, a track of sound,
    /// and when the header has sound of its own beside the fragments.
    static FileResult<Mp4Fragments> open(int fd);

    /// Whether a file has a movie header of its own for the whole sound, and so no fragments. False for no MP4 file
    /// too.
    static bool isOrdinary(int fd);

    /// Where the movie header stands, and its body.
    std::int64_t movieOffset() const { return m_movieOffset; }
    std::span<const std::uint8_t> movie() const { return m_movie; }

    /// Hands out the samples of every whole fragment in order, until visit returns false, and returns where the last
    /// fragment it came to ends. A fragment that was cut off by the end of the file does not count; neither does a
    /// movie header at the end. Fails when something in the midst of the file makes no sense.
    FileResult<std::int64_t> forEachRun(const std::function<bool(const Mp4Run&)>& visit) const;

private:
    struct Defaults {
        std::uint32_t duration = 0;
        std::uint32_t size = 0;
    };

    Mp4Fragments() = default;

    /// Appends the runs of a movie fragment; false when it cannot be understood.
    bool readFragment(std::span<const std::uint8_t> body, std::int64_t offset) const;
    bool readTrackFragment(std::span<const std::uint8_t> body, std::int64_t offset) const;
    bool readRun(std::span<const std::uint8_t> body, const Defaults& defaults, std::int64_t base,
                 std::int64_t& position) const;

    struct StoredRun {
        std::int64_t offset = 0;
        std::size_t first = 0;
        std::size_t count = 0;
    };

    int m_fd = -1;
    std::int64_t m_movieOffset = 0;
    std::int64_t m_movieEnd = 0;
    std::vector<std::uint8_t> m_movie;
    std::uint32_t m_track = 0;
    Defaults m_defaults;
    // The fragment being read.
    mutable std::vector<Mp4Sample> m_samples;
    mutable std::vector<StoredRun> m_runs;
    /// How many bytes samples may still have: all of them together no more than the file.
    mutable std::int64_t m_bytesLeft = 0;
};

}  // namespace tavi
