#pragma once

#include <QObject>
#include <chrono>

#include "adapters/desktop/PortalRequests.h"
#include "platform/UrlOpener.h"

namespace tavi {

/// Addresses: xdg-mime knows which program opens a scheme; the desktop portal has it opened, else xdg-open.
class DesktopUrlOpener final : public QObject, public UrlOpener {
public:
    /// The limit is for xdg-mime, a shell script that asks the desktop.
    explicit DesktopUrlOpener(PortalRequests& portal, std::chrono::milliseconds limit = std::chrono::seconds(5))
        : m_portal(portal), m_limit(limit) {}

    void canOpenURL(const QUrl& url, std::function<void(bool canOpen)> completion) override;
    /// Does nothing with an address that has no scheme.
    void openURL(const QUrl& url) override;

private:
    PortalRequests& m_portal;
    std::chrono::milliseconds m_limit;
};

}  // namespace tavi
