#include "adapters/dbus/DBusIdleTimer.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QPointer>
#include <QVariantMap>

namespace tavi {

namespace {

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kScreenSaver = QStringLiteral("org.freedesktop.ScreenSaver");
const QString kScreenSaverPath = QStringLiteral("/org/freedesktop/ScreenSaver");
/// Flag of org.freedesktop.portal.Inhibit: the session is not marked as idle.
constexpr quint32 kInhibitIdle = 8;

QDBusMessage portalCall(const QString& method) {
    return QDBusMessage::createMethodCall(kPortal, QStringLiteral("/org/freedesktop/portal/desktop"),
                                          QStringLiteral("org.freedesktop.portal.Inhibit"), method);
}

QDBusMessage screenSaverCall(const QString& method) {
    return QDBusMessage::createMethodCall(kScreenSaver, kScreenSaverPath, kScreenSaver, method);
}

void closeRequest(const QDBusConnection& bus, const QString& path) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        kPortal, path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
    message.setAutoStartService(false);
    bus.send(message);
}

void unInhibit(const QDBusConnection& bus, quint32 cookie) {
    QDBusMessage message = screenSaverCall(QStringLiteral("UnInhibit"));
    message << cookie;
    message.setAutoStartService(false);
    bus.send(message);
}

/// Calls use with the reply when it comes, whether or not the asker is still there.
template <class T, class Use>
void whenAnswered(const QDBusPendingCall& call, Use use) {
    auto* watcher = new QDBusPendingCallWatcher(call);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [use](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        use(QDBusPendingReply<T>(*finished));
    });
}

}  // namespace

DBusIdleTimer::DBusIdleTimer(const QDBusConnection& sessionBus, const QString& reason)
    : m_bus(sessionBus), m_reason(reason) {
    if (m_bus.isConnected()) {
        auto* watcher = new QDBusServiceWatcher(this);
        watcher->setConnection(m_bus);
        watcher->setWatchedServices({kPortal, kScreenSaver});
        connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &DBusIdleTimer::onOwnerChanged);
    }
}

DBusIdleTimer::~DBusIdleTimer() {
    release();
}

void DBusIdleTimer::setIdleTimerDisabled(bool disabled) {
    m_disabled = disabled;
    if (!disabled) {
        release();
    } else if (m_state == State::Released && m_bus.isConnected()) {
        askPortal();
    }
}

void DBusIdleTimer::onOwnerChanged(const QString& service, const QString& oldOwner, const QString& newOwner) {
    const State held = service == kPortal ? State::HeldByPortal : State::HeldByScreenSaver;
    if (!oldOwner.isEmpty() && m_state == held) {
        // What it granted has gone with it.
        m_state = State::Released;
    }
    if (!newOwner.isEmpty() && m_state == State::Released && m_disabled) {
        askPortal();
    }
}

void DBusIdleTimer::askPortal() {
    m_state = State::Asking;
    QDBusMessage message = portalCall(QStringLiteral("Inhibit"));
    message << QString() << kInhibitIdle << QVariantMap{{QStringLiteral("reason"), m_reason}};
    const auto use = [self = QPointer(this), bus = m_bus](const QDBusPendingReply<QDBusObjectPath>& reply) {
        if (!self && reply.isValid()) {
            closeRequest(bus, reply.value().path());
        } else if (self && reply.isValid()) {
            self->m_request = reply.value().path();
            self->m_state = State::HeldByPortal;
            self->releaseIfUnwanted();
        } else if (self) {
            self->askScreenSaver();
        }
    };
    whenAnswered<QDBusObjectPath>(m_bus.asyncCall(message), use);
}

void DBusIdleTimer::askScreenSaver() {
    QDBusMessage message = screenSaverCall(QStringLiteral("Inhibit"));
    message << QStringLiteral("com.quillfen.voicerecorder") << m_reason;
    const auto use = [self = QPointer(this), bus = m_bus](const QDBusPendingReply<quint32>& reply) {
        if (!self && reply.isValid()) {
            unInhibit(bus, reply.value());
        } else if (self && reply.isValid()) {
            self->m_cookie = reply.value();
            self->m_state = State::HeldByScreenSaver;
            self->releaseIfUnwanted();
        } else if (self) {
            qWarning("Nothing here keeps the screen on: %s", qUtf8Printable(reply.error().message()));
            self->m_state = State::Released;
        }
    };
    whenAnswered<quint32>(m_bus.asyncCall(message), use);
}

void DBusIdleTimer::release() {
    if (m_state == State::HeldByPortal) {
        closeRequest(m_bus, m_request);
        m_state = State::Released;
    } else if (m_state == State::HeldByScreenSaver) {
        unInhibit(m_bus, m_cookie);
        m_state = State::Released;
    }
}

void DBusIdleTimer::releaseIfUnwanted() {
    if (!m_disabled) {
        release();
    }
}

}  // namespace tavi
