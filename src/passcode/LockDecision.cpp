#include "passcode/LockDecision.h"

#include <limits>

namespace tavi {

namespace {

constexpr qint64 kMillisecondsInMinute = 60'000;

/// Whole minutes from the one to the other, cut off towards zero. A start that was never stored lies as far back as
/// can be; without an end no time has passed.
qint64 minutesAway(const QDateTime& started, const QDateTime& ended) {
    if (!ended.isValid()) {
        return 0;
    }
    if (!started.isValid()) {
        return std::numeric_limits<qint64>::max();
    }
    return started.msecsTo(ended) / kMillisecondsInMinute;
}

}  // namespace

bool shouldLock(const LockFacts& facts) {
    if (facts.isPasscodePresented) {
        return false;
    }
    const qint64 duration = facts.inactivityMinutes;
    qint64 minutes = minutesAway(facts.inactivityStarted, facts.inactivityEnded);
    if (minutes < 0) {
        minutes = duration + 1;
    }
    return facts.isProtectionOn && duration <= minutes;
}

}  // namespace tavi
