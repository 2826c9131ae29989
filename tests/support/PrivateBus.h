#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace tavi::test {

/// A message bus of the test's own, which knows no services but those that the test registers. While this lives,
/// DBUS_SESSION_BUS_ADDRESS names it, for this process and those that it starts. A bus that does not start ends the
/// test.
struct PrivateBus {
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A new connection, a participant of its own; it ends with this.
    QDBusConnection connect();
    /// A connection that is not connected, as where there is no bus.
    static QDBusConnection none() { return QDBusConnection(QStringLiteral("none")); }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

}  // namespace tavi::test
