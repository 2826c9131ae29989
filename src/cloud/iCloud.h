#pragma once

#include "cloud/CloudFiles.h"
#include "cloud/OfflineUpload.h"

namespace tavi {

/// The documents in the user's cloud: finds the container, follows the list of its files, asks for those that are only
/// elsewhere, and saves. Every step is logged as "[iCloud] ..."; others read these lines. Main thread only.
class iCloud : public CloudFiles {
    Q_OBJECT

public:
    explicit iCloud(const CloudServices& services);
    ~iCloud() override;

    /// The one that the program has; null before it is made.
    static iCloud* sharedCloud() { return s_shared; }

    void setupiCloudDocumentSyncWithUbiquityContainer(const QString& identifier) override;
    /// Builds the query and starts it.
    void enumerateCloudDocuments();
    /// The filter of the query, "*" by default.
    const QString& fileExtension() const { return m_fileExtension; }
    void updateFiles() override;

    void saveAndCloseDocumentWithName(const std::filesystem::path& name, const FileContents& content,
                                      DocumentCompletion completion) override;
    /// The same without closing it: the completion's document stays open.
    void saveChangesToDocumentWithName(const std::filesystem::path& name, const FileContents& content,
                                       const DocumentCompletion& completion);

    /// Brings the recordings of this machine into the cloud. What both have is compared by date, and the older one
    /// goes: nothing but a caller who wants just that calls it. Calls after each file, and at the end.
    void uploadLocalOfflineDocumentsWithRepeatingHandler(OfflineUpload::RepeatingHandler repeatingHandler,
                                                         std::function<void()> completion);
    /// The same of one recording.
    void uploadLocalDocumentToCloudWithName(const std::filesystem::path& name, ErrorCompletion completion);

private:
    void notificationPosted(const QString& name);
    void containerFound();
    void startQuery();
    void startUpdate();
    void recievedUpdate();
    void endUpdate();
    void onMain(void (iCloud::*act)());
    void fileUpdateDidBegin();
    void fileUpdateDidEnd();
    void save(const std::filesystem::path& name, const FileContents& content, bool closes,
              const DocumentCompletion& completion);
    void withUpload(const std::function<void(OfflineUpload&)>& act);
    void saveDocument(const std::shared_ptr<iCloudDocument>& document, bool isNew, bool closes,
                      const DocumentCompletion& completion);
    void closeDocument(const std::shared_ptr<iCloudDocument>& document, bool isNew,
                       const DocumentCompletion& completion);

    static iCloud* s_shared;

    std::unique_ptr<MetadataQuery> m_query;
    QString m_fileExtension = QStringLiteral("*");
};

}  // namespace tavi
