#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace tavi {

/// Whether the user's session is locked, as the screen saver (session bus) or the login manager (system bus) tell.
/// Where neither is there, it is never locked. Asks without waiting, and starts no service. Main thread.
class SessionLock : public QObject {
    Q_OBJECT

public:
    /// Either bus may be unconnected.
    SessionLock(const QDBusConnection& sessionBus, const QDBusConnection& systemBus, QObject* parent = nullptr);

    bool isLocked() const { return m_screenSaverActive || m_lockedHint || m_lockRequested; }
    /// The user works with the window, so that a request to lock, which not every locker ends, is no longer in force.
    void userIsBack();

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void onScreenSaverActiveChanged(bool active);
    void onLoginPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated);
    void onLockRequested();
    void onUnlockRequested();

private:
    void watchScreenSaver(QDBusConnection sessionBus);
    void watchLoginSession(const QDBusConnection& systemBus);
    void watchLoginSessionAt(QDBusConnection systemBus, const QString& path);
    void set(bool& flag, bool value);

    bool m_screenSaverActive = false;
    bool m_lockedHint = false;
    bool m_lockRequested = false;
};

}  // namespace tavi
