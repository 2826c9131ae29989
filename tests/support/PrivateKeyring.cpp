#include "support/PrivateKeyring.h"

#include <signal.h>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>

namespace tavi::test {

namespace {

const QString kService = QStringLiteral("org.freedesktop.secrets");
const QString kCollection = QStringLiteral("/org/freedesktop/secrets/collection/login");

}  // namespace

void PrivateKeyring::start() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        environment.insert(QString::fromLatin1(name), m_home.path());
    }
    m_daemon = std::make_unique<QProcess>();
    m_daemon->setProcessEnvironment(environment);
    m_daemon->start(QStringLiteral("gnome-keyring-daemon"),
                    {QStringLiteral("--foreground"), QStringLiteral("--components=secrets"),
                     QStringLiteral("--control-directory=") + m_home.path(), QStringLiteral("--unlock")});
    m_daemon->write("password of the test");
    m_daemon->closeWriteChannel();
    const QDBusConnection bus = connection();
    while (!bus.interface()->isServiceRegistered(kService)) {
        if (m_daemon->state() == QProcess::NotRunning) {
            qFatal("gnome-keyring-daemon does not start: %s", qPrintable(m_daemon->errorString()));
        }
        m_daemon->waitForReadyRead(20);
    }
}

QDBusConnection PrivateKeyring::connection() {
    return m_bus->connect();
}

QDBusMessage PrivateKeyring::ask(const QString& path, const QString& interface, const QString& method,
                                 const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(kService, path, interface, method);
    message.setArguments(arguments);
    return connection().call(message);
}

void PrivateKeyring::kill() {
    if (m_daemon) {
        m_daemon->kill();
        m_daemon->waitForFinished();
    }
}

void PrivateKeyring::setHanging(bool hanging) {
    ::kill(static_cast<pid_t>(m_daemon->processId()), hanging ? SIGSTOP : SIGCONT);
}

void PrivateKeyring::lock() {
    const QDBusMessage answer =
        ask(QStringLiteral("/org/freedesktop/secrets"), QStringLiteral("org.freedesktop.Secret.Service"),
            QStringLiteral("Lock"), {QVariant::fromValue(QList<QDBusObjectPath>{QDBusObjectPath(kCollection)})});
    if (answer.type() != QDBusMessage::ReplyMessage) {
        qFatal("the keyring does not lock: %s", qPrintable(answer.errorMessage()));
    }
}

void PrivateKeyring::endBus() {
    kill();
    m_bus.reset();
}

void PrivateKeyring::beginAnew() {
    m_bus.emplace();
    start();
}

int PrivateKeyring::itemCount() {
    const QDBusReply<QDBusVariant> items =
        ask(kCollection, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
            {QStringLiteral("org.freedesktop.Secret.Collection"), QStringLiteral("Items")});
    return static_cast<int>(qdbus_cast<QList<QDBusObjectPath>>(items.value().variant()).size());
}

}  // namespace tavi::test
