#pragma once

#include <functional>
#include <optional>

#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulseSinks.h"

namespace tavi {

/// Sends sound to one port of the device or another, and back to where it was. Loop thread.
class PulseRoute {
public:
    explicit PulseRoute(PulseConnection& connection) : m_connection(connection) {}

    void useSpeaker();
    /// The headphones, else the earpiece, else what was in use before.
    void useReceiver();
    /// What was in use before the first change, unless somebody else has changed it since. Calls done once the server
    /// has done it.
    void restore(std::function<void()> done = {});
    /// Waits for no answer any more.
    void forget() { m_operation = {}; }

private:
    void use(const PulseWayOut& way, std::function<void()> done = {});

    PulseConnection& m_connection;
    std::optional<PulseWayOut> m_before;
    std::optional<PulseWayOut> m_chosen;
    PulseOperation m_operation;
    std::function<void()> m_done;
};

}  // namespace tavi
