#include "adapters/dbus/LockObject.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

#include "adapters/dbus/BusNames.h"

namespace tavi {

std::optional<bool> isInstanceLocked(const QDBusConnection& sessionBus, const QString& busName) {
    constexpr int kPatienceMs = 5000;
    QDBusMessage question = QDBusMessage::createMethodCall(
        busName, kApplicationObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setAutoStartService(false);
    question << QStringLiteral("com.quillfen.voicerecorder.Lock") << QStringLiteral("Locked");
    const QDBusReply<QDBusVariant> answer = sessionBus.call(question, QDBus::Block, kPatienceMs);
    return answer.isValid() ? std::optional(answer.value().variant().toBool()) : std::nullopt;
}

}  // namespace tavi
