#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <span>

#include "platform/MetadataQuery.h"

namespace tavi {

class iCloudDocument;

/// Hears of the cloud's documents, on the main thread. Every operation is optional: what is not overridden is not
/// implemented.
class CloudDelegate {
public:
    virtual ~CloudDelegate() = default;

    /// The container was found and its documents are being listed.
    virtual void iCloudDidFinishInitializingWitUbiquityToken(const QString& /*token*/,
                                                             const std::filesystem::path& /*container*/) {}
    /// At every look whether there is an account, and where no container could be had. Token and container are empty
    /// where there is none.
    virtual void iCloudAvailabilityDidChangeToState(bool /*isAvailable*/, const QString& /*token*/,
                                                    const std::filesystem::path& /*container*/) {}
    /// At every list of the files, once for each that is here, with all up to it: the last call has all.
    virtual void iCloudFilesDidChange(std::span<const MetadataItem> /*files*/,
                                      std::span<const std::filesystem::path> /*names*/) {}
    virtual void iCloudFileUpdateDidBegin() {}
    virtual void iCloudFileUpdateDidEnd() {}
    /// The path extension of the files to list, asked once; nothing where it is not implemented.
    virtual std::optional<QString> iCloudQueryLimitedToFileExtension() { return std::nullopt; }
    /// Two files of one name that were changed at the same time differ. False where it is not implemented.
    virtual bool iCloudFileConflictBetweenCloudFile(const std::filesystem::path& /*cloudFile*/,
                                                    const std::filesystem::path& /*localFile*/) {
        return false;
    }
    /// The older form of the same, called where the one above is not implemented and this one says that it is.
    virtual bool hasOlderConflictOperation() const { return false; }
    virtual void iCloudFileUploadConflictWithCloudFile(const std::filesystem::path& /*cloudFile*/,
                                                       const std::filesystem::path& /*localFile*/) {}
};

}  // namespace tavi
