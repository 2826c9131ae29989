#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <memory>

#include "platform/IdleTimer.h"

namespace tavi {

/// Keeps the screen on through the desktop portal's Inhibit, else through the screen saver's.
///
/// Everything is asked without waiting. Where the service comes (or comes back) later, it is asked then.
class DBusIdleTimer final : public QObject, public IdleTimer {
    Q_OBJECT

public:
    /// The reason is shown by desktops that tell the user what keeps the screen on. The bus may be unconnected.
    DBusIdleTimer(const QDBusConnection& sessionBus, const QString& reason);
    /// Lets the screen go, also when the answer to a question is still to come.
    ~DBusIdleTimer() override;

    void setIdleTimerDisabled(bool disabled) override;
    bool isIdleTimerDisabled() const override { return m_disabled; }

private Q_SLOTS:
    void onOwnerChanged(const QString& service, const QString& oldOwner, const QString& newOwner);

private:
    enum class State { Released, Asking, HeldByPortal, HeldByScreenSaver };

    void askPortal();
    void askScreenSaver();
    /// Gives back what is held.
    void release();
    void releaseIfUnwanted();

    QDBusConnection m_bus;
    QString m_reason;
    bool m_disabled = false;
    State m_state = State::Released;
    /// Object path of the portal's request.
    QString m_request;
    /// The screen saver's.
    quint32 m_cookie = 0;
};

}  // namespace tavi
