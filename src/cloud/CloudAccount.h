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
    /// Its user has agreed that everything goes to the server in the clear, the password too.
    bool mayBeInClear = false;

    /// A server's folder, by the address as somebody writes it.
    static CloudAccount server(const QString& address, const QString& user, bool mayBeInClear = false);
    static CloudAccount of(const UserDefaults& defaults);
    /// False where the settings could not be written.
    bool store(UserDefaults& defaults) const;
    /// Whether it is reached by the network.
    bool isElsewhere() const;
    /// Whether it must be asked for that first: an address that is http, and not of this machine.
    bool isInClear() const;
    /// Says which account it is; empty for none.
    QString token() const;

    bool operator==(const CloudAccount&) const = default;
    /// As people read it.
    QString placeText() const;
};

}  // namespace tavi
