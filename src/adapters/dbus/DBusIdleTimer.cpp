#include "adapters/dbus/DBusIdleTimer.h"

namespace tavi {

namespace {

/// Flag of org.freedesktop.portal.Inhibit: the session is not marked as idle.
constexpr quint32 kInhibitIdle = 8;

}  // namespace

DBusIdleTimer::DBusIdleTimer(const QDBusConnection& sessionBus, const QString& reason)
    : m_inhibitor(sessionBus, {.reason = reason,
                               .portalFlag = kInhibitIdle,
                               .service = QStringLiteral("org.freedesktop.ScreenSaver"),
                               .path = QStringLiteral("/org/freedesktop/ScreenSaver"),
                               .arguments = {QStringLiteral("com.quillfen.voicerecorder"), reason},
                               .release = QStringLiteral("UnInhibit"),
                               .missing = "Nothing here keeps the screen on"}) {}

}  // namespace tavi
