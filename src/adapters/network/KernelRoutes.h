#pragma once

#include <optional>

#include "platform/Reachability.h"

namespace tavi {

/// What the kernel's routing tables say of the way out, by rtnetlink(7): reachable where an address that is nobody's
/// has a route, connection required where the interface of that has no carrier. None where the kernel does not answer.
/// Two system calls for each of IPv4 and IPv6, however large the tables are. Any thread.
std::optional<ReachabilityFlags> kernelRouteFlags();

}  // namespace tavi
