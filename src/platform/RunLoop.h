#pragma once

#include <functional>
#include <memory>

#include "platform/Clock.h"
#include "platform/DispatchQueues.h"

namespace tavi {

/// A scheduled call. Dropping the handle does not stop it; invalidate() does.
class Timer {
public:
    virtual ~Timer() = default;

    /// Stops the timer for good. Main thread; harmless when repeated, and from inside the timer's own call.
    virtual void invalidate() = 0;
    virtual bool isValid() const = 0;
};

/// The main thread's event loop and the background threads beside it.
class RunLoop : public DispatchQueues {
public:
    virtual const Clock& clock() const = 0;

    /// Calls on the main thread after interval seconds, and then every interval seconds if it repeats. Main thread
    /// only.
    virtual std::shared_ptr<Timer> scheduledTimer(double interval, bool repeats, std::function<void()> callback) = 0;
    /// Calls on the main thread after that many seconds. Any thread.
    virtual void dispatchAfter(double seconds, std::function<void()> callback) = 0;
};

}  // namespace tavi
