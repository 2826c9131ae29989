#include "adapters/desktop/XdgEmail.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "files/PathText.h"

namespace tavi {

namespace {

bool isMailAddress(const QString& text) {
    return text.contains(QLatin1Char('@')) && !text.startsWith(QLatin1Char('-')) &&
           !text.startsWith(QLatin1String("mailto:"), Qt::CaseInsensitive);
}

/// The exit codes of the xdg-utils in words.
QString reason(int exitCode) {
    switch (exitCode) {
        case 2:
            return QStringLiteral("a file is missing");
        case 3:
            return QStringLiteral("no mail program was found");
        default:
            return QStringLiteral("xdg-email ended with %1").arg(exitCode);
    }
}

}  // namespace

XdgEmail::XdgEmail() : m_program(QStandardPaths::findExecutable(QStringLiteral("xdg-email"))) {}

void XdgEmail::compose(const MailMessage& message, const MailComposer::Completion& completion) {
    auto* process = new QProcess(this);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    connect(process, &QProcess::finished, this, [process, completion](int exitCode, QProcess::ExitStatus status) {
        process->deleteLater();
        if (status == QProcess::NormalExit && exitCode == 0) {
            completion(MailComposeResult::HandedOver);
        } else {
            completion(failure(QStringLiteral("The mail could not be handed over: %1.").arg(reason(exitCode))));
        }
    });
    connect(process, &QProcess::errorOccurred, this, [process, completion](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            process->deleteLater();
            completion(failure(QStringLiteral("xdg-email could not be started: %1").arg(process->errorString())));
        }
    });
    process->start(m_program, arguments(message));
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
