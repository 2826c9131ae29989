#pragma once

#include "adapters/dbus/DBusInhibitor.h"
#include "platform/IdleTimer.h"

namespace tavi {

/// Keeps the screen on through the desktop portal, else through the screen saver.
class DBusIdleTimer final : public IdleTimer {
public:
    /// The reason is shown by desktops that tell the user what keeps the screen on. The bus may be unconnected.
    DBusIdleTimer(const QDBusConnection& sessionBus, const QString& reason);

    void setIdleTimerDisabled(bool disabled) override { m_inhibitor.setWanted(disabled); }
    bool isIdleTimerDisabled() const override { return m_inhibitor.isWanted(); }

private:
    DBusInhibitor m_inhibitor;
};

}  // namespace tavi
