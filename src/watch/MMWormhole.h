#pragma once

#include <QMetaObject>
#include <map>
#include <memory>

#include "watch/MMWormholeServices.h"
#include "watch/MMWormholeTransiting.h"
#include "watch/MessageListening.h"
#include "watch/TransitingTypes.h"

namespace tavi {

/// A channel of messages between the programs of a group: each message has an identifier, and each identifier one
/// listener in a program. Main thread only.
///
/// Nothing is told of what goes wrong. A message is a property list or one of the few other values that PropertyLists
/// can archive.
class MMWormhole : public MessageListening {
public:
    /// With an empty directory there is none. A type that is none of the five is a file.
    static std::unique_ptr<MMWormhole> withApplicationGroupIdentifier(
        const MMWormholeServices& services, const QString& identifier, const QString& optionalDirectory = {},
        MMWormholeTransitingType transitingType = MMWormholeTransitingType::File);
    MMWormhole(const MMWormhole&) = delete;
    MMWormhole& operator=(const MMWormhole&) = delete;
    ~MMWormhole() override;

    MMWormholeTransiting& wormholeMessenger() const { return *m_wormholeMessenger; }

    virtual void passMessageObject(const QVariant& message, const QString& identifier);
    virtual QVariant messageWithIdentifier(const QString& identifier);
    virtual void clearMessageContentsForIdentifier(const QString& identifier);
    virtual void clearAllMessageContents();

    /// The listener is called on a later turn of the run loop, once for every notification. In a flood of them it may
    /// find a newer message than the one that it was notified of.
    void listenForMessageWithIdentifier(const QString& identifier,
                                        std::function<void(const QVariant& message)> listener) override;
    void stopListeningForMessageWithIdentifier(const QString& identifier);

protected:
    MMWormhole(const MMWormholeServices& services, std::unique_ptr<MMWormholeTransiting> messenger);

    const MMWormholeServices& services() const { return m_services; }
    virtual void registerForNotificationsWithIdentifier(const QString& identifier);
    virtual void unregisterForNotificationsWithIdentifier(const QString& identifier);
    void notifyListenerForMessageWithIdentifier(const QString& identifier, const QVariant& message);

private:
    using Listener = std::function<void(const QVariant& message)>;
    struct Backlog;

    void sendNotificationForMessageWithIdentifier(const QString& identifier);
    void didReceiveMessageNotification(const QVariantMap& userInfo);
    /// An empty function where there is none.
    Listener listenerBlockForIdentifier(const QString& identifier) const;
    void deliverLate();

    const MMWormholeServices m_services;
    std::unique_ptr<MMWormholeTransiting> m_wormholeMessenger;
    std::map<QString, Listener> m_listenerBlocks;
    QMetaObject::Connection m_observer;
    /// Shared with what waits in the run loop, which may outlive the channel.
    const std::shared_ptr<Backlog> m_backlog;
};

}  // namespace tavi
