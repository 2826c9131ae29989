#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>

#include "platform/LockState.h"
#include "platform/RecorderState.h"

namespace tavi {

inline constexpr QLatin1String kRecordingInterface("com.quillfen.voicerecorder.Recording");

/// On the program's object on the bus: what it records, for companions. They are told of changes, and count the seconds
/// between themselves. While the program is locked it says only that. Main thread.
class RecordingObject : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quillfen.voicerecorder.Recording")
    Q_PROPERTY(QString State READ stateName)
    Q_PROPERTY(qlonglong Seconds READ seconds)

public:
    /// Both outlive this.
    RecordingObject(QObject* object, const LockState& lockState, const QDBusConnection& sessionBus);

    /// One of "locked", "idle", "recording" and "paused".
    QString stateName() const { return phaseName(shown().phase); }
    qlonglong seconds() const { return shown().seconds; }
    void setState(const RecorderState& state);

private:
    RecorderState shown() const;
    void tellChange();

    const LockState& m_lockState;
    QDBusConnection m_bus;
    RecorderState m_state{.phase = RecorderState::Phase::Idle};
    RecorderState m_told = m_state;
};

}  // namespace tavi
