#include "adapters/dbus/SessionLock.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace tavi {

namespace {

const QString kScreenSaver = QStringLiteral("org.freedesktop.ScreenSaver");
const QString kLogin = QStringLiteral("org.freedesktop.login1");
const QString kLoginSession = QStringLiteral("org.freedesktop.login1.Session");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

QDBusPendingCall ask(const QDBusConnection& bus, const QString& service, const QString& path, const QString& interface,
                     const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return bus.asyncCall(message);
}

/// Calls use with the reply's first argument, unless the receiver is gone or the answer is an error.
template <class T, class Use>
void whenAnswered(const QDBusPendingCall& call, QObject* receiver, Use use) {
    auto* watcher = new QDBusPendingCallWatcher(call, receiver);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, receiver, [use](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<T> reply = *finished;
        finished->deleteLater();
        if (reply.isValid()) {
            use(reply.value());
        }
    });
}

}  // namespace

SessionLock::SessionLock(const QDBusConnection& sessionBus, const QDBusConnection& systemBus, QObject* parent)
    : QObject(parent) {
    if (sessionBus.isConnected()) {
        watchScreenSaver(sessionBus);
    }
    if (systemBus.isConnected()) {
        watchLoginSession(systemBus);
    }
}

void SessionLock::userIsBack() {
    set(m_lockRequested, false);
}

void SessionLock::onScreenSaverActiveChanged(bool active) {
    set(m_screenSaverActive, active);
}

void SessionLock::onLoginPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList&) {
    const auto hint = changed.constFind(QStringLiteral("LockedHint"));
    if (interface == kLoginSession && hint != changed.constEnd()) {
        set(m_lockedHint, hint->toBool());
    }
}

void SessionLock::onLockRequested() {
    set(m_lockRequested, true);
}

void SessionLock::onUnlockRequested() {
    set(m_lockRequested, false);
}

void SessionLock::watchScreenSaver(QDBusConnection sessionBus) {
    // Desktops disagree on the object's path, so signals count from any.
    sessionBus.connect(kScreenSaver, QString(), kScreenSaver, QStringLiteral("ActiveChanged"), this,
                       SLOT(onScreenSaverActiveChanged(bool)));
    // One that has died says no more that it is over.
    auto* watcher =
        new QDBusServiceWatcher(kScreenSaver, sessionBus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { onScreenSaverActiveChanged(false); });
    whenAnswered<bool>(ask(sessionBus, kScreenSaver, QStringLiteral("/org/freedesktop/ScreenSaver"), kScreenSaver,
                           QStringLiteral("GetActive"), {}),
                       this, [this](bool active) { onScreenSaverActiveChanged(active); });
}

void SessionLock::watchLoginSession(const QDBusConnection& systemBus) {
    // "auto" is the caller's session, or the user's display session for a program that the bus started.
    whenAnswered<QDBusObjectPath>(
        ask(systemBus, kLogin, QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("GetSession"), {QStringLiteral("auto")}),
        this, [this, systemBus](const QDBusObjectPath& path) { watchLoginSessionAt(systemBus, path.path()); });
}

void SessionLock::watchLoginSessionAt(QDBusConnection systemBus, const QString& path) {
    systemBus.connect(kLogin, path, kProperties, QStringLiteral("PropertiesChanged"), this,
                      SLOT(onLoginPropertiesChanged(QString, QVariantMap, QStringList)));
    systemBus.connect(kLogin, path, kLoginSession, QStringLiteral("Lock"), this, SLOT(onLockRequested()));
    systemBus.connect(kLogin, path, kLoginSession, QStringLiteral("Unlock"), this, SLOT(onUnlockRequested()));
    whenAnswered<QDBusVariant>(
        ask(systemBus, kLogin, path, kProperties, QStringLiteral("Get"), {kLoginSession, QStringLiteral("LockedHint")}),
        this, [this](const QDBusVariant& hint) { set(m_lockedHint, hint.variant().toBool()); });
}

void SessionLock::set(bool& flag, bool value) {
    const bool before = isLocked();
    flag = value;
    if (isLocked() != before) {
        Q_EMIT changed();
    }
}

}  // namespace tavi
