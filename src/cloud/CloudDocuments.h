#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "cloud/CloudDelegate.h"
#include "files/FileContents.h"

namespace tavi {

/// What went wrong with a document. The domain is the message itself, on purpose.
struct CloudError {
    QString domain;
    int code = 0;
};

/// The documents in the user's cloud, as the screens need them. Names are file names without a folder.
///
/// Main thread only. Nothing here waits for a disk or a server; completions come on the main thread, at most once, and
/// never where there is no account. Contents are as long in use as they are being saved.
class CloudDocuments {
public:
    using DocumentCompletion =
        std::function<void(const std::shared_ptr<iCloudDocument>& document, const FileContents& contents,
                           const std::optional<CloudError>& error)>;
    using ErrorCompletion = std::function<void(const std::optional<CloudError>& error)>;

    virtual ~CloudDocuments() = default;

    /// Not owning; nullptr for none. Whoever goes takes itself out, if it is still the one.
    virtual void setDelegate(CloudDelegate* delegate) = 0;
    virtual CloudDelegate* delegate() const = 0;
    virtual void setVerboseLogging(bool isVerbose) = 0;
    /// Looks for the container of that identifier, the program's own where it is empty, and lists its documents.
    virtual void setupiCloudDocumentSyncWithUbiquityContainer(const QString& identifier) = 0;
    /// Whether an account is set up, be it without a network.
    virtual bool quickCloudCheck() const = 0;

    /// Tells the delegate of the files that are here, and asks for those that are not.
    virtual void updateFiles() = 0;
    /// Paths of what is in the documents folder of the container; nothing where there is no account.
    virtual std::optional<std::vector<std::filesystem::path>> listCloudFiles() = 0;

    /// Saves the contents under a name, over what has it already. The document is null where there is an error.
    virtual void saveAndCloseDocumentWithName(const std::filesystem::path& name, const FileContents& content,
                                              DocumentCompletion completion) = 0;
    /// Reads a document that is there, or makes an empty one.
    virtual void retrieveCloudDocumentWithName(const std::filesystem::path& name, DocumentCompletion completion) = 0;
    virtual void deleteDocumentWithName(const std::filesystem::path& name, ErrorCompletion completion) = 0;
    /// The file keeps its contents. A new name that is taken is an error, and nothing is replaced.
    virtual void renameOriginalDocument(const std::filesystem::path& name, const std::filesystem::path& newName,
                                        ErrorCompletion completion) = 0;
};

}  // namespace tavi
