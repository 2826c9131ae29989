#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tavi {

/// The header of a WAV file, up to its samples; that of an RF64 file (EBU Tech 3306) where 32 bits cannot hold the
/// length. format is the body of the chunk "fmt ". The caller writes a padding byte after an odd number of bytes.
std::vector<std::uint8_t> wavHeader(std::span<const std::uint8_t> format, std::uint64_t dataBytes,
                                    std::uint64_t frames);

}  // namespace tavi
