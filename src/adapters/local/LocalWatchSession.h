#pragma once

#include <QFileSystemWatcher>
#include <QLocalServer>
#include <QObject>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <vector>

#include "adapters/local/SessionContext.h"
#include "adapters/local/SessionLink.h"
#include "files/FileDescriptor.h"
#include "platform/PropertyLists.h"
#include "platform/WatchSession.h"

namespace tavi {

/// The session between the recorder and its companions, as a socket in a folder that belongs to the user alone. The
/// recorder listens; companions connect when it is there, and again when it has come back, which the folder tells
/// them. Several companions are one end: each hears everything, and whoever told the context last has told it. Main
/// thread.
class LocalWatchSession final : public QObject, public WatchSession {
    Q_OBJECT

public:
    enum class End { Recorder, Companion };

    /// The folder is made; property lists must outlive this. At most one recorder a folder.
    LocalWatchSession(std::filesystem::path folder, End end, const PropertyLists& propertyLists);
    ~LocalWatchSession() override;

    void setDelegate(WatchSessionDelegate* delegate) override { m_delegate = delegate; }
    void activateSession() override;
    bool isReachable() const override;
    QVariantMap applicationContext() const override;
    QVariantMap receivedApplicationContext() const override { return m_received.values; }
    Result<void> updateApplicationContext(const QVariantMap& context) override;
    Result<void> sendMessage(const QVariantMap& message) override;
    Result<void> transferFile(const std::filesystem::path& file, const QVariantMap& metadata) override;

    /// Whether something that was sent has not been taken by the other end yet.
    bool hasUnsent() const;

Q_SIGNALS:
    void reachabilityChanged();
    /// hasUnsent() has become false.
    void everythingSent();

private:
    std::filesystem::path fileOf(End end, const char* what) const;
    /// A path to the socket that is short enough for the system, wherever the folder is.
    QString shortPath(const char* name) const;
    void listen();
    void tryToConnect();
    void addLink(std::unique_ptr<QLocalSocket> socket);
    void removeLink(SessionLink* link);
    void receive(SessionLink::Kind kind, const QByteArray& dictionary, const std::filesystem::path& file);
    void receiveContext(const QByteArray& encoded);
    Result<QByteArray> encoded(const QVariantMap& dictionary) const;

    const std::filesystem::path m_folder;
    const End m_end;
    const PropertyLists& m_propertyLists;
    const FileDescriptor m_openFolder;
    WatchSessionDelegate* m_delegate = nullptr;
    bool m_isActive = false;
    SessionContext m_received;
    std::unique_ptr<QLocalServer> m_server;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    QTimer m_later;
    std::vector<std::unique_ptr<SessionLink>> m_links;
};

}  // namespace tavi
