#include "adapters/secret/StoreChoice.h"

#include <sodium.h>

#include <QLoggingCategory>
#include <cerrno>
#include <tuple>

#include "files/PathText.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcKeychain, "tavi.keychain", QtInfoMsg)

const QByteArray kMark = QByteArrayLiteral("keyring ");
constexpr qsizetype kIdentifierSize = 16;

using Request = StoreRequest::Kind;

KeychainQuery queryOf(const SealedFileStore::Items::key_type& parts) {
    const auto& [account, service, group] = parts;
    return {account, service, group};
}

QByteArray newIdentifier() {
    QByteArray bytes(kIdentifierSize, Qt::Uninitialized);
    randombytes_buf(bytes.data(), static_cast<std::size_t>(bytes.size()));
    return bytes.toHex();
}

StoreTrouble notStored(int error) {
    return {.kind = StoreTrouble::Kind::NotStored, .detail = qt_error_string(error)};
}

StoreAnswer unavailable(const StoreTrouble& trouble) {
    return unavailable(trouble.kind, trouble.detail);
}

}  // namespace

tl::expected<std::optional<QByteArray>, StoreTrouble> StoreChoice::identifier() const {
    auto file = readPrivateFile(m_places.keyring());
    if (!file || !*file) {
        return file;
    }
    const QByteArray hex = (*file)->trimmed().mid(kMark.size());
    if (!(*file)->startsWith(kMark) || QByteArray::fromHex(hex).toHex() != hex || hex.size() != 2 * kIdentifierSize) {
        return tl::unexpected(
            StoreTrouble{.kind = StoreTrouble::Kind::FileDamaged, .detail = pathText(m_places.keyring())});
    }
    return hex;
}

StoreTrouble StoreChoice::writeIdentifier(const QByteArray& identifier) const {
    const int error = replacePrivateFile(m_places.keyring(), kMark + identifier + '\n');
    return error == 0 ? StoreTrouble() : notStored(error);
}

StoreTrouble StoreChoice::moveToKeyring() {
    const auto lock = StoreLock::take(m_places.lock(), m_stop.get_token());
    if (!lock) {
        return notStored(lock.error());
    }
    const auto items = m_file.items();
    if (!items) {
        return items.error();
    }
    const QByteArray identifier = newIdentifier();
    m_keyring.setContainer(identifier);
    StoreTrouble trouble;
    for (const auto& [parts, attributes] : *items) {
        const KeychainQuery query = queryOf(parts);
        StoreAnswer answer = m_keyring.perform({.kind = Request::Put, .query = query, .attributes = attributes});
        if (answer.status == KeychainStatus::Success) {
            answer = m_keyring.perform({.kind = Request::Fetch, .query = query});
        }
        if (answer.attributes != attributes) {
            trouble = answer.trouble.kind == StoreTrouble::Kind::None ? notStored(EIO) : answer.trouble;
            break;
        }
    }
    if (trouble.kind == StoreTrouble::Kind::None) {
        trouble = writeIdentifier(identifier);
    }
    if (trouble.kind != StoreTrouble::Kind::None) {
        for (const auto& [parts, attributes] : *items) {
            m_keyring.perform({.kind = Request::Remove, .query = queryOf(parts)});
        }
        return trouble;
    }
    removePrivateFile(m_places.sealed());
    removePrivateFile(m_places.key);
    return {};
}

void StoreChoice::choose() {
    if (m_kind) {
        return;
    }
    const auto known = identifier();
    if (!known || *known) {
        m_kind = Kind::Keyring;
    } else if (!m_keyring.answers()) {
        m_kind = Kind::File;
    } else {
        const auto file = readPrivateFile(m_places.sealed());
        const bool isInFile = !file || file->has_value();
        const StoreTrouble trouble = isInFile ? moveToKeyring() : StoreTrouble();
        m_kind = trouble.kind == StoreTrouble::Kind::None ? Kind::Keyring : Kind::File;
        if (isInFile && m_kind == Kind::Keyring) {
            qCInfo(lcKeychain, "The secrets have moved from the program's own file to the desktop's keyring.");
            return;
        }
    }
    qCInfo(lcKeychain, "%s",
           m_kind == Kind::Keyring ? "Secrets are kept in the desktop's keyring."
                                   : "Secrets are kept in a file of the program's own.");
}

StoreAnswer StoreChoice::performInKeyring(const StoreRequest& request) {
    auto known = identifier();
    if (known && !*known) {
        // No item has got there yet.
        if (request.kind != Request::Add && request.kind != Request::Put) {
            return {.status = KeychainStatus::ItemNotFound};
        }
        if (const StoreTrouble trouble = writeIdentifier(newIdentifier()); trouble.kind != StoreTrouble::Kind::None) {
            return unavailable(trouble);
        }
        known = identifier();
    }
    if (!known) {
        return unavailable(known.error());
    }
    m_keyring.setContainer(known->value_or(QByteArray()));
    return m_keyring.perform(request);
}

StoreAnswer StoreChoice::perform(const StoreRequest& request) {
    choose();
    tl::expected<StoreLock, int> lock = tl::unexpected(0);
    if (request.kind != Request::Fetch) {
        lock = StoreLock::take(m_places.lock(), m_stop.get_token());
        if (!lock) {
            return unavailable(notStored(lock.error()));
        }
    }
    const auto known = identifier();
    return m_kind == Kind::Keyring || !known || *known ? performInKeyring(request) : m_file.perform(request);
}

void StoreChoice::cancel() {
    m_stop.request_stop();
    m_keyring.cancel();
}

}  // namespace tavi
