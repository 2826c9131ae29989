#include "adapters/secret/KeyringStore.h"

#include <gio/gio.h>

#include <QFileInfo>
#include <array>

namespace tavi {

namespace {

constexpr auto kService = "org.freedesktop.secrets";
constexpr auto kServicePath = "/org/freedesktop/secrets";
constexpr int kPatience = 3000;
/// How often, and how many microseconds apart, it is looked whether a bus that has ended was let go.
constexpr int kBusLooks = 50;
constexpr gulong kBusPause = 10'000;
constexpr auto kAccessible = "accessible";
/// What the desktop's own programs show of an item. It says nothing about what is in it.
constexpr auto kLabel = "Tavi";

const SecretSchema* schema() {
    static const SecretSchema s_schema = [] {
        SecretSchema made = {};
        made.name = "com.quillfen.voicerecorder.Item";
        made.flags = SECRET_SCHEMA_NONE;
        std::size_t count = 0;
        for (const char* name : {"account", "service", "group", "container", kAccessible}) {
            made.attributes[count++] = {name, SECRET_SCHEMA_ATTRIBUTE_STRING};
        }
        return made;
    }();
    return &s_schema;
}

void insert(GHashTable* table, const char* name, const QByteArray& value) {
    g_hash_table_insert(table, g_strdup(name), g_strdup(value.constData()));
}

/// Where an error comes from; takes it.
StoreAnswer answerOf(GError* error) {
    const GlibHandle<GError> owned(error);
    if (!owned || g_error_matches(owned.get(), SECRET_ERROR, SECRET_ERROR_IS_LOCKED) ||
        g_error_matches(owned.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED)) {
        // Somebody has sent the question for the keyring's password away.
        return unavailable(StoreTrouble::Kind::KeyringLocked);
    }
    return unavailable(StoreTrouble::Kind::KeyringGone, QString::fromUtf8(owned->message));
}

GlibHandle<SecretValue> valueOf(const QByteArray& bytes) {
    return GlibHandle<SecretValue>(
        secret_value_new(bytes.constData(), static_cast<gssize>(bytes.size()), "application/octet-stream"));
}

QByteArray accessibleOf(const KeychainAttributes& attributes) {
    return QByteArray::number(static_cast<int>(attributes.accessible));
}

/// The session's bus, with which the process does not end.
GlibHandle<GDBusConnection> sessionBus(GCancellable* cancellable, GError** error) {
    GlibHandle<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, error));
    if (bus) {
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    }
    return bus;
}

/// The library hands out a bus that has ended until the last part of the process has let it go.
bool isClosedBusKept(GCancellable* cancellable) {
    const auto bus = sessionBus(cancellable, nullptr);
    return bus && g_dbus_connection_is_closed(bus.get()) != FALSE;
}

SecretItem* firstOf(GList* items) {
    return items == nullptr ? nullptr : SECRET_ITEM(items->data);
}

}  // namespace

KeyringStore::KeyringStore() : m_cancellable(g_cancellable_new()), m_context(g_main_context_new()) {}

KeyringStore::~KeyringStore() {
    // What the library still has to clean up it does in the context.
    inOwnContext([this] {
        m_service.reset();
        return StoreAnswer();
    });
}

bool KeyringStore::answers() {
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") &&
        !QFileInfo::exists(QString::fromLocal8Bit(runtime) + QLatin1String("/bus"))) {
        // To ask all the same would start a bus.
        return false;
    }
    return inOwnContext([this] { return open(); }).status == KeychainStatus::Success;
}

StoreAnswer KeyringStore::ping() {
    GError* error = nullptr;
    const auto bus = sessionBus(m_cancellable.get(), &error);
    if (!bus) {
        return answerOf(error);
    }
    // The library itself waits much longer for one that hangs.
    const GlibHandle<GVariant> pong(
        g_dbus_connection_call_sync(bus.get(), kService, kServicePath, "org.freedesktop.DBus.Peer", "Ping", nullptr,
                                    nullptr, G_DBUS_CALL_FLAGS_NONE, kPatience, m_cancellable.get(), &error));
    return pong ? StoreAnswer() : answerOf(error);
}

StoreAnswer KeyringStore::open() {
    m_service.reset();
    for (int look = 0; look < kBusLooks && isClosedBusKept(m_cancellable.get()); ++look) {
        while (g_main_context_iteration(m_context.get(), FALSE) != FALSE) {
        }
        g_usleep(kBusPause);
    }
    if (StoreAnswer answer = ping(); answer.status != KeychainStatus::Success) {
        return answer;
    }
    GError* error = nullptr;
    m_service.reset(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION,
                                             m_cancellable.get(), &error));
    return m_service ? StoreAnswer() : answerOf(error);
}

