#include "adapters/network/SystemReachability.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QNetworkInformation>

#include "adapters/network/KernelRoutes.h"

namespace tavi {

namespace {

/// In milliseconds.
constexpr int kPatience = 5000;

}  // namespace

void SystemReachability::load() {
    QDBusMessage ping =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.NetworkManager"), QStringLiteral("/"),
                                       QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    ping.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(ping, kPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        if (finished->isError() || !QNetworkInformation::loadDefaultBackend()) {
            return;
        }
        const auto tell = [this] { m_observer ? m_observer() : void(); };
        connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this, tell);
        tell();
    });
}

bool SystemReachability::isOffline() const {
    const auto* network = QNetworkInformation::instance();
    return network != nullptr && network->reachability() == QNetworkInformation::Reachability::Disconnected;
}

std::optional<ReachabilityFlags> SystemReachability::flagsOfZeroAddress() const {
    using Level = QNetworkInformation::Reachability;
    const auto* network = QNetworkInformation::instance();
    const Level level = network == nullptr ? Level::Unknown : network->reachability();
    if (level == Level::Unknown) {
        return kernelRouteFlags();
    }
    return ReachabilityFlags{.reachable = level == Level::Online || level == Level::Site,
                             .connectionRequired = network->isBehindCaptivePortal()};
}

}  // namespace tavi
