#pragma once

#include <QByteArray>
#include <functional>

#include "adapters/secret/GlibHandles.h"
#include "adapters/secret/ItemStore.h"

namespace tavi {

/// Items in the desktop's keyring: the Secret Service of freedesktop.org, through libsecret.
///
/// One item there an item here, found by the attributes "account", "service", "group" and "container"; "accessible" is
/// the number of its accessibility. A keyring that was started anew is found by the next request. One that is locked
/// asks the user, for as long as that takes; one that does not answer is given up after three seconds.
///
/// One thread for all but cancel().
class KeyringStore final : public ItemStore {
public:
    KeyringStore();
    ~KeyringStore() override;
    KeyringStore(const KeyringStore&) = delete;
    KeyringStore& operator=(const KeyringStore&) = delete;

    /// Tells the items of this container from those of others, until it is set anew.
    void setContainer(const QByteArray& identifier) { m_container = identifier; }
    /// Whether there is a keyring that keeps secrets.
    bool answers();
    StoreAnswer perform(const StoreRequest& request) override;

    /// Ends what is waited for, and every later request at once. Any thread.
    void cancel() { g_cancellable_cancel(m_cancellable.get()); }

private:
    using Items = GlibHandle<GList>;
    using Attributes = GlibHandle<GHashTable>;

    StoreAnswer inOwnContext(const std::function<StoreAnswer()>& work);
    StoreAnswer ping();
    StoreAnswer open();
    Attributes attributesOf(const KeychainQuery& query) const;
    StoreAnswer fetch(GList* items) const;
    StoreAnswer add(const StoreRequest& request);
    StoreAnswer update(GList* items, const StoreRequest& request);
    StoreAnswer remove(const StoreRequest& request);
    StoreAnswer answerTo(const StoreRequest& request);

    QByteArray m_container;
    GlibHandle<GCancellable> m_cancellable;
    /// Where the library's answers arrive; the main thread's loop knows nothing of them.
    GlibHandle<GMainContext> m_context;
    /// With its session; null before the first request.
    GlibHandle<SecretService> m_service;
};

}  // namespace tavi
