#pragma once

#include "platform/AppContainer.h"
#include "platform/CoordinatedFiles.h"
#include "platform/DispatchQueues.h"
#include "platform/NotificationCenter.h"
#include "platform/NotifyCenter.h"
#include "platform/PropertyLists.h"
#include "platform/WatchSession.h"

namespace tavi {

/// What a message channel works with; all of it must outlive the channel and what it travels by.
struct MMWormholeServices {
    const AppContainer& container;
    const PropertyLists& propertyLists;
    CoordinatedFiles& files;
    WatchSession& session;
    NotifyCenter& notifyCenter;
    NotificationCenter& notifications;
    DispatchQueues& queues;
};

}  // namespace tavi
