#include "adapters/dbus/RecordingObject.h"

#include <QDBusMessage>
#include <utility>

#include "adapters/dbus/BusNames.h"

namespace tavi {

RecordingObject::RecordingObject(QObject* object, const LockState& lockState, const QDBusConnection& sessionBus)
    : QDBusAbstractAdaptor(object), m_lockState(lockState), m_bus(sessionBus) {
    connect(&lockState, &LockState::changed, this, &RecordingObject::tellChange);
}

void RecordingObject::setState(const RecorderState& state) {
    m_state = state;
    tellChange();
}

RecorderState RecordingObject::shown() const {
    return m_lockState.isLocked() ? RecorderState{.phase = RecorderState::Phase::Locked} : m_state;
}

void RecordingObject::tellChange() {
    // The seconds alone are no change: whoever is told counts them.
    if (std::exchange(m_told, shown()).phase == m_told.phase) {
        return;
    }
    QDBusMessage signal = QDBusMessage::createSignal(
        kApplicationObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
    signal << QString(kRecordingInterface)
           << QVariantMap{{QStringLiteral("State"), stateName()}, {QStringLiteral("Seconds"), seconds()}}
           << QStringList();
    m_bus.send(signal);
}

}  // namespace tavi
