#pragma once

namespace tavi {

/// The end of the user's session: logging out, and shutting down. Main thread only.
class SessionEnd {
public:
    virtual ~SessionEnd() = default;

    /// Held up, the desktop asks its user before the session ends, or waits. Returns at once; where the system offers
    /// no such thing nothing happens. It goes with the program.
    virtual void setHeldUp(bool heldUp) = 0;
};

}  // namespace tavi
