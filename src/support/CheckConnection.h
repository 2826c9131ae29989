#pragma once

#include "platform/Reachability.h"

namespace tavi {

/// Whether there is a way into the network that can be used right now.
class CheckConnection {
public:
    /// The service must outlive this.
    explicit CheckConnection(const Reachability& reachability) : m_reachability(reachability) {}

    /// Reads the flags.
    void start() { m_flags = m_reachability.flagsOfZeroAddress(); }
    /// Whether they could be read and say reachable, and nothing else.
    bool checkIntenetRechable() const { return m_flags && m_flags->reachable && !m_flags->connectionRequired; }

private:
    const Reachability& m_reachability;
    std::optional<ReachabilityFlags> m_flags;
};

}  // namespace tavi
