#include "Cloud.h"

#include <fcntl.h>
#include <sys/file.h>

#include <QCryptographicHash>
#include <QLoggingCategory>
#include <QSysInfo>

#include "files/FileNames.h"
#include "files/FolderListing.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcCloud, "tavi.cloud", QtInfoMsg)

constexpr int kMostPasses = 4;

/// The folder on this machine that is kept in step with a server.
std::filesystem::path folderFor(const CloudAccount& account, const AppContainer& container) {
    const QByteArray hash = QCryptographicHash::hash(account.token().toUtf8(), QCryptographicHash::Sha256);
    return container.unsavedPath().parent_path() / kMirrorsFolder / hash.toHex().first(16).toStdString();
}

KeychainQuery passwordQuery(const CloudAccount& account) {
    return {account.token(), QStringLiteral("com.quillfen.voicerecorder.cloud"), {}};
}

Result<WebDavMirror::Place> mirrorPlace(const CloudAccount& account, const AppContainer& container,
                                        Keychain& keychain) {
    const auto password = keychain.fetch(passwordQuery(account));
    if (!password && password.error() != KeychainStatus::ItemNotFound) {
        return failure(QStringLiteral("The password of the cloud cannot be had: %1").arg(keychain.trouble()));
    }
    const std::filesystem::path folder = folderFor(account, container);
    std::error_code error;
    std::filesystem::create_directories(folder / kUbiquityDocumentsFolder, error);
    if (const int marked = markContainer(folder); marked != 0) {
        return failure(QString::fromStdString(writeErrorText(marked)));
    }
    const QString text = password ? QString::fromUtf8(password->valueData) : QString();
    return WebDavMirror::Place{{QUrl(account.address), account.user, text},
                               folder / kUbiquityDocumentsFolder,
                               folder / "journal.sqlite",
                               QSysInfo::machineHostName()};
}

/// Invalid where another process has it.
FileDescriptor takeLock(const AppContainer& container) {
    FileDescriptor lock =
        FileDescriptor::open(container.unsavedPath().parent_path() / "cloud.lock", O_RDWR | O_CREAT, 0600);
    return ::flock(lock.get(), LOCK_EX | LOCK_NB) == 0 ? std::move(lock) : FileDescriptor();
}

std::unique_ptr<WebDavMirror> mirrorFor(const CloudAccount& account, const AppContainer& container, Keychain& keychain,
                                        Trash& trash, const FileDescriptor& lock) {
    if (account.kind != CloudAccount::Kind::Server || !lock.isValid()) {
        return nullptr;
    }
    auto place = mirrorPlace(account, container, keychain);
    auto mirror = place ? WebDavMirror::create(*place, trash)
                        : Result<std::unique_ptr<WebDavMirror>>(tl::unexpected(place.error()));
    if (!mirror) {
        qCWarning(lcCloud, "%s", qUtf8Printable(mirror.error().text));
        return nullptr;
    }
    return std::move(*mirror);
}

FolderCloud::Place placeOf(const CloudAccount& account, const AppContainer& container, CloudMirror* mirror) {
    switch (account.kind) {
        case CloudAccount::Kind::None:
            return {};
        case CloudAccount::Kind::Folder:
            return {account.folder, account.token(), nullptr};
        case CloudAccount::Kind::Server:
            // Without a mirror, such as before a keyring opens, what is saved waits there.
            return {folderFor(account, container), account.token(), mirror, true};
    }
    return {};
}

}  // namespace

Cloud::Cloud(const AppContainer& container, const UserDefaults& defaults, RunLoop& runLoop,
             NotificationCenter& notifications, Keychain& keychain)
    : lock(takeLock(container)),
      mirror(mirrorFor(CloudAccount::of(defaults), container, keychain, trash, lock)),
      folder({runLoop, notifications, trash, container.cachesPath() / "cloud.lock", QSysInfo::machineHostName()},
             placeOf(CloudAccount::of(defaults), container, mirror.get())),
      documents({folder, folder, folder, folder, notifications, container, runLoop}) {}

Result<void> prepareCloud(const CloudAccount& account, const QString& password, const AppContainer& container,
                          Keychain& keychain) {
    if (account.kind == CloudAccount::Kind::Folder) {
        const int error = markContainer(account.folder);
        return error == 0 ? Result<void>() : failure(QString::fromStdString(writeErrorText(error)));
    }
    if (!mayHavePassword(QUrl(account.address))) {
        return failure(QStringLiteral("the address must begin with https://"));
    }
    DavClient client({QUrl(account.address), account.user, password});
    auto files = client.list();
    if (!files && client.lastReply().status == 404 && client.makeFolder()) {
        files = client.list();
    }
    if (!files) {
        return tl::unexpected(files.error());
    }
    const KeychainAttributes secret{password.toUtf8(), KeychainAccessibility::AfterFirstUnlock};
    KeychainStatus status = keychain.add(passwordQuery(account), secret);
    status = status == KeychainStatus::DuplicateItem ? keychain.update(passwordQuery(account), secret) : status;
    if (status != KeychainStatus::Success) {
        return failure(QStringLiteral("the password cannot be kept: %1").arg(keychain.trouble()));
    }
    const auto place = mirrorPlace(account, container, keychain);
    return place ? Result<void>() : tl::unexpected(place.error());
}

Result<void> syncCloud(const CloudAccount& account, const AppContainer& container, Keychain& keychain) {
    if (account.kind != CloudAccount::Kind::Server) {
        return failure(QStringLiteral("the cloud is no server"));
    }
    const FileDescriptor lock = takeLock(container);
    if (!lock.isValid()) {
        return failure(QStringLiteral("the program is running, and does that by itself"));
    }
    const auto place = mirrorPlace(account, container, keychain);
    auto journal =
        place ? SyncJournal::open(place->journal) : Result<std::unique_ptr<SyncJournal>>(tl::unexpected(place.error()));
    if (!journal) {
        return tl::unexpected(journal.error());
    }
    QtTrash trash;
    DavClient client(place->account);
    SyncOutcome outcome;
    bool isAsked = true;
    for (int passes = 0; passes < kMostPasses && (isAsked || !outcome.isInStep); ++passes) {
        SyncPass::States states;
        SyncPass pass({.client = client,
                       .journal = **journal,
                       .trash = trash,
                       .folder = place->folder,
                       .device = place->device,
                       .now = [] { return QDateTime::currentDateTime(); },
                       .tellAll = [&states](const SyncPass::States& all) { states = all; },
                       .tell = [](const std::filesystem::path&, std::optional<MirrorState>) {}});
        outcome = pass.run();
        isAsked = false;
        for (const auto& [name, state] : states) {
            // As the program does when it lists the files.
            isAsked = (state == MirrorState::OnlyThere && (*journal)->setWanted(name, true)) || isAsked;
        }
    }
    return outcome.isInStep ? Result<void>() : failure(outcome.error);
}

}  // namespace tavi
