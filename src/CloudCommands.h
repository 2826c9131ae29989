#pragma once

#include "app/cli/CommandServices.h"
#include "platform/Keychain.h"

namespace tavi {

/// Makes the folder the cloud's, or asks the server for its folder and keeps the password in the keychain.
Result<void> prepareCloud(const CloudAccount& account, const QString& password, const AppContainer& container,
                          Keychain& keychain);
/// Looks at both sides of a server's account until they agree, at most some times. A failure where they do not.
Result<void> syncCloud(const CloudAccount& account, std::optional<bool> areVanishedRemoved,
                       const AppContainer& container, Keychain& keychain);
/// What is known of an account's files here, without asking the server.
CloudOverview lookAtCloud(const CloudAccount& account, const AppContainer& container);

}  // namespace tavi
