#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace tavi {

/// How the messages of a channel travel.
enum class MMWormholeTransitingType {
    File = 0,
    CoordinatedFile = 1,
    SessionContext = 2,
    SessionFile = 3,
    SessionMessage = 4,
};

/// The ways as words of command lines, in their order.
inline constexpr std::array<const char*, 5> kTransitingTypeNames = {"file", "coordinated", "context", "transfer",
                                                                    "message"};

/// Of one of these words; a file for any other.
inline MMWormholeTransitingType transitingTypeNamed(std::string_view name) {
    const auto found = std::find(kTransitingTypeNames.begin(), kTransitingTypeNames.end(), name);
    return found == kTransitingTypeNames.end()
               ? MMWormholeTransitingType::File
               : static_cast<MMWormholeTransitingType>(found - kTransitingTypeNames.begin());
}

/// Whether messages travel through the session, and not as files of the group.
inline bool isOfSession(MMWormholeTransitingType type) {
    return type > MMWormholeTransitingType::CoordinatedFile;
}

}  // namespace tavi
