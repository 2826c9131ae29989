#include "support/PrivateBus.h"

namespace tavi::test {

PrivateBus::PrivateBus() {
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(
        QStringLiteral("dbus-daemon"),
        {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1"),
         QStringLiteral("--config-file=" TAVI_PRIVATE_BUS), QStringLiteral("--address=unix:dir=") + m_folder.path()});
    while (!m_daemon.canReadLine()) {
        if (!m_daemon.waitForReadyRead()) {
            qFatal("dbus-daemon does not start: %s", qPrintable(m_daemon.errorString()));
        }
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toUtf8());
}

PrivateBus::~PrivateBus() {
    for (const QString& name : m_connections) {
        QDBusConnection::disconnectFromBus(name);
    }
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connect() {
    static int s_count = 0;
    m_connections.append(QStringLiteral("private%1").arg(++s_count));
    QDBusConnection connection = QDBusConnection::connectToBus(m_address, m_connections.last());
    if (!connection.isConnected()) {
        qFatal("no connection to the private bus");
    }
    return connection;
}

}  // namespace tavi::test
