#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

/// A stretch of a track's media that plays (ISO/IEC 14496-12, 8.6.6).
struct Mp4Edit {
    /// In units of the movie's time scale.
    std::uint64_t duration = 0;
    /// Where in the media it starts, in units of their time scale; less than 0 for silence.
    std::int64_t start = 0;
    bool isAtNormalSpeed = true;
};

/// A track as the box "trak" describes it. What is missing there is 0 or empty.
struct Mp4Track {
    /// What the media are, such as "soun".
    std::uint32_t handler = 0;
    /// Of the media.
    std::uint32_t timeScale = 0;
    std::uint64_t duration = 0;
    std::vector<Mp4Edit> edits;
    /// Whether the only data that it refers to are in its own file.
    bool isSelfContained = false;
    /// The boxes in "trak", and those in "stbl".
    std::vector<Mp4Box> boxes;
    std::vector<Mp4Box> tables;
};

/// What packets of a track in fragments are, unless a fragment says otherwise (8.8.3).
struct Mp4FragmentDefaults {
    std::uint32_t track = 0;
    std::uint32_t duration = 0;
    std::uint32_t size = 0;
};

/// The header of an MP4 file (the box "moov", 8.2 to 8.6). This is its only reader; Mp4TableReader reads the tables of
/// packets, and Mp4FragmentReader the fragments.
struct Mp4Movie {
    /// Nothing for other files, and where the header is not whole. Takes little of the file into memory.
    static std::optional<Mp4Movie> read(int fd);

    Mp4Box box;
    std::vector<Mp4Box> boxes;
    std::uint32_t timeScale = 0;
    std::vector<Mp4Track> tracks;
    /// Whether packets are in fragments behind the header, too, and what they are unless told otherwise.
    bool isFragmented = false;
    std::optional<Mp4FragmentDefaults> defaults;

    /// The first track of sound; null where there is none.
    const Mp4Track* sound() const;
    /// Reads the box "udta" of the same file, with names and remarks; empty where there is none, or too much.
    std::vector<std::uint8_t> readUserData(int fd) const;
};

}  // namespace tavi
