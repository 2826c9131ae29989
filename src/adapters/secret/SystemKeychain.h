#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "adapters/secret/ItemStore.h"
#include "adapters/secret/StoreFiles.h"
#include "platform/DispatchQueues.h"

namespace tavi {

/// The user's keychain: the desktop's keyring through libsecret, or where there is none a file that libsodium has
/// sealed. StoreChoice says which; one line of the log does, too.
///
/// The store works on a thread of its own. A call waits for it, but not longer than its patience; once that has run out
/// every call is answered at once until the store has caught up. So a keyring that asks the user for its password, or
/// hangs, costs the window a quarter of a second and no more. What was to be stored meanwhile, or could not be, waits
/// in memory and is stored after the next answer that shows the store to be there; what still waits at the end is lost,
/// and trouble() has said so.
class SystemKeychain final : public Keychain {
public:
    /// The queues outlive this. Nothing is read or asked before the first call.
    SystemKeychain(const StorePlaces& places, DispatchQueues& queues,
                   std::chrono::milliseconds patience = std::chrono::milliseconds(250));
    /// Gives what is under way as long as a call would, and then ends it.
    ~SystemKeychain() override;

    /// Chooses the store in the background, so that the first call need not wait for that.
    void prepare();

    KeychainStatus add(const KeychainQuery& query, const KeychainAttributes& attributes) override;
    KeychainStatus update(const KeychainQuery& query, const KeychainAttributes& attributes) override;
    tl::expected<KeychainAttributes, KeychainStatus> fetch(const KeychainQuery& query) override;
    KeychainStatus remove(const KeychainQuery& query) override;
    QString trouble() const override { return textOf(m_trouble); }
    void setTroubleHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

private:
    class StoreThread;

    StoreAnswer ask(const StoreRequest& request);
    void heard(const StoreAnswer& answer);
    void setTrouble(const StoreTrouble& trouble);
    KeychainStatus write(const StoreRequest& request);
    void storeWaiting();
    void heardOfWaiting(const StoreRequest& request, const StoreAnswer& answer);

    DispatchQueues& m_queues;
    const std::chrono::milliseconds m_patience;
    std::function<void()> m_handler;
    StoreTrouble m_trouble;
    /// What is to be stored or removed once the store answers: at most one for each item.
    std::vector<StoreRequest> m_waiting;
    /// The store has let a call wait too long and has not answered since.
    bool m_isLate = false;
    std::unique_ptr<StoreThread> m_thread;
    /// Gone with this: what the thread has to say afterwards is for nobody.
    std::shared_ptr<SystemKeychain*> m_self = std::make_shared<SystemKeychain*>(this);
};

}  // namespace tavi
