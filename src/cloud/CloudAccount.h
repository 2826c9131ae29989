#pragma once

#include <QString>
#include <filesystem>

#include "platform/UserDefaults.h"

namespace tavi {

/// Where the user's cloud is, as the settings store keeps it. The password of a server is not among it.
struct CloudAccount {
    enum class Kind { None, Folder, Server };
    Kind kind = Kind::None;
    /// The folder that another program keeps in sync.
    std::filesystem::path folder;
    /// The server's folder, http or https, without a user.
    QString address;
    QString user;

    static CloudAccount of(const UserDefaults& defaults);
    /// False where the settings could not be written.
    bool store(UserDefaults& defaults) const;
    /// Says which account it is; empty for none.
    QString token() const;
    /// As people read it.
    QString placeText() const;
};

}  // namespace tavi
