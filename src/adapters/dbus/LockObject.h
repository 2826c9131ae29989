#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <optional>

#include "platform/LockState.h"

namespace tavi {

/// The name of the error that answers what is not done while the program is locked.
inline constexpr QLatin1String kLockedError("com.quillfen.voicerecorder.Error.Locked");

/// On the program's object on the bus: whether it is locked. Main thread.
class LockObject : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.quillfen.voicerecorder.Lock")
    Q_PROPERTY(bool Locked READ isLocked)

public:
    /// Both outlive this.
    LockObject(QObject* object, const LockState& lockState) : QDBusAbstractAdaptor(object), m_lockState(lockState) {}

    bool isLocked() const { return m_lockState.isLocked(); }

private:
    const LockState& m_lockState;
};

/// Whether the instance that owns the bus name is locked; nothing where there is none, or it does not answer within
/// five seconds. Starts no program.
std::optional<bool> isInstanceLocked(const QDBusConnection& sessionBus, const QString& busName);

}  // namespace tavi
