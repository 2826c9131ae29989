#include "adapters/local/LocalWatchSession.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string>
#include <utility>

#include "files/FileCopy.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

constexpr std::size_t kMostCompanions = 16;
constexpr const char* kSocket = "session";
/// For a recorder that is there and takes nobody now.
constexpr auto kPause = std::chrono::milliseconds(500);
constexpr const char* kNewSocket = "session.new";

std::filesystem::path madePrivate(std::filesystem::path folder) {
    std::error_code ignored;
    if (std::filesystem::create_directories(folder, ignored)) {
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
    }
    return folder;
}

}  // namespace

LocalWatchSession::LocalWatchSession(std::filesystem::path folder, End end, const PropertyLists& propertyLists)
    : m_folder(madePrivate(std::move(folder))),
      m_end(end),
      m_propertyLists(propertyLists),
      m_openFolder(FileDescriptor::open(m_folder, O_PATH | O_DIRECTORY)),
      m_received(SessionContext::read(fileOf(end, "received"), propertyLists)) {}

LocalWatchSession::~LocalWatchSession() {
    if (m_server) {
        removeAt(m_folder / kSocket);
    }
    for (const auto& link : m_links) {
        link->disconnect(this);
    }
}

void LocalWatchSession::activateSession() {
    if (std::exchange(m_isActive, true)) {
        return;
    }
    if (m_end == End::Recorder) {
        listen();
        return;
    }
    m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{pathText(m_folder)});
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &LocalWatchSession::tryToConnect);
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &LocalWatchSession::tryToConnect);
    tryToConnect();
}

bool LocalWatchSession::isReachable() const {
    return std::any_of(m_links.begin(), m_links.end(), [](const auto& link) { return link->isReady(); });
}

bool LocalWatchSession::hasUnsent() const {
    return std::any_of(m_links.begin(), m_links.end(), [](const auto& link) { return link->hasUnsent(); });
}

QVariantMap LocalWatchSession::applicationContext() const {
    return SessionContext::read(fileOf(m_end, "context"), m_propertyLists).values;
}

Result<void> LocalWatchSession::updateApplicationContext(const QVariantMap& context) {
    const auto bytes = SessionContext::stamped(context).encoded(m_propertyLists);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    if (bytes->size() > SessionLink::kMostDictionaryBytes) {
        return failure(QStringLiteral("The context is larger than 16 MB."));
    }
    if (!SessionContext::write(fileOf(m_end, "context"), *bytes)) {
        return failure(QStringLiteral("The context cannot be written to “%1”.").arg(pathText(m_folder)));
    }
    for (const auto& link : m_links) {
        link->sendContext();
    }
    return {};
}

Result<void> LocalWatchSession::sendMessage(const QVariantMap& message) {
    const auto bytes = encoded(message);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    bool isSent = false;
    for (const auto& link : m_links) {
        isSent = (link->isReady() && link->send(SessionLink::Kind::Message, *bytes)) || isSent;
    }
    return isSent ? Result<void>() : failure(QStringLiteral("Nobody is there to receive it."));
}

Result<void> LocalWatchSession::transferFile(const std::filesystem::path& file, const QVariantMap& metadata) {
    const auto bytes = encoded(metadata);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    if (!isReachable()) {
        return failure(QStringLiteral("Nobody is there to receive it."));
    }
    // It is read while it is sent, so that a large one holds up nobody here.
    struct stat attributes = {};
    const FileDescriptor source = openRegular(file, attributes);
    if (!source.isValid()) {
        return failure(qt_error_string(errno));
    }
    if (attributes.st_size > SessionLink::kMostFileBytes) {
        return failure(QStringLiteral("The file is larger than 256 MB."));
    }
    bool isSent = false;
    for (const auto& link : m_links) {
        const int own = link->isReady() ? ::fcntl(source.get(), F_DUPFD_CLOEXEC, 0) : -1;
        isSent = (own >= 0 && link->sendFile(*bytes, FileDescriptor(own), attributes.st_size)) || isSent;
    }
    return isSent ? Result<void>() : failure(QStringLiteral("The other end does not keep up."));
}

Result<QByteArray> LocalWatchSession::encoded(const QVariantMap& dictionary) const {
    auto bytes = m_propertyLists.dataWithPropertyList(dictionary);
    if (bytes && bytes->size() > SessionLink::kMostDictionaryBytes) {
        return failure(QStringLiteral("The message is larger than 16 MB."));
    }
    return bytes;
}

