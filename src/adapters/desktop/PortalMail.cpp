#include "adapters/desktop/PortalMail.h"

#include <fcntl.h>

#include <unistd.h>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <cerrno>

#include "files/PathText.h"

namespace tavi {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Email");
const QString kRequestInterface = QStringLiteral("org.freedesktop.portal.Request");
/// From this version of the interface on, "addresses" takes the place of "address".
constexpr quint32 kVersionWithAddresses = 3;

QDBusMessage method(const QString& interface, const QString& name) {
    return QDBusMessage::createMethodCall(kService, kPath, interface, name);
}

Result<QDBusUnixFileDescriptor> openedFile(const std::filesystem::path& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return failure(
            QStringLiteral("Cannot read the attachment “%1”: %2.").arg(pathText(path), qt_error_string(errno)));
    }
    QDBusUnixFileDescriptor file;
    file.giveFileDescriptor(descriptor);
    return file;
}

/// The attachments as "ah", an array of file descriptors.
Result<QVariant> attachmentFiles(const MailMessage& message) {
    QDBusArgument files;
    files.beginArray(QMetaType::fromType<QDBusUnixFileDescriptor>());
    for (const MailAttachment& attachment : message.attachments) {
        const auto file = openedFile(attachment.path);
        if (!file) {
            return tl::unexpected(file.error());
        }
        files << *file;
    }
    files.endArray();
    return QVariant::fromValue(files);
}

}  // namespace

PortalMail::PortalMail(const QDBusConnection& sessionBus) : m_bus(sessionBus) {
    if (!m_bus.isConnected()) {
        return;
    }
    m_watcher.setConnection(m_bus);
    m_watcher.addWatchedService(kService);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) { onOwnerChanged(newOwner); });
    askVersion();
}

Result<void> PortalMail::compose(const MailMessage& message, const std::function<void(Outcome)>& completion) {
    QVariantMap options{{QStringLiteral("subject"), message.subject}, {QStringLiteral("body"), message.body}};
    if (!message.recipient.isEmpty() && m_version >= kVersionWithAddresses) {
        options.insert(QStringLiteral("addresses"), QStringList{message.recipient});
    } else if (!message.recipient.isEmpty()) {
        options.insert(QStringLiteral("address"), message.recipient);
    }
    if (!message.attachments.empty()) {
        const auto files = attachmentFiles(message);
        if (!files) {
            return tl::unexpected(files.error());
        }
        options.insert(QStringLiteral("attachment_fds"), *files);
    }
    const QString token = QStringLiteral("tavi%1").arg(++m_lastToken);
    options.insert(QStringLiteral("handle_token"), token);
    // The portal makes the request's path of the caller's name and the token, so that the response, which may come
    // before the answer to the call, is not missed.
    const QString sender = m_bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    const QString path = QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
    expectResponse(path, completion);

    QDBusMessage call = method(kInterface, QStringLiteral("ComposeEmail"));
    call << QString() << options;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, path](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        onComposeAnswer(path, *finished);
    });
    return {};
}

void PortalMail::onComposeAnswer(const QString& expectedPath, QDBusPendingCallWatcher& answer) {
    const QDBusPendingReply<QDBusObjectPath> reply = answer;
    if (!reply.isValid()) {
        finish(expectedPath, Outcome::Unavailable);
        return;
    }
    const QString path = reply.value().path();
    if (path != expectedPath && m_requests.contains(expectedPath)) {
        // A portal that names its requests in its own way.
        expectResponse(path, m_requests.take(expectedPath));
    }
}

void PortalMail::onResponse(quint32 response, const QVariantMap&, const QDBusMessage& message) {
    finish(message.path(), response == 0 ? Outcome::Done : response == 1 ? Outcome::Cancelled : Outcome::Failed);
}

void PortalMail::onOwnerChanged(const QString& newOwner) {
    m_version = 0;
    // Requests do not outlive the portal that made them.
    for (const QString& path : m_requests.keys()) {
        finish(path, Outcome::Failed);
    }
    if (!newOwner.isEmpty()) {
        askVersion();
    }
}

void PortalMail::askVersion() {
    QDBusMessage message = method(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << kInterface << QStringLiteral("version");
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (reply.isValid()) {
            m_version = reply.value().variant().toUInt();
        }
    });
}

void PortalMail::expectResponse(const QString& path, const std::function<void(Outcome)>& completion) {
    m_requests.insert(path, completion);
    m_bus.connect(kService, path, kRequestInterface, QStringLiteral("Response"), this,
                  SLOT(onResponse(quint32, QVariantMap, QDBusMessage)));
}

void PortalMail::finish(const QString& path, Outcome outcome) {
    m_bus.disconnect(kService, path, kRequestInterface, QStringLiteral("Response"), this,
                     SLOT(onResponse(quint32, QVariantMap, QDBusMessage)));
    if (const auto completion = m_requests.take(path)) {
        completion(outcome);
    }
}

}  // namespace tavi
