#pragma once

#include <functional>
#include <memory>

#include "platform/Clock.h"

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
///
/// Callbacks must hold their owner weakly: they may run after the owner is gone.
class RunLoop {
public:
    virtual ~RunLoop() = default;

    virtual const Clock& clock() const = 0;

    /// Calls on the main thread after interval seconds, and then every interval seconds if it repeats. Main thread
    /// only.
    virtual std::shared_ptr<Timer> scheduledTimer(double interval, bool repeats, std::function<void()> callback) = 0;
    /// Calls on the main thread after that many seconds. Any thread.
    virtual void dispatchAfter(double seconds, std::function<void()> callback) = 0;
    /// Calls on the main thread, in the order of asking, never before this returns. Any thread.
    virtual void dispatchMain(std::function<void()> callback) = 0;
    /// Calls on some background thread, at the same time as other such calls. Any thread.
    virtual void dispatchBackground(std::function<void()> callback) = 0;
};

}  // namespace tavi
