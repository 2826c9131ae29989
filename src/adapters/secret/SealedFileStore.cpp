#include "adapters/secret/SealedFileStore.h"

#include <sodium.h>

#include <QDataStream>
#include <QIODevice>

#include "files/PathText.h"

namespace tavi {

namespace {

using Items = SealedFileStore::Items;

const QByteArray kMark = QByteArrayLiteral("TAVIKC1\n");
const QByteArray kKeyMark = QByteArrayLiteral("TAVIKK1\n");
constexpr qsizetype kNonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype kTagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;
constexpr qsizetype kKeySize = crypto_aead_xchacha20poly1305_ietf_KEYBYTES;
constexpr auto kStreamVersion = QDataStream::Qt_6_0;

const unsigned char* bytesOf(const QByteArray& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}
unsigned char* bytesOf(QByteArray& bytes) {
    return reinterpret_cast<unsigned char*>(bytes.data());
}
unsigned long long sizeOf(const QByteArray& bytes) {
    return static_cast<unsigned long long>(bytes.size());
}

QByteArray plainOf(const Items& items) {
    QByteArray plain;
    QDataStream stream(&plain, QIODevice::WriteOnly);
    stream.setVersion(kStreamVersion);
    stream << static_cast<quint32>(items.size());
    for (const auto& [parts, attributes] : items) {
        const auto& [account, service, group] = parts;
        stream << account << service << group << static_cast<quint8>(attributes.accessible) << attributes.valueData;
    }
    return plain;
}

std::optional<Items> itemsOf(const QByteArray& plain) {
    QDataStream stream(plain);
    stream.setVersion(kStreamVersion);
    quint32 count = 0;
    stream >> count;
    Items items;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString account;
        QString service;
        QString group;
        quint8 accessible = 0;
        QByteArray data;
        stream >> account >> service >> group >> accessible >> data;
        items[{account, service, group}] = {.valueData = data,
                                            .accessible = static_cast<KeychainAccessibility>(accessible)};
    }
    return stream.status() == QDataStream::Ok && stream.atEnd() ? std::optional(items) : std::nullopt;
}

QByteArray sealed(QByteArray plain, const QByteArray& key) {
    QByteArray nonce(kNonceSize, Qt::Uninitialized);
    randombytes_buf(nonce.data(), static_cast<std::size_t>(nonce.size()));
    QByteArray box(plain.size() + kTagSize, Qt::Uninitialized);
    crypto_aead_xchacha20poly1305_ietf_encrypt(bytesOf(box), nullptr, bytesOf(std::as_const(plain)), sizeOf(plain),
                                               bytesOf(kMark), sizeOf(kMark), nullptr, bytesOf(std::as_const(nonce)),
                                               bytesOf(key));
    wipe(plain);
    return kMark + nonce + box;
}

/// Nothing for what this key has not sealed.
std::optional<QByteArray> opened(const QByteArray& file, const QByteArray& key) {
    const qsizetype start = kMark.size() + kNonceSize;
    if (!file.startsWith(kMark) || file.size() < start + kTagSize) {
        return std::nullopt;
    }
    const QByteArray nonce = file.mid(kMark.size(), kNonceSize);
    const QByteArray box = file.mid(start);
    QByteArray plain(box.size() - kTagSize, Qt::Uninitialized);
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(bytesOf(plain), nullptr, nullptr, bytesOf(box), sizeOf(box),
                                                   bytesOf(kMark), sizeOf(kMark), bytesOf(nonce), bytesOf(key)) != 0) {
        return std::nullopt;
    }
    return plain;
}

}  // namespace

tl::expected<QByteArray, StoreTrouble> SealedFileStore::key(bool mayMake) const {
    const auto trouble = [this](StoreTrouble::Kind kind) {
        return tl::unexpected(StoreTrouble{.kind = kind, .detail = pathText(m_places.key)});
    };
    auto file = readPrivateFile(m_places.key);
    if (!file) {
        return tl::unexpected(file.error());
    }
    if (*file) {
        QByteArray& bytes = **file;
        if (!bytes.startsWith(kKeyMark) || bytes.size() != kKeyMark.size() + kKeySize) {
            return trouble(StoreTrouble::Kind::FileDamaged);
        }
        return bytes.sliced(kKeyMark.size());
    }
    if (!mayMake) {
        return trouble(StoreTrouble::Kind::KeyMissing);
    }
    QByteArray made(kKeySize, Qt::Uninitialized);
    crypto_aead_xchacha20poly1305_ietf_keygen(bytesOf(made));
    if (const int error = replacePrivateFile(m_places.key, kKeyMark + made); error != 0) {
        return tl::unexpected(StoreTrouble{.kind = StoreTrouble::Kind::NotStored, .detail = qt_error_string(error)});
    }
    return made;
}

tl::expected<Items, StoreTrouble> SealedFileStore::items() const {
    const auto damaged = [this] {
        return tl::unexpected(
            StoreTrouble{.kind = StoreTrouble::Kind::FileDamaged, .detail = pathText(m_places.sealed())});
    };
    if (sodium_init() < 0) {
        return damaged();
    }
    const auto file = readPrivateFile(m_places.sealed());
    if (!file) {
        return tl::unexpected(file.error());
    }
    if (!*file) {
        return Items();
    }
    const auto secret = key(false);
    if (!secret) {
        return tl::unexpected(secret.error());
    }
    auto plain = opened(**file, *secret);
    if (!plain) {
        return damaged();
    }
    auto items = itemsOf(*plain);
    wipe(*plain);
    if (!items) {
        return damaged();
    }
    return *items;
}

StoreAnswer SealedFileStore::write(const Items& items) const {
    const auto secret = key(true);
    if (!secret) {
        return unavailable(secret.error().kind, secret.error().detail);
    }
    const int error = replacePrivateFile(m_places.sealed(), sealed(plainOf(items), *secret));
    return error == 0 ? StoreAnswer() : unavailable(StoreTrouble::Kind::NotStored, qt_error_string(error));
}

StoreAnswer SealedFileStore::perform(const StoreRequest& request) {
    using Kind = StoreRequest::Kind;
    auto all = items();
    if (!all) {
        return unavailable(all.error().kind, all.error().detail);
    }
    const auto found = all->find({request.query.account, request.query.service, request.query.accessGroup});
    const bool isThere = found != all->end();
    switch (request.kind) {
        case Kind::Fetch: {
            StoreAnswer answer{.status = KeychainStatus::ItemNotFound};
            if (isThere) {
                answer = {.status = KeychainStatus::Success, .attributes = std::move(found->second)};
            }
            for (auto& [parts, other] : *all) {
                wipe(other.valueData);
            }
            return answer;
        }
        case Kind::Add:
            if (isThere) {
                return {.status = KeychainStatus::DuplicateItem};
            }
            break;
        case Kind::Update:
        case Kind::Remove:
            if (!isThere) {
                return {.status = KeychainStatus::ItemNotFound};
            }
            break;
        case Kind::Put:
            break;
    }
    if (request.kind == Kind::Remove) {
        all->erase(found);
    } else {
        (*all)[{request.query.account, request.query.service, request.query.accessGroup}] = request.attributes;
    }
    return write(*all);
}

}  // namespace tavi
