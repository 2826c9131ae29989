#include "cloud/iCloud.h"

#include <QPointer>
#include <utility>

#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

constexpr int kSaveFailed = 100;
constexpr int kCloseFailed = 110;

}  // namespace

iCloud* iCloud::s_shared = nullptr;

iCloud::iCloud(const CloudServices& cloudServices) : CloudFiles(cloudServices) {
    s_shared = this;
}

iCloud::~iCloud() {
    if (s_shared == this) {
        s_shared = nullptr;
    }
}

void iCloud::onMain(void (iCloud::*act)()) {
    services().queues.dispatchMain([self = QPointer(this), act] {
        if (self) {
            (self.data()->*act)();
        }
    });
}

void iCloud::setupiCloudDocumentSyncWithUbiquityContainer(const QString& identifier) {
    if (m_query == nullptr) {
        m_query = services().queries.metadataQuery();
    }
    services().queues.dispatchBackground([self = QPointer(this), queues = &services().queues] {
        queues->dispatchMain([self] { self ? self->log(QStringLiteral("Initializing Ubiquity Container")) : void(); });
    });
    findContainer(identifier, [this] { containerFound(); });
    log(QStringLiteral("Initialized"));
}

void iCloud::containerFound() {
    if (ubiquityContainer().empty()) {
        logMissingContainer();
        reportUnavailable();
        return;
    }
    log(QStringLiteral("Initializing Document Enumeration"));
    const QString token = services().container.ubiquityIdentityToken();
    enumerateCloudDocuments();
    connect(&services().notifications, &NotificationCenter::posted, this, &iCloud::notificationPosted,
            Qt::UniqueConnection);
    if (delegate() != nullptr) {
        delegate()->iCloudDidFinishInitializingWitUbiquityToken(token, ubiquityContainer());
    }
    log(QStringLiteral("Ubiquity Container Created and Ready"));
}

void iCloud::notificationPosted(const QString& name) {
    if (name == kUbiquityIdentityDidChangeNotification) {
        checkCloudAvailability();
    }
}

void iCloud::enumerateCloudDocuments() {
    verbose(QStringLiteral("Creating metadata query and notifications"));
    m_fileExtension = QStringLiteral("*");
    if (const auto limit = delegate() != nullptr ? delegate()->iCloudQueryLimitedToFileExtension() : std::nullopt) {
        m_fileExtension = limit->isEmpty() ? m_fileExtension : *limit;
        log(QStringLiteral("Document query filter has been set to %1").arg(m_fileExtension));
    }
    m_query->setExtensionLike(m_fileExtension);
    m_query->setObservers({[this] { startUpdate(); }, [this] { recievedUpdate(); }, [this] { endUpdate(); }});
    onMain(&iCloud::startQuery);
}

void iCloud::startQuery() {
    if (m_query->startQuery()) {
        verbose(QStringLiteral("Query initialized successfully"));
    } else {
        log(QStringLiteral("Failed to start query."));
    }
}

void iCloud::startUpdate() {
    verbose(QStringLiteral("Beginning file update with NSMetadataQuery"));
    onMain(&iCloud::fileUpdateDidBegin);
}

void iCloud::recievedUpdate() {
    verbose(QStringLiteral("An update has been pushed from iCloud with NSMetadataQuery"));
    updateFiles();
}

void iCloud::endUpdate() {
    updateFiles();
    onMain(&iCloud::fileUpdateDidEnd);
    verbose(QStringLiteral("Finished file update with NSMetadataQuery"));
}

void iCloud::fileUpdateDidBegin() {
    if (delegate() != nullptr) {
        delegate()->iCloudFileUpdateDidBegin();
    }
}

void iCloud::fileUpdateDidEnd() {
    if (delegate() != nullptr) {
        delegate()->iCloudFileUpdateDidEnd();
    }
}

