#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tavi {

/// The bytes of a WAV file before its samples; of an RF64 file (EBU Tech 3306) where it gets too long for the other.
/// format is the body of the chunk "fmt ". Samples of an odd number of bytes are to be followed by one more byte.
std::vector<std::uint8_t> wavHeader(std::span<const std::uint8_t> format, std::uint64_t dataBytes,
                                    std::uint64_t frames);

}  // namespace tavi
