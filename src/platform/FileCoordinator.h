#pragma once

#include <functional>

namespace tavi {

/// Lets one at a time at files that several programs write, waiting for a slow disk on a thread of its own. Main
/// thread only.
class FileCoordinator {
public:
    virtual ~FileCoordinator() = default;

    /// Calls the accessor on that thread, in the order of asking, while nobody else who coordinates is at the files;
    /// then the completion on the main thread. On a disk that does not answer, neither is called until it does; at the
    /// end of the program nothing waits for either.
    virtual void coordinate(std::function<void()> accessor, std::function<void()> completion) = 0;
};

}  // namespace tavi
