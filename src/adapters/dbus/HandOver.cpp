#include "adapters/dbus/HandOver.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <QVariantMap>

#include "adapters/dbus/BusNames.h"
#include "adapters/dbus/LockObject.h"

namespace tavi {

namespace {

constexpr int kAnswerTimeoutMs = 5000;
constexpr int kChangeTimeoutMs = 1000;
constexpr int kTriesWhileStarting = 60;
constexpr unsigned long kStartingPauseMs = 50;

bool isNotThereYet(const QDBusMessage& answer) {
    return answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
           answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

/// Tells the window system that the user's own action is behind this (startup-notification and xdg-activation).
QVariantMap platformData() {
    QVariantMap data;
    const auto add = [&data](const QString& key, const char* variable) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty()) {
            data.insert(key, value);
        }
    };
    add(QStringLiteral("desktop-startup-id"), "DESKTOP_STARTUP_ID");
    add(QStringLiteral("activation-token"), "XDG_ACTIVATION_TOKEN");
    return data;
}

QDBusMessage messageFor(const QString& busName, const ActivationRequest& request) {
    const auto method = [&busName](const QString& name) {
        return QDBusMessage::createMethodCall(busName, kApplicationObjectPath, kApplicationInterface, name);
    };
    switch (request.kind) {
        case ActivationRequest::Kind::Open: {
            QDBusMessage message = method(QStringLiteral("Open"));
            message << request.uris << platformData();
            return message;
        }
        case ActivationRequest::Kind::Action: {
            QDBusMessage message = method(QStringLiteral("ActivateAction"));
            message << request.action << QVariantList() << platformData();
            return message;
        }
        case ActivationRequest::Kind::Activate:
            break;
    }
    QDBusMessage message = method(QStringLiteral("Activate"));
    message << platformData();
    return message;
}

void waitForOwner(const QDBusConnection& sessionBus, const QString& busName, std::chrono::milliseconds patience) {
    QEventLoop loop;
    QDBusServiceWatcher watcher(busName, sessionBus, QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    // Asked only now: a name that comes after this answer is seen by the watcher.
    QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    const QDBusReply<bool> isOwned = sessionBus.call(question << busName, QDBus::Block, kAnswerTimeoutMs);
    if (!isOwned.isValid() || !isOwned.value()) {
        loop.exec();
    }
}

}  // namespace

tl::expected<void, HandOverRefusal> handOver(const QDBusConnection& sessionBus, const QString& busName,
                                             const ActivationRequest& request, std::chrono::milliseconds patience) {
    waitForOwner(sessionBus, busName, patience);
    QDBusMessage message = messageFor(busName, request);
    message.setAutoStartService(false);
    QDBusMessage answer = sessionBus.call(message, QDBus::Block, kAnswerTimeoutMs);
    // An instance that is just starting takes its name on the bus a moment after it has taken the folder.
    for (int tries = kTriesWhileStarting; tries > 0 && isNotThereYet(answer); --tries) {
        QThread::msleep(kStartingPauseMs);
        answer = sessionBus.call(message, QDBus::Block, kAnswerTimeoutMs);
    }
    if (answer.type() == QDBusMessage::ReplyMessage) {
        return {};
    }
    const bool isLocked = answer.errorName() == kLockedError;
    const QString text = QStringLiteral("The instance that is already running did not take the request: %1");
    return tl::unexpected(HandOverRefusal{
        .isLocked = isLocked, .error = {isLocked ? answer.errorMessage() : text.arg(answer.errorMessage())}});
}

void tellOfChange(const QDBusConnection& sessionBus, const QString& busName) {
    QDBusMessage message =
        messageFor(busName, {.kind = ActivationRequest::Kind::Action, .uris = {}, .action = kRefreshAction});
    message.setAutoStartService(false);
    sessionBus.call(message, QDBus::Block, kChangeTimeoutMs);
}

}  // namespace tavi
