#include "adapters/secret/ItemStore.h"

#include <QCoreApplication>

namespace tavi {

QString textOf(const StoreTrouble& trouble) {
    using Kind = StoreTrouble::Kind;
    switch (trouble.kind) {
        case Kind::None:
            return {};
        case Kind::Waiting:
            return qtTrId("error_keychain_waiting");
        case Kind::KeyringLocked:
            return qtTrId("error_keychain_locked");
        case Kind::KeyringGone:
            return qtTrId("error_keychain_gone");
        case Kind::FileDamaged:
            return qtTrId("error_keychain_damaged").arg(trouble.detail);
        case Kind::FileForeign:
            return qtTrId("error_keychain_foreign").arg(trouble.detail);
        case Kind::KeyMissing:
            return qtTrId("error_keychain_key").arg(trouble.detail);
        case Kind::NotStored:
            return qtTrId("error_keychain_store").arg(trouble.detail);
    }
    return {};
}

}  // namespace tavi
