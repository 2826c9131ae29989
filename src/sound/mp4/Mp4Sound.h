#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "sound/mp4/Mp4Description.h"
#include "sound/mp4/Mp4FragmentReader.h"
#include "sound/mp4/Mp4TableReader.h"

namespace tavi {

/// The one track of sound in an MP4 or M4A file (ISO/IEC 14496-12, 8.6 to 8.8), as its tables or its fragments tell of
/// it. Borrows the descriptor, and holds little of a long file. One thread at a time.
class Mp4Sound {
public:
    /// Nothing for other files and those without exactly one track of sound, and where the track is edited in more ways
    /// than by leaving out its start or end.
    static std::optional<Mp4Sound> open(int fd);

    const Mp4Movie& movie() const { return m_movie; }
    std::uint32_t timeScale() const { return m_timeScale; }
    /// Media time at which the sound that is meant to be heard begins.
    std::int64_t start() const { return m_start; }
    /// Media time that is meant to be heard from there on; nothing where the file does not say it by an edit.
    std::optional<std::int64_t> editedDuration() const { return m_editedDuration; }
    bool isFragmented() const { return m_fragments.has_value(); }
    /// Whether the file has nothing but that track, no fragments, and no box beside the usual ones that could change
    /// what is heard.
    bool isPlain() const { return m_isPlain; }
    /// Of a file without fragments.
    const Mp4TableReader& tables() const { return m_tables; }
    const Mp4Description& description() const { return m_description; }
    std::optional<AudioStreamBasicDescription> format() const { return m_description.format(m_timeScale); }

    /// Packets in their order, from the one at or before a media time; visit gets each with the time at which it
    /// begins, and returns false to end. First it skips back that many packets more, if there are so many. False when
    /// the file cannot be read.
    bool forEachPacket(std::int64_t time, std::uint64_t preroll,
                       const std::function<bool(std::int64_t start, const Mp4Packet& packet)>& visit) const;

private:
    Mp4Sound(int fd, Mp4Movie movie) : m_fd(fd), m_movie(std::move(movie)) {}

    bool forEachPacketOfFragments(std::int64_t time, std::uint64_t preroll,
                                  const std::function<bool(std::int64_t, const Mp4Packet&)>& visit) const;
    bool read();
    bool readEdits(const std::vector<Mp4Edit>& edits);

    int m_fd;
    Mp4Movie m_movie;
    std::uint32_t m_timeScale = 0;
    std::int64_t m_start = 0;
    std::optional<std::int64_t> m_editedDuration;
    bool m_isPlain = false;
    Mp4Description m_description;
    Mp4TableReader m_tables;
    std::optional<Mp4FragmentReader> m_fragments;
};

}  // namespace tavi
