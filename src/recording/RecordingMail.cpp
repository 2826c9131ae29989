#include "recording/RecordingMail.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "library/utility/Utility.h"

namespace tavi {

bool isTooLargeToMail(const QString& path) {
    return Utility::getFileSize(path) > kLargestMailMegabytes;
}

MailMessage mailWithAudioFile(const QString& path) {
    const QFileInfo file(path);
    MailMessage message;
    message.subject = qtTrId("picke_subject");
    message.attachments.push_back({path, QStringLiteral("audio/") + file.suffix(), file.fileName()});
    return message;
}

}  // namespace tavi
