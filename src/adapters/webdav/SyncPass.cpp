#include "adapters/webdav/SyncPass.h"

#include <algorithm>
#include <set>

#include "files/FileNames.h"

namespace tavi {

namespace {

/// As many files as a user removes on another device within a minute; more at once look like an accident.
constexpr std::size_t kHandful = 5;

SyncSide sideOf(bool exists, const QByteArray& version, const QByteArray& known) {
    return !exists ? SyncSide::Missing : version == known ? SyncSide::Same : SyncSide::Other;
}

}  // namespace

Result<DavFiles> SyncPass::list() {
    using Fact = SyncJournal::Fact;
    using Login = DavClient::Login;
    DavClient& client = m_services.client;
    SyncJournal& journal = m_services.journal;
    const Login known = journal.isKnown(Fact::TakesOther)   ? Login::Other
                        : journal.isKnown(Fact::TakesBasic) ? Login::Basic
                                                            : Login::Unknown;
    client.login() == Login::Unknown ? client.setLogin(known) : void();
    auto files = client.list();
    if (files && client.login() != known && client.login() != Login::Unknown &&
        !journal.know(client.login() == Login::Basic ? Fact::TakesBasic : Fact::TakesOther)) {
        return failure(qtTrId("error_cloud_journal"));
    }
    return files;
}

Result<DavFiles> SyncPass::look() {
    auto files = list();
    if (!files && m_services.client.lastReply().status == 404 &&
        !m_services.journal.isKnown(SyncJournal::Fact::IsMarked) && m_services.client.makeFolder()) {
        files = m_services.client.list();
    }
    if (!files) {
        return files;
    }
    // Without the mark it is another folder, an empty mount point, or a server that knows nothing of it. Some list no
    // hidden files; of one that does the listing counts, and not what it says of the mark alone.
    const bool isListed = files->contains(kContainerMark);
    const bool counts = isListed || m_services.journal.isKnown(SyncJournal::Fact::ListsMark);
    const auto marked = counts ? Result<std::optional<DavFile>>(isListed ? std::optional(DavFile()) : std::nullopt)
                               : m_services.client.stat(kContainerMark);
    if (!marked) {
        return tl::unexpected(marked.error());
    }
    if (!*marked) {
        if (m_services.journal.isKnown(SyncJournal::Fact::IsMarked)) {
            return failure(qtTrId("error_cloud_other_folder"));
        }
        m_services.client.put(kContainerMark, FileContents("Tavi\n"));
        const auto mark = m_services.client.stat(kContainerMark);
        if (!mark || !*mark) {
            return tl::unexpected(m_services.client.lastError());
        }
    }
    if (!m_services.journal.know(SyncJournal::Fact::IsMarked) ||
        (isListed && !m_services.journal.know(SyncJournal::Fact::ListsMark))) {
        return failure(qtTrId("error_cloud_journal"));
    }
    const auto recovered = m_dav.recover();
    if (!recovered) {
        return tl::unexpected(recovered.error());
    }
    // What was put right is not in the listing from before.
    return *recovered ? m_services.client.list() : files;
}

Result<void> SyncPass::sendMoves(DavFiles& files) {
    for (const auto& [from, to] : m_services.journal.moves()) {
        if (existsAt(m_services.folder / from)) {
            // It is about to be renamed here.
            continue;
        }
        SyncEntry entry = m_services.journal.entry(from);
        const auto source = files.find(from);
        if (source != files.end() && source->second.version() == entry.remote && !files.contains(to)) {
            const auto moved = m_dav.rename(from, to);
            if (!moved && m_services.client.lastReply().status != 0) {
                // It has answered, and said no.
                m_held.insert({from, to});
                m_refusal = moved.error();
                continue;
            }
            if (!moved) {
                return tl::unexpected(moved.error());
            }
            if (*moved == DavFolder::Outcome::Done) {
                files[to] = source->second;
                files.erase(source);
                m_services.journal.put(to, entry);
                m_services.journal.forget(from);
            }
        }
        // What did not move there is here under its new name, and goes there as a new file.
        m_services.journal.dropMove(from, to);
    }
    return {};
}

SyncSituation SyncPass::situationOf(const File& file) const {
    return {.isAgreed = file.entry.isAgreed(),
            .local =
                sideOf(file.local.has_value(), file.local ? localVersion(*file.local) : QByteArray(), file.entry.local),
            .remote =
                sideOf(file.remote.has_value(), file.remote ? file.remote->version() : QByteArray(), file.entry.remote),
            .isRemovedHere = file.entry.isRemovedHere,
            .isWanted = file.entry.isWanted};
}

MirrorState SyncPass::stateOf(const File& file, SyncAction action) {
    switch (action) {
        case SyncAction::Upload:
        case SyncAction::ReplaceRemote:
        case SyncAction::Compare:
            return MirrorState::Waiting;
        case SyncAction::Download:
            return MirrorState::Arriving;
        default:
            return file.local ? MirrorState::There : MirrorState::OnlyThere;
    }
}

Result<std::map<std::filesystem::path, SyncPass::File>> SyncPass::gather() {
    auto files = look();
    if (const auto moved = files ? sendMoves(*files) : tl::unexpected(files.error()); !moved) {
        return tl::unexpected(moved.error());
    }
    // After the server's: a file that appears here meanwhile is new, never one that was removed.
    std::error_code unread;
    const FolderListing listing = listFolder(m_services.folder, &unread);
    if (unread) {
        // What is not seen here is not missing.
        return failure(QString::fromStdString(unread.message()));
    }
    std::map<Path, File> all;
    for (const auto& [name, entry] : m_services.journal.entries()) {
        all[name].entry = entry;
    }
    for (const auto& [name, identity] : listing) {
        all[name].local = identity;
    }
    for (const auto& [name, file] : *files) {
        name.native().front() != '.' ? void(all[name].remote = file) : void();
    }
    for (const Path& name : m_held) {
        all.erase(name);
    }
    for (auto& [name, file] : all) {
        file.name = name;
    }
    return all;
}

void SyncPass::askAboutVanished(std::vector<std::pair<File*, SyncAction>>& work, SyncOutcome& outcome) {
    for (auto& [file, action] : work) {
        if (action == SyncAction::RemoveLocal) {
            outcome.vanished.insert(file->name);
        }
    }
    if (outcome.vanished.size() <= kHandful) {
        outcome.vanished.clear();
    }
    for (auto& [file, action] : work) {
        if (!outcome.vanished.contains(file->name)) {
            continue;
        }
        if (!m_services.answer.names.contains(file->name)) {
            // It counts as missed, and waits.
            ++file->entry.missing;
            m_services.journal.put(file->name, file->entry);
            action = SyncAction::Nothing;
            outcome.isInStep = false;
            continue;
        }
        outcome.vanished.erase(file->name);
        if (!m_services.answer.areRemoved) {
            // New to both sides.
            file->entry = {};
            m_services.journal.put(file->name, file->entry);
            action = SyncAction::Upload;
        }
    }
}

SyncOutcome SyncPass::run() {
    SyncOutcome outcome;
    const auto failed = [&](const Error& error) {
        outcome.error = error.text;
        outcome.retryAfter = std::max(outcome.retryAfter, m_services.client.takePause());
        return outcome;
    };
    (void)m_services.client.takePause();
    auto all = gather();
    if (!all) {
        return failed(all.error());
    }
    std::vector<std::pair<File*, SyncAction>> work;
    States states;
    for (auto& [name, file] : *all) {
        const SyncAction action = decide(situationOf(file));
        work.emplace_back(&file, action);
        states[name] = stateOf(file, action);
    }
    for (const Path& name : m_held) {
        states[name] = MirrorState::Waiting;
    }
    m_services.tellAll(states);
    outcome.isInStep = !m_refusal;
    outcome.error = m_refusal ? m_refusal->text : QString();
    askAboutVanished(work, outcome);
    for (auto& [file, action] : work) {
        if (m_services.client.isAborted()) {
            outcome.isInStep = false;
            return failed({qtTrId("error_cloud_interrupted")});
        }
        if (outcome.vanished.contains(file->name)) {
            continue;
        }
        // One file that cannot be read or written holds up no other; a server that does not answer does, or one that
        // asks to be left alone.
        const auto done = act(*file, action);
        outcome.isToBeContinued = m_isToBeContinued;
        if (!done) {
            outcome.isInStep = false;
            failed(done.error());
            const DavReply& last = m_services.client.lastReply();
            if ((last.status == 0 && !last.isRefused) || outcome.retryAfter > 0) {
                return outcome;
            }
        }
    }
    if (outcome.isInStep) {
        m_services.journal.setLastSync(m_services.now());
    }
    return outcome;
}

}  // namespace tavi
