#pragma once

#include <functional>
#include <memory>

namespace tavi {

/// Calls back once for every picture that the display is about to show, while it is not paused: what the callback
/// changes is in that picture. Nothing is called while nothing is shown. Destroying it ends the calls. Main thread
/// only.
class DisplayRefresh {
public:
    virtual ~DisplayRefresh() = default;

    /// An unpaused refresh keeps the display drawing; a paused one costs nothing.
    virtual void setPaused(bool paused) = 0;
    virtual bool isPaused() const = 0;
};

/// Makes refreshes, and outlives them. Main thread only.
class DisplayRefreshes {
public:
    virtual ~DisplayRefreshes() = default;

    /// A refresh, paused at first. The callback may pause or destroy any refresh, its own too.
    virtual std::unique_ptr<DisplayRefresh> create(std::function<void()> callback) = 0;
};

}  // namespace tavi
