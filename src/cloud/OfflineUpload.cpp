#include "cloud/OfflineUpload.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QPointer>
#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "cloud/CloudSaving.h"
#include "cloud/iCloud.h"
#include "files/PathText.h"

namespace tavi {

namespace {

constexpr int kDeleteFailed = 100;

QDateTime dateOf(const std::filesystem::path& path) {
    struct stat attributes = {};
    if (::lstat(path.c_str(), &attributes) != 0 || !S_ISREG(attributes.st_mode)) {
        return {};
    }
    return QDateTime::fromMSecsSinceEpoch(attributes.st_mtim.tv_sec * 1000 + attributes.st_mtim.tv_nsec / 1'000'000);
}

bool haveEqualContents(const std::filesystem::path& a, const std::filesystem::path& b) {
    const auto first = FileContents::ofFile(a);
    const auto second = FileContents::ofFile(b);
    return first && second && first->equals(*second);
}

/// Ordinary files that are seen, in the order of their names.
std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::filesystem::path name = entry->path().filename();
        if (name.native().front() != '.' && dateOf(entry->path()).isValid()) {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

UploadAction uploadAction(const UploadComparison& comparison) {
    if (!comparison.cloudDate.isValid()) {
        return UploadAction::Upload;
    }
    if (comparison.cloudDate > comparison.localDate) {
        return UploadAction::DeleteLocalAsOlder;
    }
    if (comparison.cloudDate < comparison.localDate) {
        return UploadAction::OverwriteCloud;
    }
    return comparison.haveEqualContents ? UploadAction::DeleteLocalAsEqual : UploadAction::LeaveBoth;
}

void OfflineUpload::uploadAll(RepeatingHandler handler, std::function<void()> completion) {
    m_handler = std::move(handler);
    m_completion = std::move(completion);
    m_services.log(QStringLiteral("Beginning local file upload to iCloud. This process may take a long time."), false);
    const auto names = std::make_shared<std::vector<std::filesystem::path>>();
    m_services.coordinator.coordinate([names, folder = m_local] { *names = filesIn(folder); },
                                      [self = shared_from_this(), names] {
                                          self->m_names = std::move(*names);
                                          self->next();
                                      });
}

void OfflineUpload::next() {
    if (m_done == m_names.size()) {
        m_services.log(QStringLiteral("Finished uploading all local files to iCloud"), false);
        return m_completion ? m_completion() : void();
    }
    const std::filesystem::path& name = m_names[m_done++];
    uploadOne(name, [self = shared_from_this(), name](const std::optional<CloudError>& error) {
        if (self->m_handler) {
            self->m_handler(name, error);
        }
        self->next();
    });
}

void OfflineUpload::uploadOne(const std::filesystem::path& name, CloudDocuments::ErrorCompletion completion) {
    if (m_names.empty()) {
        m_names = {name};
        m_done = 1;
    }
    const auto comparison = std::make_shared<UploadComparison>();
    m_services.coordinator.coordinate(
        [comparison, local = m_local / name, cloud = m_cloud / name] {
            *comparison = {dateOf(local), dateOf(cloud), false};
            comparison->haveEqualContents = comparison->localDate == comparison->cloudDate &&
                                            comparison->cloudDate.isValid() && haveEqualContents(local, cloud);
        },
        [self = shared_from_this(), comparison, name, completion = std::move(completion)] {
            self->compared(name, *comparison, completion);
        });
}

void OfflineUpload::compared(const std::filesystem::path& name, const UploadComparison& comparison,
                             const CloudDocuments::ErrorCompletion& completion) {
    const UploadAction action = uploadAction(comparison);
    if (action != UploadAction::Upload) {
        m_services.log(
            QStringLiteral("Conflict between local file and remote file, attempting to automatically resolve"), true);
    }
    switch (action) {
        case UploadAction::Upload:
            m_services.log(QStringLiteral("Uploading %1 to iCloud (%2 out of %3)")
                               .arg(pathText(name))
                               .arg(m_done)
                               .arg(m_names.size()),
                           true);
            return save(name, completion);
        case UploadAction::DeleteLocalAsOlder:
            m_services.log(QStringLiteral("The iCloud file was modified more recently than the local file. The local "
                                          "file will be deleted and the iCloud file will be preserved."),
                           false);
            return deleteLocal(name, completion);
        case UploadAction::OverwriteCloud:
            m_services.log(QStringLiteral("The local file was modified more recently than the iCloud file. The iCloud "
                                          "file will be overwritten with the contents of the local file."),
                           false);
            return save(name, completion);
        case UploadAction::DeleteLocalAsEqual:
            m_services.log(QStringLiteral("The contents of the local file and the contents of the iCloud file match. "
                                          "The local file will be deleted."),
                           false);
            return deleteLocal(name, completion);
        case UploadAction::LeaveBoth:
            m_services.log(QStringLiteral("Both the iCloud file and the local file were last modified at the same "
                                          "time, however their contents do not match. You'll need to handle the "
                                          "conflict using the iCloudFileConflictBetweenCloudFile:andLocalFile: "
                                          "delegate method."),
                           false);
            askDelegate(name);
            return completion(std::nullopt);
    }
}

void OfflineUpload::askDelegate(const std::filesystem::path& name) {
    CloudDelegate* delegate = m_services.cloud.delegate();
    if (delegate == nullptr || delegate->iCloudFileConflictBetweenCloudFile(m_cloud / name, m_local / name)) {
        return;
    }
    if (delegate->hasOlderConflictOperation()) {
        m_services.log(QStringLiteral("WARNING: iCloudFileUploadConflictWithCloudFile:andLocalFile is deprecated and "
                                      "will become unavailable in a future version. Use "
                                      "iCloudFileConflictBetweenCloudFile:andLocalFile instead."),
                       false);
        delegate->iCloudFileUploadConflictWithCloudFile(m_cloud / name, m_local / name);
    }
}

void OfflineUpload::save(const std::filesystem::path& name, const CloudDocuments::ErrorCompletion& completion) {
    saveFileToCloud(
        m_services.cloud, m_services.queues, m_local / name,
        [self = shared_from_this(), completion](const std::shared_ptr<iCloudDocument>&, const FileContents&,
                                                const std::optional<CloudError>& error) {
            if (error) {
                self->m_services.log(
                    QStringLiteral("Error while uploading document from local directory: %1").arg(errorText(*error)),
                    false);
            }
            completion(error);
        });
}

void OfflineUpload::deleteLocal(const std::filesystem::path& name, const CloudDocuments::ErrorCompletion& completion) {
    const auto error = std::make_shared<int>(0);
    m_services.coordinator.coordinate(
        [error, path = m_local / name] { *error = ::unlink(path.c_str()) == 0 ? 0 : errno; },
        [self = shared_from_this(), error, name, completion] {
            if (*error == 0) {
                return completion(std::nullopt);
            }
            const QString reason = QString::fromStdString(std::generic_category().message(*error));
            self->m_services.log(QStringLiteral("Error deleting %1.\n\n%2").arg(pathText(name), reason), false);
            completion(CloudError{reason, kDeleteFailed});
        });
}

void iCloud::uploadLocalOfflineDocumentsWithRepeatingHandler(OfflineUpload::RepeatingHandler repeatingHandler,
                                                             std::function<void()> completion) {
    withUpload([handler = std::move(repeatingHandler), completion = std::move(completion)](OfflineUpload& upload) {
        upload.uploadAll(handler, completion);
    });
}

void iCloud::uploadLocalDocumentToCloudWithName(const std::filesystem::path& name, ErrorCompletion completion) {
    withUpload([name, completion = std::move(completion)](OfflineUpload& upload) {
        upload.uploadOne(name, [completion](const std::optional<CloudError>& error) {
            if (completion) {
                completion(error);
            }
        });
    });
}

void iCloud::withUpload(const std::function<void(OfflineUpload&)>& act) {
    if (!quickCloudCheck()) {
        return;
    }
    withDocuments([this, act](const std::filesystem::path& folder, bool isInCloud) {
        if (!isInCloud) {
            // The folder is that of the recordings themselves: each would be compared with itself, and go.
            return;
        }
        act(*std::make_shared<OfflineUpload>(
            OfflineUpload::Services{*this, services().coordinator, services().queues,
                                    [self = QPointer(this)](const QString& message, bool onlyWhileVerbose) {
                                        if (self) {
                                            onlyWhileVerbose ? self->verbose(message) : self->log(message);
                                        }
                                    }},
            services().folders.documentsPath(), folder));
    });
}

}  // namespace tavi
