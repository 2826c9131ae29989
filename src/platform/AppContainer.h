#pragma once

#include <QString>

namespace tavi {

/// The folders that belong to the program. Absolute paths without a trailing slash; they exist when this has been
/// built.
class AppContainer {
public:
    virtual ~AppContainer() = default;

    /// The user's recordings, and the folders "ICloud", "Inbox" and "PrivateInbox" among them.
    virtual QString documentsPath() const = 0;
    /// Files that may be thrown away, and the recording in progress.
    virtual QString cachesPath() const = 0;
    virtual QString temporaryPath() const = 0;
    /// Where settings are stored.
    virtual QString preferencesPath() const = 0;
    /// The folder that the programs of an application group share; made when first asked for.
    virtual QString groupContainerPath(const QString& groupIdentifier) const = 0;
};

}  // namespace tavi
