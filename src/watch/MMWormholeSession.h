#pragma once

#include "watch/MMWormhole.h"

namespace tavi {

/// The receiving end of what companions send through the session. It only listens: sending, reading and notifications
/// of the system are switched off. Main thread only.
class MMWormholeSession : public MMWormhole, private WatchSessionDelegate {
public:
    /// Becomes the session's delegate. Without a group there is no folder either.
    explicit MMWormholeSession(const MMWormholeServices& services, const QString& applicationGroupIdentifier = {});
    ~MMWormholeSession() override;

    /// What the one that everybody uses is made of; it outlives its use. Before the first call of that.
    static void setSharedServices(const MMWormholeServices& services);
    /// The one that everybody uses, made by the first call.
    static MMWormholeSession& sharedListeningSession();

    void activateSessionListening();

    void passMessageObject(const QVariant&, const QString&) override {}
    QVariant messageWithIdentifier(const QString&) override { return {}; }
    void clearMessageContentsForIdentifier(const QString&) override {}
    void clearAllMessageContents() override {}

protected:
    void registerForNotificationsWithIdentifier(const QString&) override {}
    void unregisterForNotificationsWithIdentifier(const QString&) override {}

private:
    void sessionDidReceiveMessage(const QVariantMap& message) override { notifyListeners(message); }
    void sessionDidReceiveApplicationContext(const QVariantMap& context) override { notifyListeners(context); }
    /// Keeps the message, too, where it has a folder, for who reads it later.
    void sessionDidReceiveFile(const std::filesystem::path& file, const QVariantMap& metadata) override;
    void notifyListeners(const QVariantMap& archives);
    Result<QVariant> unarchived(const QVariant& archive) const;
};

}  // namespace tavi
