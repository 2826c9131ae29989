#pragma once

#include "cloud/CloudDocuments.h"
#include "platform/DispatchQueues.h"

namespace tavi {

/// The documents where no account is set up: whoever asks for them hears that they are not available, and nothing is
/// saved. The queues must outlive it.
class NoCloud : public CloudDocuments {
public:
    explicit NoCloud(DispatchQueues& queues) : m_queues(queues) {}

    void setDelegate(CloudDelegate* delegate) override { m_delegate = delegate; }
    CloudDelegate* delegate() const override { return m_delegate; }
    void setVerboseLogging(bool) override {}
    void setupiCloudDocumentSyncWithUbiquityContainer(const QString& identifier) override;
    bool quickCloudCheck() const override { return false; }
    void updateFiles() override {}
    std::optional<std::vector<std::filesystem::path>> listCloudFiles() override { return std::nullopt; }
    void saveAndCloseDocumentWithName(const std::filesystem::path&, const FileContents&, DocumentCompletion) override {}
    void retrieveCloudDocumentWithName(const std::filesystem::path&, DocumentCompletion) override {}
    void deleteDocumentWithName(const std::filesystem::path&, ErrorCompletion) override {}
    void renameOriginalDocument(const std::filesystem::path&, const std::filesystem::path&, ErrorCompletion) override {}

private:
    DispatchQueues& m_queues;
    CloudDelegate* m_delegate = nullptr;
    /// Ends with this; what was dispatched looks whether it is still there.
    std::shared_ptr<NoCloud*> m_self = std::make_shared<NoCloud*>(this);
};

}  // namespace tavi
