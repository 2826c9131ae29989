#pragma once

#include <functional>
#include <optional>

namespace tavi {

/// What the system knows of the way to an address.
struct ReachabilityFlags {
    /// There is one.
    bool reachable = false;
    /// It leads nowhere before something else is done: a line without a connection, a hotspot that wants a login.
    bool connectionRequired = false;
};

/// The system's word on the network, without a packet sent.
class Reachability {
public:
    virtual ~Reachability() = default;

    /// The flags of the all-zero IPv4 address, which stands for any way out; none where they cannot be read. Returns
    /// at once. Main thread only.
    virtual std::optional<ReachabilityFlags> flagsOfZeroAddress() const = 0;
    /// Whether there is no network, and its return will be told; false where nobody would tell. Main thread only.
    virtual bool isOffline() const = 0;
    /// Calls on the main thread whenever that may have changed; nullptr for nobody.
    virtual void setObserver(std::function<void()> observer) = 0;
};

}  // namespace tavi
