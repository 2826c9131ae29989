#include "cloud/CloudFiles.h"

#include <QPointer>
#include <utility>

#include "files/FileContents.h"
#include "files/PathText.h"

namespace tavi {

namespace {

constexpr int kEmptyName = 1;
constexpr int kFailed = 100;
constexpr int kNotFound = 404;

}  // namespace

void CloudFiles::complete(const ErrorCompletion& completion, const std::optional<CloudError>& error) const {
    if (completion) {
        services().queues.dispatchMain([completion, error] { completion(error); });
    }
}

bool CloudFiles::checkName(const std::filesystem::path& name, const QString& emptyText,
                           const ErrorCompletion& completion) const {
    if (name.empty()) {
        verbose(QStringLiteral("Specified document name must not be empty"));
        complete(completion, CloudError{emptyText, kEmptyName});
        return false;
    }
    // A document lies in the folder of documents, and nowhere else.
    if (name != name.filename() || name == "." || name == "..") {
        complete(completion, CloudError{QStringLiteral("%1 is no name of a document.").arg(pathText(name)), kFailed});
        return false;
    }
    return true;
}

std::filesystem::path CloudFiles::urlOf(const std::filesystem::path& name) {
    return ubiquityContainer() / kUbiquityDocumentsFolder / name.filename();
}

void CloudFiles::inCloud(const ErrorCompletion& completion,
                         std::function<void(const std::filesystem::path& folder)> act) {
    withDocuments([this, completion, act = std::move(act)](const std::filesystem::path& folder, bool isInCloud) {
        if (isInCloud) {
            act(folder);
        } else {
            complete(completion, CloudError{QStringLiteral("The cloud's folder cannot be reached."), kFailed});
        }
    });
}

UbiquityContainer::Completion CloudFiles::logged(const char* text, ErrorCompletion completion) const {
    return [this, self = QPointer(this), text, completion = std::move(completion)](const Result<void>& result) {
        if (self && !result) {
            log(QLatin1String(text).arg(result.error().text));
        }
        if (completion) {
            completion(result ? std::nullopt : std::optional(CloudError{result.error().text, kFailed}));
        }
    };
}

void CloudFiles::retrieveCloudDocumentWithName(const std::filesystem::path& name, DocumentCompletion completion) {
    verbose(QStringLiteral("Retrieving iCloud document, %1").arg(pathText(name)));
    const ErrorCompletion failed = [completion](const std::optional<CloudError>& error) {
        if (completion) {
            completion(nullptr, {}, error);
        }
    };
    if (!quickCloudCheck() ||
        !checkName(name, QStringLiteral("The specified document name was empty / blank and could not be retrieved."),
                   failed)) {
        return;
    }
    inCloud(failed, [this, name, completion, failed](const std::filesystem::path& folder) {
        const auto document = std::make_shared<iCloudDocument>(services().documents, folder / name);
        document->document().open([this, self = QPointer(this), document, completion, failed](Result<void> result) {
            if (!result) {
                if (self) {
                    log(QStringLiteral("Error while retrieving document: %1").arg(result.error().text));
                }
                failed(CloudError{QStringLiteral("%1 error while retrieving document, %2, from iCloud")
                                      .arg(result.error().text, pathText(document->localizedName())),
                                  kFailed});
            } else if (completion) {
                completion(document, document->contents(), std::nullopt);
            }
        });
    });
}

std::shared_ptr<iCloudDocument> CloudFiles::retrieveCloudDocumentObjectWithName(const std::filesystem::path& name) {
    verbose(QStringLiteral("Retrieving iCloudDocument object with specified name"));
    return quickCloudCheck() && !ubiquityContainer().empty()
               ? std::make_shared<iCloudDocument>(services().documents, urlOf(name))
               : nullptr;
}

std::optional<std::uint64_t> CloudFiles::fileSize(const std::filesystem::path& name) {
    const auto attributes = services().container.attributesOfItem(urlOf(name));
    return attributes ? std::optional(attributes->size) : std::nullopt;
}

std::optional<QDateTime> CloudFiles::fileModifiedDate(const std::filesystem::path& name) {
    const auto attributes = services().container.attributesOfItem(urlOf(name));
    return attributes ? std::optional(attributes->modified) : std::nullopt;
}

std::optional<QDateTime> CloudFiles::fileCreatedDate(const std::filesystem::path& name) {
    const auto attributes = services().container.attributesOfItem(urlOf(name));
    return attributes ? std::optional(attributes->created) : std::nullopt;
}

void CloudFiles::documentStateForFile(const std::filesystem::path& name, const StateCompletion& completion) {
    if (!doesFileExistInCloud(name)) {
        return complete(
            [completion](const std::optional<CloudError>& error) { completion(0, {}, error); },
            CloudError{QStringLiteral("The document, %1, does not exist at path").arg(pathText(name)), kNotFound});
    }
    const auto document = retrieveCloudDocumentObjectWithName(name);
    if (document != nullptr) {
        complete(
            [document, completion](const std::optional<CloudError>&) {
                completion(document->documentState(), document->stateDescription(), std::nullopt);
            },
            std::nullopt);
    }
}

void CloudFiles::monitorDocumentStateForFile(const std::filesystem::path& name, std::function<void(int state)> target) {
    if (const auto document = retrieveCloudDocumentObjectWithName(name)) {
        m_monitored[name] = document;
        document->document().setStateObserver([weak = std::weak_ptr(document), target = std::move(target)] {
            if (const auto watched = weak.lock()) {
                target(watched->documentState());
            }
        });
        document->document().open([](const Result<void>&) {});
    }
}

void CloudFiles::stopMonitoringDocumentStateChangesForFile(const std::filesystem::path& name) {
    if (const auto found = m_monitored.extract(name)) {
        found.mapped()->document().setStateObserver(nullptr);
    }
}

std::vector<FileVersion> CloudFiles::findUnresolvedConflictingVersionsOfFile(const std::filesystem::path& name) {
    return services().documents.unresolvedConflictVersionsOfItem(urlOf(name));
}

void CloudFiles::resolveConflictForFile(const std::filesystem::path& name, const FileVersion& version,
                                        ErrorCompletion completion) {
    services().documents.resolveConflict(urlOf(name), version,
                                         logged("Error while resolving a conflict: %1", std::move(completion)));
}

void CloudFiles::shareDocumentWithName(const std::filesystem::path& name, const ShareCompletion& completion) {
    verbose(QStringLiteral("Attempting to share document"));
    const bool exists = doesFileExistInCloud(name);
    complete([completion, url = urlOf(name), exists](
                 const std::optional<CloudError>& error) { completion(exists ? url : std::filesystem::path(), error); },
             exists ? std::nullopt
                    : std::optional(CloudError{
                          QStringLiteral("The document, %1, does not exist at path").arg(pathText(name)), kNotFound}));
}

void CloudFiles::deleteDocumentWithName(const std::filesystem::path& name, ErrorCompletion completion) {
    verbose(QStringLiteral("Attempting to delete document"));
    if (quickCloudCheck() &&
        checkName(name, QStringLiteral("The specified document name was empty / blank and could not be deleted."),
                  completion)) {
        inCloud(completion, [this, name, completion](const std::filesystem::path& folder) {
            services().container.removeItem(folder / name, logged("Error while deleting the document: %1", completion));
        });
    }
}

void CloudFiles::evictCloudDocumentWithName(const std::filesystem::path& name, const ErrorCompletion& completion) {
    verbose(QStringLiteral("Attempting to evict document"));
    if (quickCloudCheck() &&
        checkName(name, QStringLiteral("The specified document name was empty / blank and could not be evicted."),
                  completion)) {
        inCloud(completion, [this, name, completion](const std::filesystem::path& folder) {
            services().container.evictUbiquitousItem(folder / name,
                                                     logged("Error while evicting the document: %1", completion));
        });
    }
}

void CloudFiles::renameOriginalDocument(const std::filesystem::path& name, const std::filesystem::path& newName,
                                        ErrorCompletion completion) {
    verbose(QStringLiteral("Attempting to rename document, %1, to the new name: %2")
                .arg(pathText(name), pathText(newName)));
    const QString empty = QStringLiteral("The specified document name was empty / blank and could not be renamed.");
    if (quickCloudCheck() && checkName(name, empty, completion) && checkName(newName, empty, completion)) {
        inCloud(completion, [this, name, newName, completion](const std::filesystem::path& folder) {
            services().container.moveItem(folder / name, folder / newName,
                                          logged("Error while renaming the document: %1", completion));
        });
    }
}

void CloudFiles::duplicateOriginalDocument(const std::filesystem::path& name, const std::filesystem::path& newName,
                                           const ErrorCompletion& completion) {
    verbose(QStringLiteral("Attempting to duplicate document, %1").arg(pathText(name)));
    if (!checkName(newName,
                   QStringLiteral("The specified document name was empty / blank and could not be duplicated."),
                   completion)) {
        return;
    }
    retrieveCloudDocumentWithName(name, [this, self = QPointer(this), newName, completion](
                                            const std::shared_ptr<iCloudDocument>& original,
                                            const FileContents& contents, const std::optional<CloudError>& error) {
        if (error || !self) {
            return completion ? completion(error) : void();
        }
        const auto copy =
            std::make_shared<iCloudDocument>(services().documents, original->fileURL().parent_path() / newName);
        copy->setContents(contents);
        copy->document().save(DocumentSave::ForCreating,
                              [copy, done = logged("Error while duplicating the document: %1", completion)](
                                  const Result<void>& result) { done(result); });
    });
}

}  // namespace tavi
