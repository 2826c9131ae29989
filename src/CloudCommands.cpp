#include "CloudCommands.h"

#include "CloudPlace.h"
#include "adapters/qt/QtTrash.h"
#include "adapters/webdav/DavProbe.h"
#include "files/ConflictNames.h"
#include "files/FileNames.h"
#include "files/FolderListing.h"
#include "platform/UbiquityContainer.h"

namespace tavi {

namespace {

constexpr int kMostPasses = 4;

CloudFile::State stateOf(const SyncEntry& entry, const std::optional<FileIdentity>& local) {
    if (!local) {
        return entry.isWanted ? CloudFile::State::Arriving : CloudFile::State::OnlyThere;
    }
    return entry.isAgreed() && entry.local == localVersion(*local) ? CloudFile::State::There
                                                                   : CloudFile::State::Waiting;
}

}  // namespace

Result<void> prepareCloud(const CloudAccount& account, const QString& password, const AppContainer& container,
                          Keychain& keychain) {
    if (account.kind == CloudAccount::Kind::Folder) {
        const int error = markContainer(account.folder);
        return error == 0 ? Result<void>() : failure(QString::fromStdString(writeErrorText(error)));
    }
    const DavClient::Account dav = davAccount(account, password);
    if (!mayHavePassword(dav)) {
        return failure(qtTrId("error_cloud_in_clear"));
    }
    DavClient client(dav);
    if (auto probed = probeFolder(client); !probed) {
        return probed;
    }
    if (keepPassword(account, password, keychain) != KeychainStatus::Success) {
        return failure(qtTrId("error_cloud_password_kept").arg(keychain.trouble()));
    }
    const auto place = mirrorPlace(account, container, keychain);
    return place ? Result<void>() : tl::unexpected(place.error());
}

Result<void> syncCloud(const CloudAccount& account, std::optional<bool> areVanishedRemoved,
                       const AppContainer& container, Keychain& keychain) {
    if (account.kind != CloudAccount::Kind::Server) {
        return failure(qtTrId("error_cloud_no_server"));
    }
    const FileDescriptor lock = takeCloudLock(container);
    if (!lock.isValid()) {
        return failure(qtTrId("error_cloud_elsewhere"));
    }
    const auto place = mirrorPlace(account, container, keychain);
    auto journal =
        place ? SyncJournal::open(place->journal) : Result<std::unique_ptr<SyncJournal>>(tl::unexpected(place.error()));
    if (!journal) {
        return tl::unexpected(journal.error());
    }
    (*journal)->dropMovesNotDone(place->folder);
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
                       .tell = [](const std::filesystem::path&, std::optional<MirrorState>) {},
                       .answer = {outcome.vanished, areVanishedRemoved.value_or(false)}});
        outcome = pass.run();
        if (!outcome.vanished.empty() && !areVanishedRemoved) {
            break;
        }
        isAsked = false;
        for (const auto& [name, state] : states) {
            // As the program does when it lists the files.
            isAsked = (state == MirrorState::OnlyThere && (*journal)->setWanted(name, true)) || isAsked;
        }
    }
    if (outcome.isInStep) {
        return {};
    }
    return failure(!outcome.vanished.empty()
                       ? qtTrId("error_cloud_vanished", static_cast<int>(outcome.vanished.size())) + QLatin1Char(' ') +
                             qtTrId("command_cloud_vanished")
                       : outcome.error);
}

CloudOverview lookAtCloud(const CloudAccount& account, const AppContainer& container) {
    CloudOverview overview;
    const bool isServer = account.kind == CloudAccount::Kind::Server;
    const std::filesystem::path place = isServer ? mirrorFolder(account, container) : account.folder;
    std::error_code error;
    std::unique_ptr<SyncJournal> journal;
    if (isServer && std::filesystem::exists(journalPath(account, container), error)) {
        journal = SyncJournal::open(journalPath(account, container)).value_or(nullptr);
    }
    const FolderListing listing = listFolder(place / kUbiquityDocumentsFolder, &error);
    auto entries = journal ? journal->entries() : std::map<std::filesystem::path, SyncEntry>();
    for (const auto& [name, identity] : listing) {
        entries[name];
        overview.files[name].state = isServer ? stateOf(entries[name], identity) : CloudFile::State::There;
    }
    for (const auto& [name, entry] : entries) {
        if (!listing.contains(name) && !entry.isRemovedHere && !entry.remote.isEmpty()) {
            overview.files[name].state = stateOf(entry, std::nullopt);
        }
    }
    for (auto& [name, file] : overview.files) {
        file.isConflict = originalOfConflict(name).has_value();
    }
    overview.lastSync = journal ? journal->lastSync() : QDateTime();
    return overview;
}

}  // namespace tavi
