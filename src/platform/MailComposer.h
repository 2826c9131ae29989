#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <vector>

#include "platform/Error.h"

namespace tavi {

struct MailAttachment {
    std::filesystem::path path;
    /// Such as "audio/m4a".
    QString mimeType;
    QString fileName;
};

/// A mail as it stands when the user's mail program opens.
struct MailMessage {
    QString recipient;
    QString subject;
    QString body;
    std::vector<MailAttachment> attachments;
};

/// What has become of a mail, as far as the part that takes it knows.
enum class MailComposeResult {
    /// The user's mail program has it; whether it is sent there is not known.
    HandedOver,
    /// The user has closed it unsent.
    Cancelled,
    Sent,
};

/// Hands a mail to the user's mail program. Main thread only.
class MailComposer {
public:
    using Completion = std::function<void(Result<MailComposeResult>)>;

    virtual ~MailComposer() = default;

    /// Whether there is something to hand a mail to.
    virtual bool canSendMail() const = 0;
    /// Opens the mail for the user to look over and send; returns at once. The result comes on the main thread when the
    /// mail program has taken or refused it.
    virtual void compose(const MailMessage& message, Completion completion) = 0;
};

}  // namespace tavi
