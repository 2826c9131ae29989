#pragma once

#include <QString>
#include <filesystem>
#include <utility>

#include "files/FileDescriptor.h"
#include "platform/Error.h"

namespace tavi {

/// Proof that no other process records into the same caches folder. Held until destroyed or until the process ends in
/// whatever way, for it is a lock of the kernel's and leaves nothing behind to clean up.
class InstanceLock {
public:
    /// Why there is no lock.
    struct Refusal {
        /// Another process has it. Otherwise nobody can have it: the file cannot be made or locked.
        bool isHeld = false;
        Error error;
    };

    /// Takes the lock of the folder, which must exist. Fails at once when another process has it.
    static tl::expected<InstanceLock, Refusal> take(const std::filesystem::path& cachesPath);
    /// Whether a process has it. Only asks, so that it keeps nobody from taking it.
    static bool isHeld(const std::filesystem::path& cachesPath);

private:
    explicit InstanceLock(FileDescriptor file) : m_file(std::move(file)) {}

    FileDescriptor m_file;
};

}  // namespace tavi
