#include "support/FakeDesktop.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QFile>

namespace tavi::test {

namespace {

const QString kSessionPath = QStringLiteral("/org/freedesktop/login1/session/_31");
const QString kSession = QStringLiteral("org.freedesktop.login1.Session");

}  // namespace

FakeDesktop::FakeDesktop(const QDBusConnection& bus, const QStringList& names) : m_bus(bus) {
    m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop"), this, QDBusConnection::SubPath);
    for (const QString& name : names) {
        own(name);
    }
}

FakeDesktop::~FakeDesktop() {
    m_bus.unregisterObject(QStringLiteral("/org/freedesktop"), QDBusConnection::UnregisterTree);
}

void FakeDesktop::own(const QString& name) {
    if (!m_bus.registerService(name)) {
        qFatal("%s is taken", qPrintable(name));
    }
}

void FakeDesktop::disown(const QString& name) {
    m_bus.unregisterService(name);
}

bool FakeDesktop::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    bool known = true;
    const QVariantList results = answer(message, known);
    if (!known) {
        return false;
    }
    connection.send(message.createReply(results));
    if (message.member() == QLatin1String("ComposeEmail")) {
        m_mailRequest = results.at(0).value<QDBusObjectPath>().path();
        if (!namesRequestsItself) {
            respondToMail();
        }
    }
    return true;
}

void FakeDesktop::respondToMail() {
    const QString interface = QStringLiteral("org.freedesktop.portal.Request");
    QDBusMessage response = QDBusMessage::createSignal(m_mailRequest, interface, QStringLiteral("Response"));
    response << mailResponse << QVariantMap();
    m_bus.send(response);
}

QVariantList FakeDesktop::answer(const QDBusMessage& message, bool& known) {
    const QString call = message.interface() + QLatin1Char('.') + message.member();
    const QVariantList in = message.arguments();
    if (call == QLatin1String("org.freedesktop.portal.Inhibit.Inhibit")) {
        const auto options = qdbus_cast<QVariantMap>(in.at(2));
        const QString path = requestPath(message, options);
        inhibitFlags = in.at(1).toUInt();
        inhibitReason = options.value(QStringLiteral("reason")).toString();
        inhibitions.insert(path);
        return {QVariant::fromValue(QDBusObjectPath(path))};
    }
    if (call == QLatin1String("org.freedesktop.portal.Request.Close")) {
        inhibitions.remove(message.path());
        return {};
    }
    if (call == QLatin1String("org.freedesktop.ScreenSaver.Inhibit")) {
        inhibitReason = in.at(1).toString();
        inhibitions.insert(QString::number(++m_lastCookie));
        return {m_lastCookie};
    }
    if (call == QLatin1String("org.freedesktop.ScreenSaver.UnInhibit")) {
        inhibitions.remove(in.at(0).toString());
        return {};
    }
    if (call == QLatin1String("org.freedesktop.ScreenSaver.GetActive")) {
        return {m_screenSaverActive};
    }
    if (call == QLatin1String("org.freedesktop.login1.Manager.GetSession")) {
        return {QVariant::fromValue(QDBusObjectPath(kSessionPath))};
    }
    if (call == QLatin1String("org.freedesktop.DBus.Properties.Get") && in.at(0) == kSession) {
        isWatched = true;
        return {QVariant::fromValue(QDBusVariant(m_lockedHint))};
    }
    if (call == QLatin1String("org.freedesktop.DBus.Properties.Get") && mailVersion > 0) {
        return {QVariant::fromValue(QDBusVariant(mailVersion))};
    }
    if (call == QLatin1String("org.freedesktop.portal.Email.ComposeEmail") && !refusesMail) {
        takeMail(message);
        return {QVariant::fromValue(QDBusObjectPath(requestPath(message, mail)))};
    }
    known = false;
    return {};
}

QString FakeDesktop::requestPath(const QDBusMessage& message, const QVariantMap& options) {
    if (namesRequestsItself) {
        return QStringLiteral("/org/freedesktop/portal/desktop/own/%1").arg(++m_lastRequest);
    }
    const QString token =
        options.value(QStringLiteral("handle_token"), QStringLiteral("t%1").arg(inhibitions.size())).toString();
    QString sender = message.service().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

void FakeDesktop::takeMail(const QDBusMessage& message) {
    mail = qdbus_cast<QVariantMap>(message.arguments().at(1));
    mailAttachments.clear();
    const auto files = qdbus_cast<QList<QDBusUnixFileDescriptor>>(mail.value(QStringLiteral("attachment_fds")));
    for (const QDBusUnixFileDescriptor& descriptor : files) {
        QFile file;
        if (file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly)) {
            mailAttachments.append(file.readAll());
        }
    }
}

void FakeDesktop::setScreenSaverActive(bool active) {
    m_screenSaverActive = active;
    QDBusMessage signal =
        QDBusMessage::createSignal(QStringLiteral("/ScreenSaver"), screenSaver(), QStringLiteral("ActiveChanged"));
    m_bus.send(signal << active);
}

void FakeDesktop::setLockedHint(bool locked) {
    m_lockedHint = locked;
    QDBusMessage signal = QDBusMessage::createSignal(kSessionPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                     QStringLiteral("PropertiesChanged"));
    m_bus.send(signal << kSession << QVariantMap{{QStringLiteral("LockedHint"), locked}} << QStringList());
}

void FakeDesktop::emitSessionSignal(const QString& name) {
    m_bus.send(QDBusMessage::createSignal(kSessionPath, kSession, name));
}

}  // namespace tavi::test
