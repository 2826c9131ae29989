#include "cloud/CloudSaving.h"

#include <QStringDecoder>
#include <string_view>
#include <utility>

#include "files/PathText.h"

namespace tavi {

namespace {

/// A line of a log that people read; and the main thread writes it.
constexpr std::size_t kLongestText = 4096;
constexpr int kFileError = 100;

}  // namespace

void saveFileToCloud(CloudDocuments& cloud, DispatchQueues& queues, const std::filesystem::path& path,
                     CloudDocuments::DocumentCompletion completion) {
    queues.dispatchBackground([&cloud, &queues, path, completion = std::move(completion)] {
        queues.dispatchMain([&cloud, path, completion, contents = FileContents::ofFile(path)] {
            if (contents) {
                cloud.saveAndCloseDocumentWithName(path.filename(), *contents, completion);
            } else if (completion) {
                completion(nullptr, {}, CloudError{QString::fromStdString(contents.error().text), kFileError});
            }
        });
    });
}

QString contentsText(const FileContents& contents) {
    const std::string head = contents.head(kLongestText);
    const bool isWhole = contents.size() <= kLongestText;
    QStringDecoder decoder(QStringDecoder::Utf8,
                           isWhole ? QStringDecoder::Flag::Stateless : QStringDecoder::Flag::Default);
    const QString text = decoder(QByteArrayView(head.data(), static_cast<qsizetype>(head.size())));
    if (decoder.hasError()) {
        return QStringLiteral("(null)");
    }
    return isWhole ? text : text + QChar(0x2026);
}

QString errorText(const CloudError& error) {
    return QStringLiteral("%1 (%2)").arg(error.domain).arg(error.code);
}

}  // namespace tavi
