#include "CompanionChannel.h"

#include "app/settings/SettingsStore.h"

namespace tavi {

CompanionChannel::CompanionChannel(const AppContainer& container, DispatchQueues& queues,
                                   const QDBusConnection& sessionBus, LocalWatchSession::End end,
                                   MMWormholeTransitingType type)
    : m_notifyCenter(sessionBus),
      m_files(container.cachesPath()),
      m_localSession(container.groupContainerPath(kApplicationGroup) / "Session", end, m_propertyLists),
      m_services{.container = container,
                 .propertyLists = m_propertyLists,
                 .files = m_files,
                 .session = m_localSession,
                 .notifyCenter = m_notifyCenter,
                 .notifications = m_notifications,
                 .queues = queues},
      m_wormhole(
          MMWormhole::withApplicationGroupIdentifier(m_services, kApplicationGroup, QStringLiteral("Messages"), type)) {
    if (isOfSession(type)) {
        MMWormholeSession::setSharedServices(m_services);
        m_session = &MMWormholeSession::sharedListeningSession();
        m_session->activateSessionListening();
    }
}

CompanionChannel::~CompanionChannel() = default;

}  // namespace tavi
