#pragma once

#include <QDBusConnection>
#include <memory>

#include "adapters/dbus/DBusNotifyCenter.h"
#include "adapters/local/LocalCoordinatedFiles.h"
#include "adapters/local/LocalWatchSession.h"
#include "adapters/plist/LibplistPropertyLists.h"
#include "platform/AppContainer.h"
#include "platform/DispatchQueues.h"
#include "platform/NotificationCenter.h"
#include "watch/MMWormholeServices.h"
#include "watch/MMWormholeSession.h"
#include "watch/TransitingTypes.h"

namespace tavi {

/// The channel between the recorder and its companions, at one of its ends, with what it works with. One a process, as
/// there is one listening session. Main thread only.
class CompanionChannel {
public:
    /// Container and queues must outlive this.
    CompanionChannel(const AppContainer& container, DispatchQueues& queues, const QDBusConnection& sessionBus,
                     LocalWatchSession::End end, MMWormholeTransitingType type);
    ~CompanionChannel();

    /// What messages that come are heard on.
    MMWormhole& receiver() { return m_session ? *m_session : *m_wormhole; }
    /// What messages are passed to.
    MMWormhole& sender() { return *m_wormhole; }
    LocalWatchSession& session() { return m_localSession; }

private:
    LibplistPropertyLists m_propertyLists;
    DBusNotifyCenter m_notifyCenter;
    NotificationCenter m_notifications;
    LocalCoordinatedFiles m_files;
    LocalWatchSession m_localSession;
    MMWormholeServices m_services;
    std::unique_ptr<MMWormhole> m_wormhole;
    MMWormholeSession* m_session = nullptr;
};

}  // namespace tavi
