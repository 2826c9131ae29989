#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "adapters/webdav/SyncPace.h"
#include "adapters/webdav/SyncPass.h"

namespace tavi {

/// Whether a password may be sent to an account's address: https, or http to this machine or where its user has agreed
/// to that, and none in the address itself.
bool mayHavePassword(const DavClient::Account& account);

/// How a mirror is.
struct MirrorCondition {
    bool isWorking = true;
    SyncOutcome outcome;
    /// When both sides had the same; invalid where they never have.
    QDateTime lastSync;
    /// How much of each file that is under way has been sent or fetched, 0 to 1.
    std::map<std::filesystem::path, double> progress;
    int passes = 0;
};

/// Keeps a folder of this machine in step with a folder on a WebDAV server, on a thread of its own, for as long as it
/// lives: at once when something changes here, and while somebody looks by looking there every minute, less often the
/// longer nothing changes, up to an hour. Without a network what is to be done waits in the journal.
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
    ~WebDavMirror() override { stop(); }
    /// Waits for what is under way to be given up, which is at once, but for a file that is being brought to the disk.
    /// What is noted afterwards waits in the journal. Any thread but its own; once.
    void stop();

    void setObserver(std::function<void()> observer) override;
    std::map<std::filesystem::path, MirrorState> states() const override;
    void documentsChanged() override { wake(); }
    Result<void> download(const std::filesystem::path& name) override;
    Result<void> willEvict(const std::filesystem::path& name) override;
    Result<void> willRemove(const std::filesystem::path& name) override;
    void didNotRemove(const std::filesystem::path& name) override;
    Result<void> willMove(const std::filesystem::path& from, const std::filesystem::path& to) override;

    void didNotMove(const std::filesystem::path& from, const std::filesystem::path& to) override;

    /// Calls on whatever thread after every change of condition(); nullptr for nobody, and none is under way then.
    void setConditionObserver(std::function<void()> observer);
    MirrorCondition condition() const;
    /// Looks at both sides soon. Any thread.
    void wake();
    /// Without a network it waits; where nobody looks it does what is to be done, and asks for no news. Any thread.
    void setCircumstances(bool isOnline, bool isVisible);
    /// About the files that the last pass has found vanished. Any thread.
    void answerVanished(bool areRemoved);

private:
    WebDavMirror(const Place& place, Trash& trash, std::unique_ptr<SyncJournal> journal);
    void run();
    /// Changes what others read, and tells the observer.
    void update(const std::function<void()>& change, bool areStates = true);
    SyncOutcome pass(DavClient& client);
    Result<void> noted(bool isWritten);

    Place m_place;
    Trash& m_trash;
    std::unique_ptr<SyncJournal> m_journal;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    SyncPace m_pace;
    bool m_hasEnded = false;
    SyncPass::States m_states;
    MirrorCondition m_condition;
    VanishedAnswer m_answer;
    DavClient* m_client = nullptr;
    /// Held while the observer is called.
    std::mutex m_observerMutex;
    std::function<void()> m_observer;
    std::function<void()> m_conditionObserver;
    std::thread m_thread;
};

}  // namespace tavi