std::filesystem::path LocalWatchSession::fileOf(End end, const char* what) const {
    return m_folder / (std::string(end == End::Recorder ? "recorder." : "companion.") + what);
}

QString LocalWatchSession::shortPath(const char* name) const {
    return QStringLiteral("/proc/self/fd/%1/%2").arg(m_openFolder.get()).arg(QLatin1String(name));
}

void LocalWatchSession::listen() {
    removeAt(m_folder / kNewSocket);
    m_server = std::make_unique<QLocalServer>();
    connect(m_server.get(), &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            addLink(std::unique_ptr<QLocalSocket>(socket));
        }
    });
    // It gets its name when it listens, so that whoever sees it come is not refused.
    std::error_code error;
    const bool isListening = m_server->listen(shortPath(kNewSocket));
    if (isListening) {
        std::filesystem::rename(m_folder / kNewSocket, m_folder / kSocket, error);
    }
    if (!isListening || error) {
        qWarning("Companions cannot connect in “%s”: %s.", m_folder.c_str(), qUtf8Printable(m_server->errorString()));
        m_server.reset();
    }
}

void LocalWatchSession::tryToConnect() {
    if (!m_links.empty()) {
        return;
    }
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(shortPath(kSocket));
    if (socket->state() == QLocalSocket::ConnectedState) {
        m_later.stop();
        addLink(std::move(socket));
    } else if (socket->state() == QLocalSocket::ConnectingState) {
        // As many wait to be taken as the system lets.
        m_later.start(kPause);
    }
}

void LocalWatchSession::addLink(std::unique_ptr<QLocalSocket> socket) {
    socket->setParent(nullptr);
    if (m_links.size() >= kMostCompanions) {
        return;
    }
    auto link = std::make_unique<SessionLink>(std::move(socket), m_folder, [this] {
        const SessionContext context = SessionContext::read(fileOf(m_end, "context"), m_propertyLists);
        return context.stamp.isEmpty() ? QByteArray() : context.encoded(m_propertyLists).value_or(QByteArray());
    });
    connect(link.get(), &SessionLink::readyChanged, this, &LocalWatchSession::reachabilityChanged);
    connect(link.get(), &SessionLink::received, this, &LocalWatchSession::receive);
    connect(link.get(), &SessionLink::sent, this, [this] {
        if (!hasUnsent()) {
            Q_EMIT everythingSent();
        }
    });
    connect(link.get(), &SessionLink::closed, this, [this, ended = link.get()] { removeLink(ended); });
    m_links.push_back(std::move(link));
}

void LocalWatchSession::removeLink(SessionLink* link) {
    const auto found =
        std::find_if(m_links.begin(), m_links.end(), [link](const auto& one) { return one.get() == link; });
    if (found == m_links.end()) {
        return;
    }
    const bool wasReady = link->isReady();
    // It is the one that calls.
    found->release()->deleteLater();
    m_links.erase(found);
    Q_EMIT reachabilityChanged();
    if (m_end == End::Companion) {
        if (wasReady) {
            // The recorder may have come back before its end was noticed.
            tryToConnect();
        } else {
            // It has as many companions as it takes.
            m_later.start(kPause);
        }
    }
}

void LocalWatchSession::receive(SessionLink::Kind kind, const QByteArray& dictionary,
                                const std::filesystem::path& file) {
    if (kind == SessionLink::Kind::Context) {
        receiveContext(dictionary);
        return;
    }
    const auto list = m_propertyLists.propertyListWithData(dictionary);
    if (m_delegate == nullptr || !list || list->typeId() != QMetaType::QVariantMap) {
        return;
    }
    if (kind == SessionLink::Kind::File) {
        m_delegate->sessionDidReceiveFile(file, list->toMap());
    } else {
        m_delegate->sessionDidReceiveMessage(list->toMap());
    }
}

void LocalWatchSession::receiveContext(const QByteArray& encoded) {
    auto context = SessionContext::decoded(encoded, m_propertyLists);
    // Each connection begins with it: what has been told before is not told again.
    if (!context || context->stamp == m_received.stamp) {
        return;
    }
    m_received = std::move(*context);
    SessionContext::write(fileOf(m_end, "received"), encoded);
    if (m_delegate != nullptr) {
        m_delegate->sessionDidReceiveApplicationContext(m_received.values);
    }
}

}  // namespace tavi
