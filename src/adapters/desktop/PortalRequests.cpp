#include "adapters/desktop/PortalRequests.h"

#include <fcntl.h>

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <cerrno>
#include <utility>

#include "files/FileDescriptor.h"
#include "files/PathText.h"

namespace tavi {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterfaces = QStringLiteral("org.freedesktop.portal.");
const QString kRequestInterface = QStringLiteral("org.freedesktop.portal.Request");

}  // namespace

PortalRequests::PortalRequests(const QDBusConnection& sessionBus, std::chrono::milliseconds patience)
    : m_bus(sessionBus), m_patience(static_cast<int>(patience.count())) {
    if (!m_bus.isConnected()) {
        return;
    }
    m_watcher.setConnection(m_bus);
    m_watcher.addWatchedService(kService);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& oldOwner, const QString& newOwner) {
                onOwnerChanged(oldOwner, newOwner);
            });
}

void PortalRequests::ask(const QString& interface, const QString& method, const QVariantList& arguments,
                         QVariantMap options, const Completion& completion) {
    if (!m_bus.isConnected()) {
        // A call without a bus is never said to be finished.
        QMetaObject::invokeMethod(
            this, [completion] { completion(Outcome::Unavailable, {}); }, Qt::QueuedConnection);
        return;
    }
    const QString token = QStringLiteral("tavi%1").arg(++m_lastToken);
    options.insert(QStringLiteral("handle_token"), token);
    // The portal makes the request's path of the caller's name and the token, so that the response, which may come
    // before the answer to the call, is not missed.
    const QString sender = m_bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    const QString path = QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
    expectResponse(path, completion);

    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterfaces + interface, method);
    call.setArguments(QVariantList{m_parentWindow} + arguments + QVariantList{options});
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, m_patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, path](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        onAnswer(path, *finished);
    });
}

void PortalRequests::onAnswer(const QString& expectedPath, QDBusPendingCallWatcher& answer) {
    const QDBusPendingReply<QDBusObjectPath> reply = answer;
    if (!reply.isValid()) {
        if (m_requests.contains(expectedPath) && reply.error().type() == QDBusError::NoReply) {
            // A dialog that came now would be one too many.
            m_bus.asyncCall(
                QDBusMessage::createMethodCall(kService, expectedPath, kRequestInterface, QStringLiteral("Close")));
        }
        finish(expectedPath, Outcome::Unavailable);
        return;
    }
    const QString path = reply.value().path();
    if (path != expectedPath && m_requests.contains(expectedPath)) {
        // A portal that names its requests in its own way.
        expectResponse(path, m_requests.take(expectedPath));
    }
}

void PortalRequests::watchVersion(const QString& interface, const std::function<void(quint32)>& completion) {
    m_versions.insert(interface, completion);
    if (m_bus.isConnected()) {
        askVersion(interface);
    }
}

void PortalRequests::askVersion(const QString& interface) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        kService, kPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << kInterfaces + interface << QStringLiteral("version");
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, interface](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (reply.isValid()) {
            m_versions.value(interface)(reply.value().variant().toUInt());
        }
    });
}

Result<QDBusUnixFileDescriptor> PortalRequests::openedFile(const std::filesystem::path& path) {
    const FileDescriptor opened = FileDescriptor::open(path, O_RDONLY | O_NONBLOCK);
    if (!opened.isValid()) {
        return failure(QStringLiteral("Cannot read “%1”: %2.").arg(pathText(path), qt_error_string(errno)));
    }
    return QDBusUnixFileDescriptor(opened.get());
}

void PortalRequests::onResponse(quint32 response, const QVariantMap& results, const QDBusMessage& message) {
    const Outcome outcomes[] = {Outcome::Done, Outcome::Cancelled, Outcome::Failed};
    finish(message.path(), outcomes[std::min(response, 2U)], results);
}

void PortalRequests::onOwnerChanged(const QString& oldOwner, const QString& newOwner) {
    for (const auto& completion : std::as_const(m_versions)) {
        completion(0);
    }
    // Requests do not outlive the portal that made them. One that a request has just started has made none yet.
    for (const QString& path : oldOwner.isEmpty() ? QStringList() : m_requests.keys()) {
        finish(path, Outcome::Failed);
    }
    if (!newOwner.isEmpty()) {
        for (const QString& interface : m_versions.keys()) {
            askVersion(interface);
        }
    }
}

void PortalRequests::expectResponse(const QString& path, const Completion& completion) {
    m_requests.insert(path, completion);
    m_bus.connect(kService, path, kRequestInterface, QStringLiteral("Response"), this,
                  SLOT(onResponse(quint32, QVariantMap, QDBusMessage)));
}

void PortalRequests::finish(const QString& path, Outcome outcome, const QVariantMap& results) {
    m_bus.disconnect(kService, path, kRequestInterface, QStringLiteral("Response"), this,
                     SLOT(onResponse(quint32, QVariantMap, QDBusMessage)));
    if (const auto completion = m_requests.take(path)) {
        completion(outcome, results);
    }
}

}  // namespace tavi
