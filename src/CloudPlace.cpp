#include "CloudPlace.h"

#include <fcntl.h>
#include <sys/file.h>

#include <QCryptographicHash>
#include <QSysInfo>

#include "files/FileNames.h"
#include "files/FolderListing.h"
#include "platform/UbiquityContainer.h"

namespace tavi {

namespace {

KeychainQuery passwordQuery(const CloudAccount& account) {
    return {account.token(), QStringLiteral("com.quillfen.voicerecorder.cloud"), {}};
}

}  // namespace

std::filesystem::path mirrorFolder(const CloudAccount& account, const AppContainer& container) {
    const QByteArray hash = QCryptographicHash::hash(account.token().toUtf8(), QCryptographicHash::Sha256);
    return container.unsavedPath().parent_path() / kMirrorsFolder / hash.toHex().first(16).toStdString();
}

std::filesystem::path journalPath(const CloudAccount& account, const AppContainer& container) {
    return mirrorFolder(account, container) / "journal.sqlite";
}

DavClient::Account davAccount(const CloudAccount& account, const QString& password) {
    return {QUrl(account.address), account.user, password, account.mayBeInClear};
}

Result<WebDavMirror::Place> mirrorPlace(const CloudAccount& account, const AppContainer& container,
                                        Keychain& keychain) {
    const auto password = keychain.fetch(passwordQuery(account));
    if (!password && password.error() != KeychainStatus::ItemNotFound) {
        return failure(qtTrId("error_cloud_password").arg(keychain.trouble()));
    }
    const std::filesystem::path folder = mirrorFolder(account, container);
    std::error_code error;
    std::filesystem::create_directories(folder / kUbiquityDocumentsFolder, error);
    if (const int marked = markContainer(folder); marked != 0) {
        return failure(QString::fromStdString(writeErrorText(marked)));
    }
    const QString text = password ? QString::fromUtf8(password->valueData) : QString();
    return WebDavMirror::Place{davAccount(account, text), folder / kUbiquityDocumentsFolder,
                               journalPath(account, container), QSysInfo::machineHostName()};
}

FileDescriptor takeCloudLock(const AppContainer& container) {
    FileDescriptor lock =
        FileDescriptor::open(container.unsavedPath().parent_path() / "cloud.lock", O_RDWR | O_CREAT, 0600);
    return ::flock(lock.get(), LOCK_EX | LOCK_NB) == 0 ? std::move(lock) : FileDescriptor();
}

KeychainStatus keepPassword(const CloudAccount& account, const QString& password, Keychain& keychain) {
    const KeychainAttributes secret{password.toUtf8(), KeychainAccessibility::AfterFirstUnlock};
    const KeychainStatus status = keychain.add(passwordQuery(account), secret);
    return status == KeychainStatus::DuplicateItem ? keychain.update(passwordQuery(account), secret) : status;
}

void removePassword(const CloudAccount& account, Keychain& keychain) {
    if (account.kind == CloudAccount::Kind::Server) {
        keychain.remove(passwordQuery(account));
    }
}

}  // namespace tavi
