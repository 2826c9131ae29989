#pragma once

#include <QDateTime>

namespace tavi {

/// The wall clock.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present date and time, in the system's time zone. Any thread.
    virtual QDateTime now() const = 0;
};

}  // namespace tavi
