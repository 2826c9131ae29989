#pragma once

#include "cloud/CloudContainer.h"
#include "cloud/iCloudDocument.h"

namespace tavi {

/// What can be done with single files of the cloud. Errors have the message as their domain.
class CloudFiles : public CloudContainer {
    Q_OBJECT

public:
    using CloudContainer::CloudContainer;
    using StateCompletion =
        std::function<void(int state, const QString& description, const std::optional<CloudError>& error)>;
    using ShareCompletion = std::function<void(const std::filesystem::path& url, const std::optional<CloudError>&)>;

    void retrieveCloudDocumentWithName(const std::filesystem::path& name, DocumentCompletion completion) override;
    /// The document of that name, neither opened nor saved; null without an account.
    std::shared_ptr<iCloudDocument> retrieveCloudDocumentObjectWithName(const std::filesystem::path& name);
    /// Nothing where there is no such file on this machine.
    std::optional<std::uint64_t> fileSize(const std::filesystem::path& name);
    std::optional<QDateTime> fileModifiedDate(const std::filesystem::path& name);
    std::optional<QDateTime> fileCreatedDate(const std::filesystem::path& name);
    bool doesFileExistInCloud(const std::filesystem::path& name) { return fileSize(name).has_value(); }

    void documentStateForFile(const std::filesystem::path& name, const StateCompletion& completion);
    /// Calls after every change of that file's state, until stopMonitoring...() or the next of these for the same name.
    void monitorDocumentStateForFile(const std::filesystem::path& name, std::function<void(int state)> target);
    void stopMonitoringDocumentStateChangesForFile(const std::filesystem::path& name);
    std::vector<FileVersion> findUnresolvedConflictingVersionsOfFile(const std::filesystem::path& name);
    void resolveConflictForFile(const std::filesystem::path& name, const FileVersion& version,
                                ErrorCompletion completion);

    /// Where the document is, for other programs of this machine.
    void shareDocumentWithName(const std::filesystem::path& name, const ShareCompletion& completion);
    void deleteDocumentWithName(const std::filesystem::path& name, ErrorCompletion completion) override;
    void evictCloudDocumentWithName(const std::filesystem::path& name, const ErrorCompletion& completion);
    void renameOriginalDocument(const std::filesystem::path& name, const std::filesystem::path& newName,
                                ErrorCompletion completion) override;
    void duplicateOriginalDocument(const std::filesystem::path& name, const std::filesystem::path& newName,
                                   const ErrorCompletion& completion);

protected:
    /// Completes on the main thread with an error, or with none.
    void complete(const ErrorCompletion& completion, const std::optional<CloudError>& error) const;
    /// Whether that can be the name of a document. Completes with an error where it cannot.
    bool checkName(const std::filesystem::path& name, const QString& emptyText,
                   const ErrorCompletion& completion) const;

private:
    std::filesystem::path urlOf(const std::filesystem::path& name);
    /// Calls with the folder of documents in the cloud; completes with an error where there is no container, since the
    /// folder in its place is that of the recordings.
    void inCloud(const ErrorCompletion& completion, std::function<void(const std::filesystem::path& folder)> act);
    UbiquityContainer::Completion logged(const char* text, ErrorCompletion completion) const;

    std::map<std::filesystem::path, std::shared_ptr<iCloudDocument>> m_monitored;
};

}  // namespace tavi
