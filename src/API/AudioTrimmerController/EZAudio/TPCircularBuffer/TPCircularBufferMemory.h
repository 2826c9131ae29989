#pragma once

#include <cstddef>

namespace tavi {

/// The steps by which a ring's storage is mapped. Tests put failing ones in their place.
struct TPCircularBufferMemory {
    /// Reserves 2 x length bytes of zeroed pages that can be shared; null with errno on failure.
    void* (*reserve)(std::size_t length);
    /// Empties the second half, keeping its addresses from other threads; false with errno on failure.
    bool (*releaseSecondHalf)(void* secondHalf, std::size_t length);
    /// Maps the pages of the first half a second time; where they landed, or null with errno.
    void* (*remap)(void* firstHalf, void* secondHalf, std::size_t length);
    /// Gives addresses back.
    void (*release)(void* start, std::size_t length);
};

/// The steps in use, and the system's own. Not for use while rings are being made on other threads.
TPCircularBufferMemory& circularBufferMemory();
TPCircularBufferMemory systemCircularBufferMemory();

}  // namespace tavi
