#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "sound/io/SoundSource.h"

namespace tavi::test {

using Bytes = std::vector<std::uint8_t>;

inline Bytes operator""_bytes(const char* text, std::size_t size) {
    return {text, text + size};
}

inline Bytes operator+(Bytes first, const Bytes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// The box "alac" for 16 bits at 8 kHz.
inline Bytes losslessBox(std::uint8_t channels, std::uint8_t historyFactor = 40, std::uint8_t initialHistory = 10,
                         std::uint8_t riceLimit = 14) {
    return "\0\0\0\x24"
           "alac\0\0\0\0\0\0\x10\0\0\x10"_bytes +
           Bytes{historyFactor, initialHistory, riceLimit, channels} + "\0\0\0\0\0\0\0\0\0\0\0\0\x1f\x40"_bytes;
}

/// A file that is nowhere but in memory, with those bytes; longer ones end in a hole.
inline FileDescriptor memoryFile(std::span<const std::uint8_t> bytes, std::int64_t size = 0) {
    FileDescriptor file(::memfd_create("sound", MFD_CLOEXEC));
    EXPECT_EQ(writeFully(systemPwrite(), file.get(), bytes.data(), bytes.size(), 0).error, 0);
    EXPECT_EQ(::ftruncate(file.get(), std::max<std::int64_t>(size, std::ssize(bytes))), 0);
    return file;
}

inline Bytes contents(const FileDescriptor& file) {
    Bytes bytes(static_cast<std::size_t>(regularFileSize(file.get())));
    EXPECT_EQ(readFully(file.get(), bytes.data(), bytes.size(), 0), bytes.size());
    return bytes;
}

/// What a source has from a frame on, a row of samples a channel; asked for in pieces of an odd size. The same comes as
/// 16-bit samples where the source has them.
inline std::vector<std::vector<float>> readFrom(SoundSource& source, std::int64_t frame) {
    constexpr std::size_t kPiece = 1001;
    std::vector<std::vector<float>> sound(source.format().channelsPerFrame);
    std::vector<std::vector<float>> piece(sound.size(), std::vector<float>(kPiece));
    std::vector<float*> planes;
    std::transform(piece.begin(), piece.end(), std::back_inserter(planes), [](auto& plane) { return plane.data(); });
    source.seek(frame);
    while (const std::size_t count = source.read(planes.data(), kPiece)) {
        for (std::size_t channel = 0; channel < sound.size(); ++channel) {
            sound[channel].insert(sound[channel].end(), planes[channel], planes[channel] + count);
        }
    }
    std::vector<std::int16_t> samples(source.has16Bits() ? kPiece * sound.size() : 0);
    std::size_t at = 0;
    source.seek(frame);
    while (const std::size_t count = source.has16Bits() ? source.read16(samples.data(), kPiece) : 0) {
        for (std::size_t i = 0; i < count * sound.size(); ++i) {
            EXPECT_EQ(samples[i], sound[i % sound.size()].at(at + i / sound.size()) * 32768);
        }
        at += count;
    }
    EXPECT_TRUE(at == sound[0].size() || !source.has16Bits());
    return sound;
}

}  // namespace tavi::test
