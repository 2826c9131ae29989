#pragma once

#include <QDBusConnection>
#include <QObject>

#include "adapters/desktop/PortalRequests.h"
#include "adapters/desktop/XdgTool.h"
#include "platform/DocumentInteraction.h"

namespace tavi {

/// Opens files by the interface org.freedesktop.portal.OpenURI of the desktop portal, which asks with which program,
/// and shows them by the file manager's org.freedesktop.FileManager1; where these are missing or fail, by xdg-open.
class DesktopDocumentInteraction final : public QObject, public DocumentInteraction {
    Q_OBJECT

public:
    /// The bus may be unconnected; the portal must outlive this.
    DesktopDocumentInteraction(const QDBusConnection& sessionBus, PortalRequests& portal)
        : m_bus(sessionBus), m_portal(portal) {}

    /// Where the choice comes from is the portal's to say.
    void presentOpenInMenu(const std::filesystem::path& path, const QRectF& anchor, Completion completion) override;
    void showInFolder(const std::filesystem::path& path, Completion completion) override;

private:
    void openWithXdgOpen(const std::filesystem::path& path, const Completion& completion);

    QDBusConnection m_bus;
    PortalRequests& m_portal;
    XdgTool m_xdgOpen{QStringLiteral("xdg-open")};
};

}  // namespace tavi
