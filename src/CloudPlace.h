#pragma once

#include "adapters/webdav/WebDavMirror.h"
#include "cloud/CloudAccount.h"
#include "files/FileDescriptor.h"
#include "platform/AppContainer.h"
#include "platform/Keychain.h"

namespace tavi {

/// The folder on this machine that is kept in step with a server.
std::filesystem::path mirrorFolder(const CloudAccount& account, const AppContainer& container);
std::filesystem::path journalPath(const CloudAccount& account, const AppContainer& container);
DavClient::Account davAccount(const CloudAccount& account, const QString& password);
/// Makes the folder, and fetches the password.
Result<WebDavMirror::Place> mirrorPlace(const CloudAccount& account, const AppContainer& container, Keychain& keychain);
/// Held by the one process that keeps a folder in step with its server. Invalid where another one does.
FileDescriptor takeCloudLock(const AppContainer& container);

KeychainStatus keepPassword(const CloudAccount& account, const QString& password, Keychain& keychain);
/// Where there is one.
void removePassword(const CloudAccount& account, Keychain& keychain);

}  // namespace tavi
