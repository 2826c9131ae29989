#pragma once

namespace tavi {

/// The system's habit of dimming and locking the screen when nobody touches it. Main thread only.
class IdleTimer {
public:
    virtual ~IdleTimer() = default;

    /// Disabled, the screen stays on until enabled again or the program ends. Returns at once; where the system offers
    /// no such thing nothing happens.
    virtual void setIdleTimerDisabled(bool disabled) = 0;
    virtual bool isIdleTimerDisabled() const = 0;
};

}  // namespace tavi
