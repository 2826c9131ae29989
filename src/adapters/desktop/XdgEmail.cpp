#include "adapters/desktop/XdgEmail.h"

#include <QFileInfo>

#include "files/PathText.h"

namespace tavi {

namespace {

bool isMailAddress(const QString& text) {
    return text.contains(QLatin1Char('@')) && !text.startsWith(QLatin1Char('-')) &&
           !text.startsWith(QLatin1String("mailto:"), Qt::CaseInsensitive);
}

}  // namespace

void XdgEmail::compose(const MailMessage& message, const MailComposer::Completion& completion) {
    m_tool.run(arguments(message), [completion](const Result<void>& result) {
        if (result) {
            completion(MailComposeResult::HandedOver);
        } else {
            completion(failure(QStringLiteral("The mail could not be handed over: %1.").arg(result.error().text)));
        }
    });
}

QStringList XdgEmail::arguments(const MailMessage& message) {
    QStringList arguments{QStringLiteral("--utf8")};
    // xdg-email refuses options with an empty value.
    if (!message.subject.isEmpty()) {
        arguments << QStringLiteral("--subject") << message.subject;
    }
    if (!message.body.isEmpty()) {
        arguments << QStringLiteral("--body") << message.body;
    }
    for (const MailAttachment& attachment : message.attachments) {
        // An absolute path, which cannot look like an option.
        arguments << QStringLiteral("--attach") << QFileInfo(pathText(attachment.path)).absoluteFilePath();
    }
    if (isMailAddress(message.recipient)) {
        arguments << message.recipient;
    }
    return arguments;
}

}  // namespace tavi
