#include "watch/MMWormhole.h"

#include <algorithm>
#include <utility>

#include "watch/MMWormholeFileTransiting.h"
#include "watch/MMWormholeSessionTransiting.h"

namespace tavi {

namespace {

/// What is posted in the process for each notification from outside, with the channel and the identifier.
const auto kNotificationName = QStringLiteral("MMWormholeNotificationName");
const auto kObject = QStringLiteral("object");
const auto kIdentifier = QStringLiteral("identifier");

/// So many messages may wait for their listeners. Of what comes then it is only counted for whom it is.
constexpr int kMostWaiting = 16;

std::unique_ptr<MMWormholeTransiting> makeMessenger(const MMWormholeServices& services, const QString& identifier,
                                                    const QString& directory, MMWormholeTransitingType type) {
    switch (type) {
        case MMWormholeTransitingType::CoordinatedFile:
            return std::make_unique<MMWormholeCoordinatedFileTransiting>(services, identifier, directory);
        case MMWormholeTransitingType::SessionContext:
            return std::make_unique<MMWormholeSessionContextTransiting>(services, identifier, directory);
        case MMWormholeTransitingType::SessionFile:
            return std::make_unique<MMWormholeSessionFileTransiting>(services, identifier, directory);
        case MMWormholeTransitingType::SessionMessage:
            return std::make_unique<MMWormholeSessionMessageTransiting>(services, identifier, directory);
        case MMWormholeTransitingType::File:
            break;
    }
    return std::make_unique<MMWormholeFileTransiting>(services, identifier, directory);
}

}  // namespace

struct MMWormhole::Backlog {
    /// Calls of listeners that the run loop holds, each with its message.
    int waiting = 0;
    /// How many more there are to be for each identifier, with the message that is there by then.
    std::map<QString, std::uint64_t> late;
};

std::unique_ptr<MMWormhole> MMWormhole::withApplicationGroupIdentifier(const MMWormholeServices& services,
                                                                       const QString& identifier,
                                                                       const QString& optionalDirectory,
                                                                       MMWormholeTransitingType transitingType) {
    return std::unique_ptr<MMWormhole>(
        new MMWormhole(services, makeMessenger(services, identifier, optionalDirectory, transitingType)));
}

MMWormhole::MMWormhole(const MMWormholeServices& services, std::unique_ptr<MMWormholeTransiting> messenger)
    : m_services(services),
      m_wormholeMessenger(std::move(messenger)),
      m_observer(QObject::connect(&m_services.notifications, &NotificationCenter::posted,
                                  [this](const QString& name, const QVariant& userInfo) {
                                      if (name == kNotificationName) {
                                          didReceiveMessageNotification(userInfo.toMap());
                                      }
                                  })),
      m_backlog(std::make_shared<Backlog>()) {}

MMWormhole::~MMWormhole() {
    QObject::disconnect(m_observer);
    m_services.notifyCenter.removeEveryObserver(this);
}

void MMWormhole::passMessageObject(const QVariant& message, const QString& identifier) {
    if (m_wormholeMessenger->writeMessageObject(message, identifier)) {
        sendNotificationForMessageWithIdentifier(identifier);
    }
}

QVariant MMWormhole::messageWithIdentifier(const QString& identifier) {
    return m_wormholeMessenger->messageObjectForIdentifier(identifier);
}

void MMWormhole::clearMessageContentsForIdentifier(const QString& identifier) {
    m_wormholeMessenger->deleteContentForIdentifier(identifier);
}

void MMWormhole::clearAllMessageContents() {
    m_wormholeMessenger->deleteContentForAllMessages();
}

void MMWormhole::listenForMessageWithIdentifier(const QString& identifier, Listener listener) {
    if (!identifier.isEmpty()) {
        m_listenerBlocks[identifier] = std::move(listener);
        registerForNotificationsWithIdentifier(identifier);
    }
}

void MMWormhole::stopListeningForMessageWithIdentifier(const QString& identifier) {
    if (!identifier.isEmpty()) {
        m_listenerBlocks.erase(identifier);
        unregisterForNotificationsWithIdentifier(identifier);
    }
}

void MMWormhole::registerForNotificationsWithIdentifier(const QString& identifier) {
    unregisterForNotificationsWithIdentifier(identifier);
    m_services.notifyCenter.addObserver(this, identifier, [this](const QString& name) {
        m_services.notifications.postNotification(
            kNotificationName, QVariantMap{{kObject, QVariant::fromValue<void*>(this)}, {kIdentifier, name}});
    });
}

void MMWormhole::unregisterForNotificationsWithIdentifier(const QString& identifier) {
    m_services.notifyCenter.removeObserver(this, identifier);
}

void MMWormhole::sendNotificationForMessageWithIdentifier(const QString& identifier) {
    m_services.notifyCenter.postNotification(identifier);
}

void MMWormhole::didReceiveMessageNotification(const QVariantMap& userInfo) {
    const QString identifier = userInfo.value(kIdentifier).toString();
    if (userInfo.value(kObject).value<void*>() != this || identifier.isEmpty()) {
        return;
    }
    auto& [waiting, late] = *m_backlog;
    if (waiting < kMostWaiting && late.empty()) {
        notifyListenerForMessageWithIdentifier(identifier, messageWithIdentifier(identifier));
    } else if (listenerBlockForIdentifier(identifier)) {
        if (late.empty()) {
            m_services.queues.dispatchMain([this, backlog = std::weak_ptr(m_backlog)] {
                if (!backlog.expired()) {
                    deliverLate();
                }
            });
        }
        ++late[identifier];
    }
}

void MMWormhole::notifyListenerForMessageWithIdentifier(const QString& identifier, const QVariant& message) {
    const Listener listener = listenerBlockForIdentifier(identifier);
    if (!listener) {
        return;
    }
    ++m_backlog->waiting;
    m_services.queues.dispatchMain([listener, message, backlog = m_backlog] {
        --backlog->waiting;
        listener(message);
    });
}

MMWormhole::Listener MMWormhole::listenerBlockForIdentifier(const QString& identifier) const {
    const auto found = m_listenerBlocks.find(identifier);
    return found == m_listenerBlocks.end() ? Listener() : found->second;
}

void MMWormhole::deliverLate() {
    // As many as may wait at a time; the rest waits for another turn, in which others come first.
    const auto& [identifier, count] = *m_backlog->late.begin();
    const auto calls = std::min<std::uint64_t>(count, kMostWaiting);
    const QVariant message = messageWithIdentifier(identifier);
    for (std::uint64_t i = 0; i < calls; ++i) {
        notifyListenerForMessageWithIdentifier(identifier, message);
    }
    if (count == calls) {
        m_backlog->late.erase(m_backlog->late.begin());
    } else {
        m_backlog->late.begin()->second -= calls;
    }
    if (!m_backlog->late.empty()) {
        m_services.queues.dispatchMain([this, backlog = std::weak_ptr(m_backlog)] {
            if (!backlog.expired()) {
                deliverLate();
            }
        });
    }
}

}  // namespace tavi
