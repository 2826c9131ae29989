#pragma once

#include <QDBusConnection>
#include <QObject>

#include "platform/Reachability.h"

namespace tavi {

/// The network as NetworkManager knows it, by QNetworkInformation; as the kernel's routes have it where there is no
/// NetworkManager or it knows nothing, and until it has been asked.
///
/// QNetworkInformation waits for NetworkManager's first answer, so it is not touched before that is known to answer at
/// all: load() asks, and never waits. Main thread.
class SystemReachability final : public QObject, public Reachability {
public:
    /// The bus may be unconnected.
    explicit SystemReachability(const QDBusConnection& systemBus) : m_bus(systemBus) {}

    /// Begins to ask NetworkManager. Once; when there is time.
    void load();
    /// A machine behind a login page of a hotspot requires a connection. One that only sees others nearby is not
    /// reachable.
    std::optional<ReachabilityFlags> flagsOfZeroAddress() const override;
    /// By NetworkManager alone: the kernel's routes tell of no change.
    bool isOffline() const override;
    void setObserver(std::function<void()> observer) override { m_observer = std::move(observer); }

private:
    QDBusConnection m_bus;
    std::function<void()> m_observer;
};

}  // namespace tavi
