#include "files/BackgroundSync.h"

#include <cerrno>

#include "files/DurableFile.h"
#include "files/FileNames.h"

namespace tavi {

void BackgroundSync::begin() {
    if (!m_thread.joinable()) {
        m_thread = std::thread([this] { run(); });
    }
    if (!m_isAsked.exchange(true)) {
        m_wake.release();
    }
}

int BackgroundSync::finish() {
    if (m_thread.joinable()) {
        m_wake.release();
        m_thread.join();
    }
    return m_error;
}

void BackgroundSync::run() {
    for (bool isFirst = true;; isFirst = false) {
        m_wake.acquire();
        // Woken without having been asked: the end, which comes after all that was asked for.
        if (!m_isAsked.exchange(false)) {
            return;
        }
        int error = m_sync(m_fd) == 0 ? 0 : errno;
        if (isFirst && error == 0) {
            // The folder may be as new as the file.
            error = synchronizeFolder(m_folder);
            error = error != 0 ? error : synchronizeFolder(folderOf(m_folder));
        }
        m_error = m_error != 0 ? m_error : error;
    }
}

}  // namespace tavi