KeyringStore::Attributes KeyringStore::attributesOf(const KeychainQuery& query) const {
    Attributes attributes(g_hash_table_new_full(g_str_hash, g_str_equal, g_free, g_free));
    insert(attributes.get(), "account", query.account.toUtf8());
    insert(attributes.get(), "service", query.service.toUtf8());
    insert(attributes.get(), "group", query.accessGroup.toUtf8());
    insert(attributes.get(), "container", m_container);
    return attributes;
}

StoreAnswer KeyringStore::fetch(GList* items) const {
    SecretItem* item = firstOf(items);
    if (item == nullptr) {
        return {.status = KeychainStatus::ItemNotFound};
    }
    const GlibHandle<SecretValue> value(secret_item_get_secret(item));
    if (!value) {
        return unavailable(StoreTrouble::Kind::KeyringLocked);
    }
    const Attributes attributes(secret_item_get_attributes(item));
    gsize size = 0;
    const gchar* bytes = secret_value_get(value.get(), &size);
    const auto* accessible = static_cast<const char*>(g_hash_table_lookup(attributes.get(), kAccessible));
    return {.status = KeychainStatus::Success,
            .attributes = {.valueData = QByteArray(bytes, static_cast<qsizetype>(size)),
                           .accessible = static_cast<KeychainAccessibility>(QByteArray(accessible).toInt())}};
}

StoreAnswer KeyringStore::add(const StoreRequest& request) {
    const Attributes attributes = attributesOf(request.query);
    insert(attributes.get(), kAccessible, accessibleOf(request.attributes));
    GError* error = nullptr;
    const bool isStored =
        secret_service_store_sync(m_service.get(), schema(), attributes.get(), SECRET_COLLECTION_DEFAULT, kLabel,
                                  valueOf(request.attributes.valueData).get(), m_cancellable.get(), &error) != FALSE;
    return isStored ? StoreAnswer() : answerOf(error);
}

StoreAnswer KeyringStore::update(GList* items, const StoreRequest& request) {
    SecretItem* item = firstOf(items);
    const Attributes attributes = attributesOf(request.query);
    insert(attributes.get(), kAccessible, accessibleOf(request.attributes));
    GError* error = nullptr;
    const bool isStored =
        secret_item_set_attributes_sync(item, schema(), attributes.get(), m_cancellable.get(), &error) != FALSE &&
        secret_item_set_secret_sync(item, valueOf(request.attributes.valueData).get(), m_cancellable.get(), &error) !=
            FALSE;
    return isStored ? StoreAnswer() : answerOf(error);
}

StoreAnswer KeyringStore::remove(const StoreRequest& request) {
    GError* error = nullptr;
    // All that has these attributes, and nothing where another program was quicker.
    secret_service_clear_sync(m_service.get(), schema(), attributesOf(request.query).get(), m_cancellable.get(),
                              &error);
    return error == nullptr ? StoreAnswer() : answerOf(error);
}

StoreAnswer KeyringStore::answerTo(const StoreRequest& request) {
    using Kind = StoreRequest::Kind;
    GError* error = nullptr;
    const auto flags = static_cast<SecretSearchFlags>(SECRET_SEARCH_ALL | SECRET_SEARCH_UNLOCK |
                                                      (request.kind == Kind::Fetch ? SECRET_SEARCH_LOAD_SECRETS : 0));
    const Items items(secret_service_search_sync(m_service.get(), schema(), attributesOf(request.query).get(), flags,
                                                 m_cancellable.get(), &error));
    if (error != nullptr) {
        return answerOf(error);
    }
    if (items && secret_item_get_locked(firstOf(items.get())) != FALSE) {
        return unavailable(StoreTrouble::Kind::KeyringLocked);
    }
    switch (request.kind) {
        case Kind::Fetch:
            return fetch(items.get());
        case Kind::Add:
            return items ? StoreAnswer{.status = KeychainStatus::DuplicateItem} : add(request);
        case Kind::Put:
            return items ? update(items.get(), request) : add(request);
        case Kind::Update:
            return items ? update(items.get(), request) : StoreAnswer{.status = KeychainStatus::ItemNotFound};
        case Kind::Remove:
            return items ? remove(request) : StoreAnswer{.status = KeychainStatus::ItemNotFound};
    }
    return {};
}

StoreAnswer KeyringStore::inOwnContext(const std::function<StoreAnswer()>& work) {
    g_main_context_push_thread_default(m_context.get());
    StoreAnswer answer = work();
    while (g_main_context_iteration(m_context.get(), FALSE) != FALSE) {
    }
    g_main_context_pop_thread_default(m_context.get());
    return answer;
}

StoreAnswer KeyringStore::perform(const StoreRequest& request) {
    return inOwnContext([this, &request] {
        if (m_service && ping().status == KeychainStatus::Success) {
            StoreAnswer answer = answerTo(request);
            if (answer.trouble.kind != StoreTrouble::Kind::KeyringGone) {
                return answer;
            }
        }
        // There is no session yet, or it was with a keyring that has ended since.
        StoreAnswer answer = open();
        return answer.status == KeychainStatus::Success ? answerTo(request) : answer;
    });
}

}  // namespace tavi