void iCloud::updateFiles() {
    verbose(QStringLiteral("Beginning file update with NSMetadataQuery"));
    if (!quickCloudCheck() || m_query == nullptr) {
        return;
    }
    struct Lists {
        std::vector<MetadataItem> items;
        std::vector<std::filesystem::path> names;
    };
    const auto lists = std::make_shared<Lists>();
    for (MetadataItem& item : m_query->results()) {
        if (item.downloadingStatus == DownloadingStatus::Current) {
            lists->names.push_back(item.fileSystemName);
            lists->items.push_back(std::move(item));
            // Once for every file, with those up to it, on purpose: the last call has all of them.
            services().queues.dispatchMain([self = QPointer(this), lists, count = lists->items.size()] {
                if (self && self->delegate() != nullptr) {
                    self->delegate()->iCloudFilesDidChange(std::span(lists->items).first(count),
                                                           std::span(lists->names).first(count));
                }
            });
        } else if (item.downloadingStatus == DownloadingStatus::NotDownloaded) {
            const Result<void> started = services().container.startDownloadingUbiquitousItem(item.url);
            verbose(QStringLiteral("%1 started downloading locally, successful? %2")
                        .arg(pathText(item.fileSystemName), started ? QStringLiteral("YES") : QStringLiteral("NO")));
            if (!started) {
                log(QStringLiteral("Ubiquitous item failed to start downloading with error: %1")
                        .arg(started.error().text));
            }
        }
        // What is here in an older version is neither listed nor asked for, on purpose: a newer one is on its way.
    }
}

void iCloud::saveAndCloseDocumentWithName(const std::filesystem::path& name, const FileContents& content,
                                          DocumentCompletion completion) {
    save(name, content, true, completion);
}

void iCloud::saveChangesToDocumentWithName(const std::filesystem::path& name, const FileContents& content,
                                           const DocumentCompletion& completion) {
    save(name, content, false, completion);
}

void iCloud::save(const std::filesystem::path& name, const FileContents& content, bool closes,
                  const DocumentCompletion& completion) {
    verbose(QStringLiteral("Beginning document save"));
    if (!quickCloudCheck()) {
        return;
    }
    const ErrorCompletion failed = [completion](const std::optional<CloudError>& error) {
        if (completion) {
            completion(nullptr, {}, error);
        }
    };
    if (!checkName(name,
                   QStringLiteral("The specified document name was empty / blank and could not be saved. "
                                  "Specify a document name next time."),
                   failed)) {
        return;
    }
    withDocuments([this, name, content, closes, completion](const std::filesystem::path& folder, bool) {
        const auto document = std::make_shared<iCloudDocument>(services().documents, folder / name);
        document->setContents(content);
        document->document().updateChangeCount();
        const auto exists = std::make_shared<bool>(false);
        services().coordinator.coordinate([exists, url = folder / name] { *exists = existsAt(url); },
                                          [self = QPointer(this), document, exists, closes, completion] {
                                              if (self) {
                                                  self->saveDocument(document, !*exists, closes, completion);
                                              }
                                          });
    });
}

void iCloud::saveDocument(const std::shared_ptr<iCloudDocument>& document, bool isNew, bool closes,
                          const DocumentCompletion& completion) {
    verbose(isNew ? QStringLiteral("Document is new; creating, saving and then closing")
                  : QStringLiteral("Document exists; overwriting, saving and closing"));
    document->document().save(
        isNew ? DocumentSave::ForCreating : DocumentSave::ForOverwriting,
        [self = QPointer(this), document, isNew, closes, completion](const Result<void>& result) {
            const QString name = pathText(document->localizedName());
            if (result) {
                return self && closes ? self->closeDocument(document, isNew, completion)
                       : completion   ? completion(document, document->contents(), std::nullopt)
                                      : void();
            }
            const QString& reason = result.error().text;
            if (self) {
                self->log((isNew ? QStringLiteral("Error while creating the document: %1")
                                 : QStringLiteral("Error while writing to the document: %1"))
                              .arg(reason));
            }
            if (completion) {
                completion(nullptr, {},
                           CloudError{(isNew ? QStringLiteral("%1 error while creating the document, %2, in iCloud")
                                             : QStringLiteral("%1 error while writing to the document, %2, in iCloud"))
                                          .arg(reason, name),
                                      kSaveFailed});
            }
        });
}

void iCloud::closeDocument(const std::shared_ptr<iCloudDocument>& document, bool isNew,
                           const DocumentCompletion& completion) {
    document->document().close([self = QPointer(this), document, isNew, completion](const Result<void>& result) {
        if (!result) {
            if (self) {
                self->log((isNew ? QStringLiteral("Error while saving and closing document: %1")
                                 : QStringLiteral("Error while saving document: %1"))
                              .arg(result.error().text));
            }
            if (completion) {
                completion(nullptr, {},
                           CloudError{QStringLiteral("%1 error while saving the document, %2, to iCloud")
                                          .arg(result.error().text, pathText(document->localizedName())),
                                      kCloseFailed});
            }
            return;
        }
        if (self) {
            self->verbose(isNew ? QStringLiteral("New document created, saved and closed successfully")
                                : QStringLiteral("Written, saved and closed document"));
        }
        if (completion) {
            completion(document, document->contents(), std::nullopt);
        }
    });
}

}  // namespace tavi
