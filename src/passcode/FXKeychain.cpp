#include "passcode/FXKeychain.h"

#include <QStringDecoder>
#include <QStringEncoder>
#include <algorithm>

namespace tavi {

namespace {

/// How a binary property list begins.
constexpr QByteArrayView kMark("bplist");

const QString kArchiver = QStringLiteral("$archiver");

struct DefaultPorts {
    Keychain* keychain = nullptr;
    const PropertyLists* propertyLists = nullptr;
};

DefaultPorts& defaultPorts() {
    static DefaultPorts s_ports;
    return s_ports;
}

/// Nothing for half a surrogate pair, which has no bytes.
std::optional<QByteArray> bytesOf(const QString& text) {
    QStringEncoder encoder(QStringEncoder::Utf8, QStringConverter::Flag::Stateless);
    QByteArray bytes = encoder(text);
    return encoder.hasError() ? std::nullopt : std::optional(bytes);
}

QVariant textOf(const QByteArray& bytes) {
    // A mark of the byte order is a character like any other.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QVariant() : QVariant(text);
}

}  // namespace

QVariant FXKeychain_propertyListRepresentation(const QVariant& value) {
    return value;
}

FXKeychain::FXKeychain(Keychain& keychain, const PropertyLists& propertyLists, const QString& service,
                       const QString& accessGroup, int accessibility)
    : m_keychain(keychain),
      m_propertyLists(propertyLists),
      m_service(service),
      m_accessGroup(accessGroup),
      m_accessibility(std::clamp(accessibility, 0, static_cast<int>(KeychainAccessibility::AlwaysThisDeviceOnly))) {
    m_keychain.setTroubleHandler([this] { Q_EMIT troubleChanged(); });
}

FXKeychain::~FXKeychain() {
    m_keychain.setTroubleHandler({});
}

void FXKeychain::setDefaultPorts(Keychain& keychain, const PropertyLists& propertyLists) {
    defaultPorts() = {&keychain, &propertyLists};
}

FXKeychain& FXKeychain::defaultKeychain() {
    // Left to the end of the process: its ports are gone by then.
    static auto* const s_default = [] {
        const DefaultPorts& ports = defaultPorts();
        Q_ASSERT(ports.keychain != nullptr && ports.propertyLists != nullptr);
        return new FXKeychain(*ports.keychain, *ports.propertyLists, kBundleIdentifier);
    }();
    return *s_default;
}

std::optional<QByteArray> FXKeychain::dataForKey(const QString& key) const {
    const auto found = m_keychain.fetch(queryFor(key));
    return found ? std::optional(found->valueData) : std::nullopt;
}

std::optional<QByteArray> FXKeychain::encoded(const QVariant& value) const {
    if (!value.isValid()) {
        return std::nullopt;
    }
    if (value.typeId() == QMetaType::QString) {
        std::optional<QByteArray> bytes = bytesOf(value.toString());
        // A text that would be read as a property list is stored as one that holds it, on purpose: so it stays a text.
        if (!bytes || !bytes->startsWith(kMark) || !m_propertyLists.propertyListWithData(*bytes)) {
            return bytes;
        }
    }
    const QVariant representation = FXKeychain_propertyListRepresentation(value);
    if (const auto data = m_propertyLists.dataWithPropertyList(representation)) {
        return *data;
    }
    const auto archive = m_propertyLists.archivedDataWithRootObject(value);
    return archive ? std::optional(*archive) : std::nullopt;
}

bool FXKeychain::setObject(const QVariant& value, const QString& key) {
    const KeychainQuery query = queryFor(key);
    std::optional<QByteArray> data = encoded(value);
    if (!data) {
        return m_keychain.remove(query) == KeychainStatus::Success;
    }
    const KeychainAttributes attributes{.valueData = std::move(*data),
                                        .accessible = static_cast<KeychainAccessibility>(m_accessibility)};
    KeychainStatus status = dataForKey(key) ? m_keychain.update(query, attributes) : m_keychain.add(query, attributes);
    // A store that opens between the two calls, or another program, has made another of what was found.
    if (status == KeychainStatus::DuplicateItem) {
        status = m_keychain.update(query, attributes);
    } else if (status == KeychainStatus::ItemNotFound) {
        status = m_keychain.add(query, attributes);
    }
    return status == KeychainStatus::Success;
}

QVariant FXKeychain::decoded(const QByteArray& data) const {
    if (data.startsWith(kMark)) {
        if (const auto list = m_propertyLists.propertyListWithData(data)) {
            if (!list->toMap().contains(kArchiver)) {
                return *list;
            }
            if (const auto object = m_propertyLists.unarchiveObjectWithData(data)) {
                return *object;
            }
        }
    }
    return textOf(data);
}

QVariant FXKeychain::objectForKey(const QString& key) const {
    std::optional<QByteArray> data = dataForKey(key);
    if (!data) {
        return {};
    }
    QVariant value = decoded(*data);
    // What is no longer needed does not stay in memory.
    data->fill('\0');
    return value;
}

}  // namespace tavi
