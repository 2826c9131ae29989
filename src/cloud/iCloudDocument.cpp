#include "cloud/iCloudDocument.h"

namespace tavi {

iCloudDocument::iCloudDocument(Documents& documents, const std::filesystem::path& fileURL)
    : m_document(documents.documentWithFileURL(fileURL, *this)) {}

QString iCloudDocument::stateDescription(int state) {
    if (state == documentstate::kNormal) {
        return QStringLiteral("Document state is normal");
    }
    // Nothing stands between them, and the misspelling stays: others compare the text.
    constexpr std::pair<int, QLatin1String> kTexts[] = {
        {documentstate::kClosed, QLatin1String("Document is closed")},
        {documentstate::kInConflict, QLatin1String("Document is in conflict")},
        {documentstate::kSavingError, QLatin1String("Document is experiencing saving error")},
        {documentstate::kEditingDisabled, QLatin1String("Document editing is disbled")}};
    QString description;
    for (const auto& [bit, text] : kTexts) {
        if ((state & bit) != 0) {
            description += text;
        }
    }
    return description;
}

void iCloudDocument::handleError(const Error& error) {
    if (m_delegate) {
        m_delegate(error);
    }
}

}  // namespace tavi
