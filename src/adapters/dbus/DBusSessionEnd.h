#pragma once

#include "adapters/dbus/DBusInhibitor.h"
#include "platform/SessionEnd.h"

namespace tavi {

/// Holds up the end of the session through the desktop portal, else through the session manager.
class DBusSessionEnd final : public SessionEnd {
public:
    /// The reason is shown to the user who ends the session. The bus may be unconnected.
    DBusSessionEnd(const QDBusConnection& sessionBus, const QString& reason);

    void setHeldUp(bool heldUp) override { m_inhibitor.setWanted(heldUp); }

private:
    DBusInhibitor m_inhibitor;
};

}  // namespace tavi
