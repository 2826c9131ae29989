#pragma once

#include <functional>

namespace tavi {

/// Runs calls on the main thread and on background threads.
///
/// Callbacks must hold their owner weakly: they may run after the owner is gone.
class DispatchQueues {
public:
    virtual ~DispatchQueues() = default;

    /// Calls on the main thread, in the order of asking, never before this returns. Any thread.
    virtual void dispatchMain(std::function<void()> callback) = 0;
    /// Calls on some background thread, at the same time as other such calls. Any thread.
    virtual void dispatchBackground(std::function<void()> callback) = 0;
};

}  // namespace tavi
