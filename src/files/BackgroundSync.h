#pragma once

#include <atomic>
#include <filesystem>
#include <semaphore>
#include <thread>

#include "files/PositionedIo.h"

namespace tavi {

/// Brings a file that grows to the disk on a thread of its own, so that whoever writes it does not wait for a slow
/// disk. The thread begins with the first request. One thread at a time.
class BackgroundSync {
public:
    /// The descriptor is borrowed.
    BackgroundSync(int fd, std::filesystem::path folder, SyncFunction sync)
        : m_fd(fd), m_folder(std::move(folder)), m_sync(std::move(sync)) {}
    ~BackgroundSync() { finish(); }
    BackgroundSync(const BackgroundSync&) = delete;
    BackgroundSync& operator=(const BackgroundSync&) = delete;

    /// Asks for what is in the file by now, and returns at once; with the first request for its entry in the folder
    /// and that folder's own, too. Requests that come while the disk is busy become one.
    void begin();
    /// Waits for what has been asked for, and ends the thread until begin() is called again. The first errno that was
    /// met, or 0.
    int finish();

private:
    void run();

    int m_fd;
    std::filesystem::path m_folder;
    SyncFunction m_sync;
    std::atomic<bool> m_isAsked = false;
    /// Written by the thread; read after its end.
    int m_error = 0;
    std::counting_semaphore<> m_wake{0};
    std::thread m_thread;
};

}  // namespace tavi
