#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// "tavi cloud connect PLACE [--user NAME]": the user's cloud is a folder, which exists and which another program keeps
/// in sync, or a folder on a WebDAV server, by its address. It is asked at once.
struct CloudConnectOptions {
    std::string place;
    std::string user;
    /// Its user agrees to http, too.
    bool mayBeInClear = false;
};

/// "tavi cloud sync": has this machine and the server agree. Fails where they do not, or the program is running.
/// More files than a handful that have vanished from the server at once are asked about by that.
struct CloudSyncOptions {
    bool removeVanished = false;
    bool keepVanished = false;
};

/// "tavi cloud disconnect": there is no cloud any more, and its password is forgotten. What is in it stays.
struct CloudDisconnectOptions {};

/// "tavi cloud status"
struct CloudStatusOptions {
    bool json = false;
};

/// "tavi cloud list": what is in the cloud, as far as is known here, and where each file is.
struct CloudListOptions {
    bool json = false;
};

/// They print what is the case afterwards. The running program takes another cloud when it starts next.
Result<QByteArray> run(const CloudConnectOptions& options, const CommandServices& services);
Result<QByteArray> run(const CloudSyncOptions& options, const CommandServices& services);
Result<QByteArray> run(const CloudDisconnectOptions& options, const CommandServices& services);
Result<QByteArray> run(const CloudStatusOptions& options, const CommandServices& services);
Result<QByteArray> run(const CloudListOptions& options, const CommandServices& services);

}  // namespace tavi
