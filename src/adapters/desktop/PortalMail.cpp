#include "adapters/desktop/PortalMail.h"

#include <QDBusArgument>
#include <QPointer>

namespace tavi {

namespace {

const QString kInterface = QStringLiteral("Email");
/// From this version of the interface on, "addresses" takes the place of "address".
constexpr quint32 kVersionWithAddresses = 3;

/// The attachments as "ah", an array of file descriptors.
Result<QVariant> attachmentFiles(const MailMessage& message) {
    QDBusArgument files;
    files.beginArray(QMetaType::fromType<QDBusUnixFileDescriptor>());
    for (const MailAttachment& attachment : message.attachments) {
        const auto file = PortalRequests::openedFile(attachment.path);
        if (!file) {
            return tl::unexpected(file.error());
        }
        files << *file;
    }
    files.endArray();
    return QVariant::fromValue(files);
}

}  // namespace

PortalMail::PortalMail(PortalRequests& portal) : m_portal(portal) {
    m_portal.watchVersion(kInterface, [self = QPointer(this)](quint32 version) {
        if (self) {
            self->m_version = version;
        }
    });
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
    m_portal.ask(kInterface, QStringLiteral("ComposeEmail"), {}, options,
                 [self = QPointer(this), completion](Outcome outcome, const QVariantMap&) {
                     if (self) {
                         completion(outcome);
                     }
                 });
    return {};
}

}  // namespace tavi
