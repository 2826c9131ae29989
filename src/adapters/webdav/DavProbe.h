#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include "adapters/webdav/DavClient.h"

namespace tavi {

/// Asks a server whether that folder can hold recordings: whether it is one, and can be written to, renamed in and
/// deleted from. Where there is none it is made. Leaves nothing behind. On the client's thread; waits.
Result<void> probeFolder(DavClient& client);

/// The same on a thread of its own. Its end gives up what is under way.
class DavProbe {
public:
    /// Calls on that thread, and not once this is gone.
    DavProbe(const DavClient::Account& account, std::function<void(Result<void>)> answered);
    ~DavProbe();
    DavProbe(const DavProbe&) = delete;
    DavProbe& operator=(const DavProbe&) = delete;

private:
    std::mutex m_mutex;
    bool m_hasEnded = false;
    DavClient* m_client = nullptr;
    std::thread m_thread;
};

}  // namespace tavi
