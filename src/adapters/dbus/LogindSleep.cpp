#include "adapters/dbus/LogindSleep.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <ctime>
#include <utility>

namespace tavi {

namespace {

const QString kLogin = QStringLiteral("org.freedesktop.login1");
const QString kPath = QStringLiteral("/org/freedesktop/login1");
const QString kManager = QStringLiteral("org.freedesktop.login1.Manager");

double secondsOf(clockid_t clock) {
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

double secondsAsleep() {
    // The one goes on while the machine sleeps, the other does not.
    return secondsOf(CLOCK_BOOTTIME) - secondsOf(CLOCK_MONOTONIC);
}

LogindSleep::LogindSleep(const QDBusConnection& systemBus, const QString& reason, std::function<double()> secondsAsleep)
    : m_bus(systemBus), m_reason(reason), m_secondsAsleep(std::move(secondsAsleep)) {
    if (!m_bus.isConnected()) {
        return;
    }
    m_bus.connect(kLogin, kPath, kManager, QStringLiteral("PrepareForSleep"), this, SLOT(onPrepareForSleep(bool)));
    auto* watcher = new QDBusServiceWatcher(kLogin, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        // It knows of no sleep that the one before it has begun, and will not tell of its end.
        if (m_isAsleep) {
            onPrepareForSleep(false);
        } else {
            inhibit();
        }
    });
    inhibit();
}

void LogindSleep::inhibit() {
    QDBusMessage message = QDBusMessage::createMethodCall(kLogin, kPath, kManager, QStringLiteral("Inhibit"));
    message << QStringLiteral("sleep") << QStringLiteral("Tavi") << m_reason << QStringLiteral("delay");
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *finished;
        // One that is granted while the machine falls asleep would only hold it up.
        if (reply.isValid() && !m_isAsleep) {
            m_delay = std::make_shared<QDBusUnixFileDescriptor>(reply.value());
        } else if (!reply.isValid() && reply.error().type() != QDBusError::ServiceUnknown) {
            qWarning("The machine's sleep cannot be held up: %s", qUtf8Printable(reply.error().message()));
        }
    });
}

void LogindSleep::onPrepareForSleep(bool begins) {
    if (begins == m_isAsleep) {
        return;
    }
    m_isAsleep = begins;
    if (begins) {
        m_asleepBefore = m_secondsAsleep();
        Q_EMIT willSleep(std::exchange(m_delay, nullptr));
    } else {
        inhibit();
        Q_EMIT hasWoken(m_secondsAsleep() - m_asleepBefore);
    }
}

}  // namespace tavi
