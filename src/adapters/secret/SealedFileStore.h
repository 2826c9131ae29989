#pragma once

#include <map>
#include <tuple>

#include "adapters/secret/StoreFiles.h"

namespace tavi {

/// Items in one file that libsodium has sealed: XChaCha20-Poly1305 (RFC 8439 with the longer nonce of
/// draft-irtf-cfrg-xchacha) under a random key that lies in a file of its own.
///
///     sealed  "TAVIKC1\n", 24 bytes of nonce, new with each write, then the items as a QDataStream, sealed with the
///             first eight bytes as additional data
///     key     "TAVIKK1\n", 32 bytes
///
/// Both are for the user alone. This keeps the items from whoever gets hold of the one file without the other, such as
/// a folder of settings that is copied elsewhere; it does not keep them from whoever reads all that the user can read.
/// Every write replaces the file as a whole. What is damaged, truncated, sealed with another key or not a file of the
/// user's is never overwritten: nothing is read or stored then.
class SealedFileStore final : public ItemStore {
public:
    using Items = std::map<std::tuple<QString, QString, QString>, KeychainAttributes>;

    explicit SealedFileStore(StorePlaces places) : m_places(std::move(places)) {}

    /// Writes while the caller holds the lock.
    StoreAnswer perform(const StoreRequest& request) override;

    /// All items; none where there is no file.
    tl::expected<Items, StoreTrouble> items() const;

private:
    tl::expected<QByteArray, StoreTrouble> key(bool mayMake) const;
    StoreAnswer write(const Items& items) const;

    StorePlaces m_places;
};

}  // namespace tavi
