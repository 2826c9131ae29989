#pragma once

#include "adapters/folder/FolderCloud.h"
#include "adapters/qt/QtTrash.h"
#include "adapters/webdav/WebDavMirror.h"
#include "cloud/CloudAccount.h"
#include "cloud/iCloud.h"
#include "files/FileDescriptor.h"
#include "platform/Keychain.h"

namespace tavi {

/// The user's cloud, on the adapters that the account asks for. What it is given must outlive it.
struct Cloud {
    Cloud(const AppContainer& container, const UserDefaults& defaults, RunLoop& runLoop,
          NotificationCenter& notifications, Keychain& keychain);

    QtTrash trash;
    /// Held by the one process that keeps a folder in step with its server.
    FileDescriptor lock;
    std::unique_ptr<WebDavMirror> mirror;
    FolderCloud folder;
    iCloud documents;
};

/// Makes the folder the cloud's, or asks the server for its folder and keeps the password in the keychain.
Result<void> prepareCloud(const CloudAccount& account, const QString& password, const AppContainer& container,
                          Keychain& keychain);
/// Looks at both sides of a server's account until they agree, at most some times. A failure where they do not.
Result<void> syncCloud(const CloudAccount& account, const AppContainer& container, Keychain& keychain);

}  // namespace tavi
