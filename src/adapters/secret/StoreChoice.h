#pragma once

#include <optional>
#include <stop_token>

#include "adapters/secret/KeyringStore.h"
#include "adapters/secret/SealedFileStore.h"

namespace tavi {

/// The keyring, or the sealed file where there is none: chosen at the first request, and then for good.
///
/// "keychain.keyring" says, since before the first item gets there, that the keyring holds the items, and the
/// container's identifier in it. Where it exists no other store is chosen, whether the keyring answers or not; and it
/// holds for a program that has chosen the file before. Items of the file move to a keyring that answers at the start:
/// the file goes when all of them have been read back from there.
///
/// One thread for all but cancel().
class StoreChoice final : public ItemStore {
public:
    explicit StoreChoice(const StorePlaces& places) : m_places(places), m_file(places) {}

    StoreAnswer perform(const StoreRequest& request) override;

    /// Chooses, unless that is done.
    void choose();
    /// Ends what is waited for. Any thread.
    void cancel();

private:
    enum class Kind { Keyring, File };

    tl::expected<std::optional<QByteArray>, StoreTrouble> identifier() const;
    StoreTrouble moveToKeyring();
    StoreTrouble writeIdentifier(const QByteArray& identifier) const;
    StoreAnswer performInKeyring(const StoreRequest& request);

    StorePlaces m_places;
    std::stop_source m_stop;
    KeyringStore m_keyring;
    SealedFileStore m_file;
    std::optional<Kind> m_kind;
};

}  // namespace tavi
