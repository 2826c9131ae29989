#pragma once

#include <QString>

#include "platform/Error.h"

namespace tavi {

/// Proof that no other process records into the same caches folder. Held until destroyed or until the process ends in
/// whatever way, for it is a lock of the kernel's and leaves nothing behind to clean up.
class InstanceLock {
public:
    /// Takes the lock of the folder, which must exist. Fails at once when another process has it.
    static Result<InstanceLock> take(const QString& cachesPath);

    ~InstanceLock();
    InstanceLock(InstanceLock&& other) noexcept;
    InstanceLock& operator=(InstanceLock&& other) noexcept;
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

private:
    explicit InstanceLock(int descriptor) : m_descriptor(descriptor) {}

    int m_descriptor = -1;
};

}  // namespace tavi
