#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "adapters/webdav/SyncPass.h"

namespace tavi {

/// Whether a password may be sent to an address: https, or http to this machine, and none in the address itself.
bool mayHavePassword(const QUrl& url);

/// Keeps a folder of this machine in step with a folder on a WebDAV server, on a thread of its own, for as long as it
/// lives: at once when something changes here, and by looking there every minute, less often the longer nothing
/// changes, up to an hour. Without a network what is to be done waits in the journal.
class WebDavMirror : public CloudMirror {
public:
    struct Place {
        DavClient::Account account;
        std::filesystem::path folder;
        std::filesystem::path journal;
        QString device;
    };

    /// Fails where the journal cannot be written, or the address may not have a password. The trash must outlive it,
    /// and is called on its thread.
    static Result<std::unique_ptr<WebDavMirror>> create(const Place& place, Trash& trash);
    /// Waits for what is under way to be given up, which is at once.
    ~WebDavMirror() override;

    void setObserver(std::function<void()> observer) override;
    std::map<std::filesystem::path, MirrorState> states() const override;
    void documentsChanged() override { wake(); }
    Result<void> download(const std::filesystem::path& name) override;
    Result<void> willEvict(const std::filesystem::path& name) override;
    Result<void> willRemove(const std::filesystem::path& name) override;
    void didNotRemove(const std::filesystem::path& name) override;
    Result<void> willMove(const std::filesystem::path& from, const std::filesystem::path& to) override;

    void didNotMove(const std::filesystem::path& from, const std::filesystem::path& to) override;

    /// The passes so far, and what the last one came to. Any thread.
    std::pair<int, SyncOutcome> lastPass() const;
    /// Looks at both sides soon. Any thread.
    void wake();

private:
    WebDavMirror(const Place& place, Trash& trash, std::unique_ptr<SyncJournal> journal);
    void run();
    /// Changes what others read, and tells the observer.
    void update(const std::function<void()>& change);
    Result<void> noted(bool isWritten);

    Place m_place;
    Trash& m_trash;
    std::unique_ptr<SyncJournal> m_journal;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isAsked = true;
    bool m_hasEnded = false;
    SyncPass::States m_states;
    SyncOutcome m_outcome;
    int m_passes = 0;
    DavClient* m_client = nullptr;
    /// Held while the observer is called.
    std::mutex m_observerMutex;
    std::function<void()> m_observer;
    std::thread m_thread;
};

}  // namespace tavi
