#pragma once

#include <chrono>
#include <filesystem>

#include "platform/CoordinatedFiles.h"

namespace tavi {

/// Files that one program at a time is at, by locks of the kernel's: each is one byte of a lock file, chosen by the
/// folder and the name of the file that is meant, so that nothing is left behind and nothing has to be removed. Who
/// asks for a file from within its own accessor does not get it. Any thread.
class LocalCoordinatedFiles final : public CoordinatedFiles {
public:
    /// The folder of the lock file, the same for all who share files. Waits so long for another who is at a file.
    explicit LocalCoordinatedFiles(const std::filesystem::path& folder,
                                   std::chrono::milliseconds patience = std::chrono::milliseconds(250))
        : m_lockFile(folder / "coordination.lock"), m_patience(patience) {}

    bool coordinate(const std::filesystem::path& file, const std::function<void()>& accessor) override;

private:
    const std::filesystem::path m_lockFile;
    const std::chrono::milliseconds m_patience;
};

}  // namespace tavi
