#include "library/utility/RecordingMail.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "files/PathText.h"
#include "library/utility/Utility.h"

namespace tavi {

bool isTooLargeToMail(const std::filesystem::path& path) {
    return Utility::getFileSize(path) > kLargestMailMegabytes;
}

MailMessage mailWithAudioFile(const std::filesystem::path& path) {
    const QFileInfo file(pathText(path));
    MailMessage message;
    message.subject = qtTrId("picke_subject");
    message.attachments.push_back({path, QStringLiteral("audio/") + file.suffix(), file.fileName()});
    return message;
}

}  // namespace tavi
