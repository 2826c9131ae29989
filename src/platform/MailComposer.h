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

/// Hands a mail to the user's mail program. Main thread only.
class MailComposer {
public:
    virtual ~MailComposer() = default;

    /// Whether there is something to hand a mail to.
    virtual bool canSendMail() const = 0;
    /// Opens the mail for the user to look over and send; returns at once. The result comes on the main thread when the
    /// mail program has taken or refused it.
    virtual void compose(const MailMessage& message, std::function<void(Result<void>)> completion) = 0;
};

}  // namespace tavi
