#pragma once

#include <QString>
#include <filesystem>

namespace tavi {

/// The folders that belong to the program. Absolute paths without a trailing slash; they exist when this has been
/// built, but for the documents folder, which may be gone, full or read-only at any time.
class AppContainer {
public:
    virtual ~AppContainer() = default;

    /// The user's recordings, and the folders of files/FileNames.h among them.
    virtual std::filesystem::path documentsPath() const = 0;
    /// Recordings that are not among the others yet, each in a folder of its own; nobody but the program clears it.
    virtual std::filesystem::path unsavedPath() const = 0;
    /// Files that may be thrown away, and a second name of the recording in progress.
    virtual std::filesystem::path cachesPath() const = 0;
    virtual std::filesystem::path temporaryPath() const = 0;
    /// Where settings are stored.
    virtual std::filesystem::path preferencesPath() const = 0;
    /// The folder that the programs of an application group share; made when first asked for.
    virtual std::filesystem::path groupContainerPath(const QString& groupIdentifier) const = 0;
};

}  // namespace tavi
