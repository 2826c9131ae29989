#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// "tavi cloud connect FOLDER": the folder, which exists and which another program keeps in sync, is the user's cloud.
struct CloudConnectOptions {
    std::string place;
};

/// "tavi cloud disconnect": there is no cloud any more. What is in it stays.
struct CloudDisconnectOptions {};

/// "tavi cloud status"
struct CloudStatusOptions {
    bool json = false;
};

/// They print what is the case afterwards. The running program takes another cloud when it starts next.
Result<QByteArray> run(const CloudConnectOptions& options, const CommandServices& services);
Result<QByteArray> run(const CloudDisconnectOptions& options, const CommandServices& services);
Result<QByteArray> run(const CloudStatusOptions& options, const CommandServices& services);

}  // namespace tavi
