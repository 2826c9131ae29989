#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "sound/mp4/Mp4Fragments.h"
#include "sound/mp4/Mp4PacketTables.h"

namespace tavi {

/// The one track of sound in an MP4 or M4A file (ISO/IEC 14496-12, 8.6 to 8.8), as its tables or its fragments describe
/// it. Borrows the descriptor, and holds little of a long file. One thread at a time.
class Mp4Sound {
public:
    /// Nothing for other files and those without exactly one track of sound, and where the track is edited in more ways
    /// than by leaving out its start or end.
    static std::optional<Mp4Sound> open(int fd);

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
    const Mp4PacketTables& tables() const { return m_tables; }
    /// The box "stsd" as it is, and the coding it names, such as "mp4a".
    std::span<const std::uint8_t> description() const { return m_description; }
    std::uint32_t coding() const { return m_coding; }
    /// Rate and channels, where the description tells for certain what is decoded: for Apple Lossless, and for AAC
    /// without the chance of spectral band replication, which only a decoder finds out.
    std::optional<AudioStreamBasicDescription> format() const;
    /// What the decoder has to know: an AudioSpecificConfig, or the box "alac" with its header. Only where format()
    /// tells something.
    std::span<const std::uint8_t> configuration() const;
    /// Reads the box "udta", with names and remarks; empty where there is none.
    std::vector<std::uint8_t> userData() const;

    /// Packets in their order, from the one at or before a media time; visit gets each with the time at which it
    /// begins, and returns false to end. First it skips back that many packets more, if there are so many. False when
    /// the file cannot be read.
    bool forEachPacket(std::int64_t time, std::uint64_t preroll,
                       const std::function<bool(std::int64_t start, const Mp4Packet& packet)>& visit) const;

private:
    explicit Mp4Sound(int fd) : m_fd(fd) {}

    bool forEachPacketOfFragments(std::int64_t time, std::uint64_t preroll,
                                  const std::function<bool(std::int64_t, const Mp4Packet&)>& visit) const;
    bool readMovie(const Mp4Box& movie);
    bool readTrack(const Mp4Box& track, std::uint32_t movieTimeScale);
    bool readMedia(const Mp4Box& media);
    bool readTables(const Mp4Box& tables);
    bool readEdits(const Mp4Box& list, std::uint32_t movieTimeScale);

    int m_fd;
    std::uint32_t m_timeScale = 0;
    std::int64_t m_start = 0;
    std::optional<std::int64_t> m_editedDuration;
    bool m_isPlain = true;
    std::uint32_t m_coding = 0;
    std::vector<std::uint8_t> m_description;
    std::optional<Mp4Box> m_userData;
    Mp4PacketTables m_tables;
    std::optional<Mp4Fragments> m_fragments;
};

}  // namespace tavi
