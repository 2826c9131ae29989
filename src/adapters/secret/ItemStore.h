#pragma once

#include <QString>

#include "platform/Keychain.h"

namespace tavi {

/// Why a store of items cannot be read or written.
struct StoreTrouble {
    enum class Kind {
        None,
        /// Nothing has been heard yet.
        Waiting,
        KeyringLocked,
        /// The keyring is not there, or has stopped answering.
        KeyringGone,
        /// detail is a path in these three.
        FileDamaged,
        FileForeign,
        KeyMissing,
        /// detail says why, in the system's words.
        NotStored,
    };

    Kind kind = Kind::None;
    QString detail = {};

    bool operator==(const StoreTrouble&) const = default;
};

/// In sentences for the user; empty for none. The main thread.
QString textOf(const StoreTrouble& trouble);

/// What a store is asked to do.
struct StoreRequest {
    enum class Kind {
        Fetch,
        Add,
        Update,
        Remove,
        /// Adds or updates.
        Put,
    };

    Kind kind = Kind::Fetch;
    KeychainQuery query;
    /// Of Add, Update and Put.
    KeychainAttributes attributes = {};
};

struct StoreAnswer {
    KeychainStatus status = KeychainStatus::Success;
    /// Of a Fetch that found an item.
    KeychainAttributes attributes = {};
    /// Of NotAvailable.
    StoreTrouble trouble = {};
};

inline StoreAnswer unavailable(StoreTrouble::Kind kind, const QString& detail = {}) {
    return {.status = KeychainStatus::NotAvailable, .attributes = {}, .trouble = {.kind = kind, .detail = detail}};
}

/// Somewhere that items are kept. One thread, which may have to wait.
class ItemStore {
public:
    virtual ~ItemStore() = default;

    virtual StoreAnswer perform(const StoreRequest& request) = 0;
};

}  // namespace tavi
