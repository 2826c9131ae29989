#pragma once

#include <QDBusConnection>
#include <functional>

#include "platform/SystemSleep.h"

namespace tavi {

/// Seconds for which the machine has slept since it was started.
double secondsAsleep();

/// Sleep as the login manager tells of it (org.freedesktop.login1 on the system bus), held up by an inhibitor of its
/// kind "delay". That is asked for without waiting, anew after each sleep, and when the login manager comes later.
class LogindSleep final : public SystemSleep {
    Q_OBJECT

public:
    /// The reason is shown to who asks the system what keeps it from sleeping. The bus may be unconnected.
    LogindSleep(const QDBusConnection& systemBus, const QString& reason,
                std::function<double()> secondsAsleep = &tavi::secondsAsleep);

private Q_SLOTS:
    void onPrepareForSleep(bool begins);

private:
    void inhibit();

    QDBusConnection m_bus;
    QString m_reason;
    std::function<double()> m_secondsAsleep;
    std::shared_ptr<void> m_delay;
    bool m_isAsleep = false;
    /// Of secondsAsleep(), when the machine was last about to sleep.
    double m_asleepBefore = 0.0;
};

}  // namespace tavi
