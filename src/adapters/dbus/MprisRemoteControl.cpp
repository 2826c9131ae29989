#include "adapters/dbus/MprisRemoteControl.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "adapters/dbus/MprisObject.h"

namespace tavi {

namespace {

const QString kName = QStringLiteral("org.mpris.MediaPlayer2.tavi");
const QString kPath = QStringLiteral("/org/mpris/MediaPlayer2");
/// Of org.freedesktop.DBus.RequestName: a flag, and the answer when the name is taken.
constexpr quint32 kDoNotQueue = 4;
constexpr quint32 kExists = 3;

QString instanceName() {
    return kName + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid());
}

QDBusMessage busCall(const QString& method) {
    const QString service = QStringLiteral("org.freedesktop.DBus");
    return QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/DBus"), service, method);
}

}  // namespace

MprisRemoteControl::MprisRemoteControl(const QDBusConnection& sessionBus)
    : m_bus(sessionBus), m_player(new MprisPlayer(&m_object, *this)) {
    new MprisRoot(&m_object, *this);
}

MprisRemoteControl::~MprisRemoteControl() {
    endReceivingRemoteControlEvents();
}

void MprisRemoteControl::beginReceivingRemoteControlEvents() {
    if (m_isReceiving || !m_bus.isConnected()) {
        return;
    }
    m_isReceiving = true;
    ++m_beginnings;
    m_told = m_player->changingProperties();
    // The object comes first: with the name come the calls.
    m_bus.registerObject(kPath, &m_object, QDBusConnection::ExportAdaptors);
    requestName(kName, false);
}

void MprisRemoteControl::endReceivingRemoteControlEvents() {
    if (std::exchange(m_isReceiving, false)) {
        releaseName(kName);
        releaseName(instanceName());
        m_bus.unregisterObject(kPath);
    }
}

/// Asks for a name without waiting for the answer, as registering it through the connection would.
void MprisRemoteControl::requestName(const QString& name, bool isLast) {
    auto* watcher = new QDBusPendingCallWatcher(
        m_bus.asyncCall(busCall(QStringLiteral("RequestName")) << name << kDoNotQueue), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, isLast, beginning = m_beginnings](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<quint32> reply = *finished;
                const bool isTaken = reply.isValid() && reply.value() == kExists;
                if (isTaken && !isLast && m_isReceiving && beginning == m_beginnings) {
                    requestName(instanceName(), true);
                }
            });
}

void MprisRemoteControl::releaseName(const QString& name) {
    m_bus.send(busCall(QStringLiteral("ReleaseName")) << name);
}

void MprisRemoteControl::setNowPlayingInfo(const NowPlayingInfo& info) {
    m_info = info;
    if (!m_isReceiving) {
        return;
    }
    const QVariantMap properties = m_player->changingProperties();
    QVariantMap changed;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (m_told.value(property.key()) != property.value()) {
            changed.insert(property.key(), property.value());
        }
    }
    m_told = properties;
    if (!changed.isEmpty()) {
        QDBusMessage signal = QDBusMessage::createSignal(kPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        m_bus.send(signal << QStringLiteral("org.mpris.MediaPlayer2.Player") << changed << QStringList());
    }
}

void MprisRemoteControl::currentTimeDidJump() {
    if (m_isReceiving) {
        Q_EMIT m_player->Seeked(m_player->position());
    }
}

double MprisRemoteControl::currentTime() const {
    return m_delegate != nullptr ? m_delegate->remoteControlCurrentTime() : 0.0;
}

void MprisRemoteControl::receive(RemoteControlEvent::Subtype subtype, double value) {
    if (m_isReceiving && m_delegate != nullptr) {
        m_delegate->remoteControlReceivedWithEvent({subtype, value});
    }
}

}  // namespace tavi
