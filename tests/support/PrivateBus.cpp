#include "support/PrivateBus.h"

#include <QFile>

namespace tavi::test {

namespace {

constexpr const char* kConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

}  // namespace

PrivateBus::PrivateBus() {
    QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
    if (!configuration.open(QIODevice::WriteOnly) ||
        configuration.write(QString::fromLatin1(kConfiguration).arg(m_folder.path()).toUtf8()) < 0) {
        qFatal("cannot write the configuration of the bus");
    }
    configuration.close();
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--config-file=") + configuration.fileName(), QStringLiteral("--print-address=1")});
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
