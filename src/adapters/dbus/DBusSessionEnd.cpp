#include "adapters/dbus/DBusSessionEnd.h"

namespace tavi {

namespace {

/// The portal's flag and the session manager's are the same number.
constexpr quint32 kInhibitLogout = 1;
constexpr quint32 kNoWindow = 0;

}  // namespace

DBusSessionEnd::DBusSessionEnd(const QDBusConnection& sessionBus, const QString& reason)
    : m_inhibitor(sessionBus,
                  {.reason = reason,
                   .portalFlag = kInhibitLogout,
                   .service = QStringLiteral("org.gnome.SessionManager"),
                   .path = QStringLiteral("/org/gnome/SessionManager"),
                   .arguments = {QStringLiteral("com.quillfen.voicerecorder"), kNoWindow, reason, kInhibitLogout},
                   .release = QStringLiteral("Uninhibit"),
                   .missing = "Nothing here holds up the end of the session"}) {}

}  // namespace tavi
