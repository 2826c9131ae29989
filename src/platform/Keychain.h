#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <tl/expected.hpp>

namespace tavi {

/// When an item may be read, as its writer wants it. Kept with the item and given back with it; a store that opens and
/// closes as a whole does nothing else with it.
enum class KeychainAccessibility {
    WhenUnlocked,
    AfterFirstUnlock,
    Always,
    WhenUnlockedThisDeviceOnly,
    AfterFirstUnlockThisDeviceOnly,
    AlwaysThisDeviceOnly,
};

/// Which item is meant: the one that has all three alike. An empty service or access group is one like any other.
struct KeychainQuery {
    QString account;
    QString service;
    QString accessGroup;

    bool operator==(const KeychainQuery&) const = default;
};

/// What an item holds: any bytes, also none.
struct KeychainAttributes {
    QByteArray valueData;
    KeychainAccessibility accessible = KeychainAccessibility::WhenUnlocked;

    bool operator==(const KeychainAttributes&) const = default;
};

enum class KeychainStatus {
    Success = 0,
    ItemNotFound,
    /// An item with these three parts is there already.
    DuplicateItem,
    /// The store is locked, does not answer, or is not to be read or written; trouble() says why.
    NotAvailable,
};

/// A store of secrets that is the user's own, an item a query.
///
/// Main thread only. Every call answers soon: where the store does not, for instance since it asks the user for its own
/// password first, the answer is NotAvailable. What such a call was to store is not lost: it is stored once the store
/// answers, and fetch() gives it back until then.
class Keychain {
public:
    virtual ~Keychain() = default;

    /// Makes the item, which must not be there.
    virtual KeychainStatus add(const KeychainQuery& query, const KeychainAttributes& attributes) = 0;
    /// Replaces what the item holds, which must be there.
    virtual KeychainStatus update(const KeychainQuery& query, const KeychainAttributes& attributes) = 0;
    /// What the item holds, or why that cannot be told.
    virtual tl::expected<KeychainAttributes, KeychainStatus> fetch(const KeychainQuery& query) = 0;
    /// Removes the item, which must be there.
    virtual KeychainStatus remove(const KeychainQuery& query) = 0;

    /// What keeps the items from being read or stored, in sentences for the user; empty while nothing does.
    virtual QString trouble() const = 0;
    /// Has the main thread hear when trouble() has changed, also between calls. An empty function is allowed.
    virtual void setTroubleHandler(std::function<void()> handler) = 0;
};

}  // namespace tavi
