#include "adapters/desktop/DesktopMailComposer.h"

#include "files/PathText.h"

namespace tavi {

void DesktopMailComposer::compose(const MailMessage& message, Completion completion) {
    std::error_code ignored;
    for (const MailAttachment& attachment : message.attachments) {
        if (!std::filesystem::is_regular_file(attachment.path, ignored)) {
            completeLater(completion,
                          Error{QStringLiteral("There is no file “%1” to attach.").arg(pathText(attachment.path))});
            return;
        }
    }
    if (!m_portal.isAvailable()) {
        composeWithXdgEmail(message, completion);
        return;
    }
    const auto sent = m_portal.compose(message, [this, message, completion](PortalMail::Outcome outcome) {
        switch (outcome) {
            case PortalMail::Outcome::Done:
                completion(MailComposeResult::HandedOver);
                break;
            case PortalMail::Outcome::Cancelled:
                completion(MailComposeResult::Cancelled);
                break;
            case PortalMail::Outcome::Unavailable:
                composeWithXdgEmail(message, completion);
                break;
            case PortalMail::Outcome::Failed:
                completion(failure(QStringLiteral("The desktop's mail program did not take the mail.")));
                break;
        }
    });
    if (!sent) {
        completeLater(completion, sent.error());
    }
}

void DesktopMailComposer::composeWithXdgEmail(const MailMessage& message, const Completion& completion) {
    if (m_xdgEmail.isAvailable()) {
        m_xdgEmail.compose(message, completion);
    } else {
        completeLater(completion, Error{QStringLiteral("There is no mail program.")});
    }
}

void DesktopMailComposer::completeLater(const Completion& completion, const Error& error) {
    QMetaObject::invokeMethod(
        this, [completion, error] { completion(tl::unexpected(error)); }, Qt::QueuedConnection);
}

}  // namespace tavi
