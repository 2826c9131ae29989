#pragma once

#include <QSysInfo>

#include "adapters/folder/FolderCloud.h"
#include "adapters/qt/QtTrash.h"
#include "cloud/CloudAccount.h"
#include "cloud/iCloud.h"

namespace tavi {

/// The user's cloud, on the adapters that the account asks for. What it is given must outlive it.
struct Cloud {
    Cloud(const AppContainer& container, const UserDefaults& defaults, RunLoop& runLoop,
          NotificationCenter& notifications)
        : folder({runLoop, notifications, trash, container.cachesPath() / "cloud.lock", QSysInfo::machineHostName()},
                 placeOf(CloudAccount::of(defaults))),
          documents({folder, folder, folder, folder, notifications, container, runLoop}) {}

    static FolderCloud::Place placeOf(const CloudAccount& account) {
        return account.kind == CloudAccount::Kind::Folder ? FolderCloud::Place{account.folder, account.token(), nullptr}
                                                          : FolderCloud::Place{};
    }

    QtTrash trash;
    FolderCloud folder;
    iCloud documents;
};

}  // namespace tavi
