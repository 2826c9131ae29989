#include "adapters/dbus/DBusInhibitor.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QPointer>
#include <QVariantMap>
#include <utility>

namespace tavi {

namespace {

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");

QDBusMessage portalCall(const QString& method) {
    return QDBusMessage::createMethodCall(kPortal, QStringLiteral("/org/freedesktop/portal/desktop"),
                                          QStringLiteral("org.freedesktop.portal.Inhibit"), method);
}

QDBusMessage serviceCall(const DBusInhibitor::Kind& kind, const QString& method) {
    return QDBusMessage::createMethodCall(kind.service, kind.path, kind.service, method);
}

void closeRequest(const QDBusConnection& bus, const QString& path) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        kPortal, path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close"));
    message.setAutoStartService(false);
    bus.send(message);
}

void giveBack(const QDBusConnection& bus, const DBusInhibitor::Kind& kind, quint32 cookie) {
    QDBusMessage message = serviceCall(kind, kind.release);
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

DBusInhibitor::DBusInhibitor(const QDBusConnection& sessionBus, const Kind& kind) : m_bus(sessionBus), m_kind(kind) {
    if (m_bus.isConnected()) {
        auto* watcher = new QDBusServiceWatcher(this);
        watcher->setConnection(m_bus);
        watcher->setWatchedServices({kPortal, m_kind.service});
        connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &DBusInhibitor::onOwnerChanged);
    }
}

DBusInhibitor::~DBusInhibitor() {
    release();
}

void DBusInhibitor::setWanted(bool wanted) {
    m_isWanted = wanted;
    if (!wanted) {
        release();
    } else if (m_state == State::Released && m_bus.isConnected()) {
        askPortal();
    }
}

void DBusInhibitor::onOwnerChanged(const QString& service, const QString& oldOwner, const QString& newOwner) {
    const State held = service == kPortal ? State::HeldByPortal : State::HeldByService;
    if (!oldOwner.isEmpty() && m_state == held) {
        // What it granted has gone with it.
        m_state = State::Released;
    }
    if (!newOwner.isEmpty() && m_state == State::Released && m_isWanted) {
        askPortal();
    }
}

void DBusInhibitor::askPortal() {
    m_state = State::Asking;
    QDBusMessage message = portalCall(QStringLiteral("Inhibit"));
    message << QString() << m_kind.portalFlag << QVariantMap{{QStringLiteral("reason"), m_kind.reason}};
    const auto use = [self = QPointer(this), bus = m_bus](const QDBusPendingReply<QDBusObjectPath>& reply) {
        if (!self && reply.isValid()) {
            closeRequest(bus, reply.value().path());
        } else if (self && reply.isValid()) {
            self->m_request = reply.value().path();
            self->m_state = State::HeldByPortal;
            self->releaseIfUnwanted();
        } else if (self) {
            self->askService();
        }
    };
    whenAnswered<QDBusObjectPath>(m_bus.asyncCall(message), use);
}

void DBusInhibitor::askService() {
    QDBusMessage message = serviceCall(m_kind, QStringLiteral("Inhibit"));
    message.setArguments(m_kind.arguments);
    const auto use = [self = QPointer(this), bus = m_bus, kind = m_kind](const QDBusPendingReply<quint32>& reply) {
        if (!self && reply.isValid()) {
            giveBack(bus, kind, reply.value());
        } else if (self && reply.isValid()) {
            self->m_cookie = reply.value();
            self->m_state = State::HeldByService;
            self->releaseIfUnwanted();
        } else if (self) {
            if (!std::exchange(self->m_isMissingSaid, true)) {
                qWarning("%s: %s", kind.missing, qUtf8Printable(reply.error().message()));
            }
            self->m_state = State::Released;
        }
    };
    whenAnswered<quint32>(m_bus.asyncCall(message), use);
}

void DBusInhibitor::release() {
    if (m_state == State::HeldByPortal) {
        closeRequest(m_bus, m_request);
        m_state = State::Released;
    } else if (m_state == State::HeldByService) {
        giveBack(m_bus, m_kind, m_cookie);
        m_state = State::Released;
    }
}

void DBusInhibitor::releaseIfUnwanted() {
    if (!m_isWanted) {
        release();
    }
}

}  // namespace tavi
