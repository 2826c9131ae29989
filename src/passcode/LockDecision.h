#pragma once

#include <QDateTime>

namespace tavi {

/// What the decision to lock is made from.
struct LockFacts {
    /// The entry screen is on display.
    bool isPasscodePresented = false;
    bool isProtectionOn = false;
    /// Whole minutes that the program may be away without locking; 0 where none are stored.
    int inactivityMinutes = 0;
    /// When the program last went to the background; invalid where that was never stored.
    QDateTime inactivityStarted;
    /// When it last came back; invalid where that was never stored.
    QDateTime inactivityEnded;
};

/// Whether the program locks as it comes back: it has been away for at least the whole minutes allowed, or for a time
/// that a changed clock made negative.
bool shouldLock(const LockFacts& facts);

}  // namespace tavi
