#include "adapters/webdav/SyncPass.h"

#include <QCryptographicHash>
#include <algorithm>
#include <set>

#include "files/ConflictNames.h"
#include "files/DurableFile.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "files/PositionedIo.h"

namespace tavi {

namespace {

/// As many files as a user removes on another device within a minute; more at once look like an accident.
constexpr std::size_t kHandful = 5;
/// How often a file has to be missing in the listing: one that is stale lacks it once.
constexpr int kMissings = 2;

SyncSide sideOf(bool exists, const QByteArray& version, const QByteArray& known) {
    return !exists ? SyncSide::Missing : version == known ? SyncSide::Same : SyncSide::Other;
}

Result<void> errnoFailure(int error) {
    return failure(QString::fromStdString(writeErrorText(error)));
}

}  // namespace

std::optional<QByteArray> hashOf(const FileContents& contents, const DavClient& client) {
    constexpr std::size_t kBlock = 1024 * 1024;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray block(static_cast<qsizetype>(kBlock), '\0');
    std::uint64_t offset = 0;
    while (offset < contents.size()) {
        const std::size_t count = contents.read(block.data(), kBlock, offset);
        if (count == 0 || client.isAborted()) {
            return std::nullopt;
        }
        hash.addData(QByteArrayView(block.constData(), static_cast<qsizetype>(count)));
        offset += count;
    }
    return hash.result();
}

Result<DavFiles> SyncPass::look() {
    auto files = m_services.client.list();
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

Result<void> SyncPass::act(File& file, SyncAction action) {
    m_services.client.setMoved({});
    switch (action) {
        case SyncAction::Nothing:
            if (file.entry.missing > 0) {
                file.entry.missing = 0;
                m_services.journal.put(file.name, file.entry);
            }
            return {};
        case SyncAction::Forget:
            m_services.journal.forget(file.name);
            setState(file.name, std::nullopt);
            return {};
        case SyncAction::Offer:
            if (file.entry.isRemovedHere) {
                // It has changed since it was removed: it is there again, and can be asked for.
                m_services.journal.setRemovedHere(file.name, false);
            }
            if (file.entry.isAgreed() || file.entry.remote != file.remote->version()) {
                SyncEntry offered;
                offered.remote = file.remote->version();
                m_services.journal.put(file.name, offered);
            }
            return {};
        case SyncAction::Upload:
        case SyncAction::ReplaceRemote:
            return upload(file);
        case SyncAction::Download:
        case SyncAction::ReplaceLocal:
            return download(file);
        case SyncAction::Compare:
            return compare(file);
        case SyncAction::RemoveRemote:
            return removeRemote(file);
        case SyncAction::RemoveLocal:
            return removeLocal(file);
    }
    return {};
}

Result<void> SyncPass::agree(File& file, const DavFile& remote, const QByteArray& hash) {
    file.entry.local = localVersion(*file.local);
    file.entry.remote = remote.version();
    file.entry.hash = hash;
    file.entry.missing = 0;
    // What was removed here is here again: if it is missing later, that is no removal.
    if (!m_services.journal.put(file.name, file.entry) ||
        (file.entry.isRemovedHere && !m_services.journal.setRemovedHere(file.name, false))) {
        return failure(qtTrId("error_cloud_journal"));
    }
    m_services.journal.dropSent(file.name);
    setState(file.name, MirrorState::There);
    return {};
}

void SyncPass::follow(const Path& name, qint64 bytes) {
    m_services.client.setMoved([this, name, bytes, done = qint64(0), told = 0.0](qint64 more) mutable {
        done += more;
        const double progress = std::min(1.0, static_cast<double>(done) / static_cast<double>(bytes));
        if (m_services.tellProgress && progress >= told + 0.01) {
            told = progress;
            m_services.tellProgress(name, progress);
        }
    });
}

Result<void> SyncPass::upload(File& file) {
    const auto contents = FileContents::ofFile(m_services.folder / file.name);
    const auto hash = contents ? hashOf(*contents, m_services.client) : std::nullopt;
    if (!hash) {
        return failure(qtTrId("error_cloud_unreadable").arg(pathText(file.name)));
    }
    if (!m_services.journal.setSent(file.name, *hash)) {
        return failure(qtTrId("error_cloud_journal"));
    }
    setState(file.name, MirrorState::Sending);
    // It is read back.
    follow(file.name, 2 * static_cast<qint64>(contents->size()));
    const auto uploaded = file.remote ? m_dav.replace(file.name, *contents, *hash, file.entry.hash)
                                      : m_dav.create(file.name, *contents, *hash);
    setState(file.name, MirrorState::Waiting);
    if (!uploaded) {
        return tl::unexpected(uploaded.error());
    }
    if (uploaded->outcome == DavFolder::Outcome::Taken) {
        return stepAside(file);
    }
    if (FileIdentity::at(m_services.folder / file.name) != file.local) {
        // It has changed while it was sent: what was sent is agreed on, and the rest follows.
        agree(file, uploaded->file, *hash);
        return failure(qtTrId("error_cloud_growing").arg(pathText(file.name)));
    }
    return agree(file, uploaded->file, *hash);
}

Result<void> SyncPass::download(File& file) {
    if (file.remote->size < 0) {
        // An answer that is cut off could not be told from a whole one.
        return failure(qtTrId("error_cloud_length").arg(pathText(file.name)));
    }
    const Path path = m_services.folder / file.name;
    const Path hidden = m_services.folder / ("." + file.name.native());
    DurableFile part = DurableFile::create(hidden);
    if (!part.isValid()) {
        return errnoFailure(errno);
    }
    setState(file.name, MirrorState::Arriving);
    follow(file.name, file.remote->size);
    std::int64_t offset = 0;
    int error = 0;
    const auto hash = m_services.client.get(file.name, file.remote->size, [&](const QByteArray& bytes) {
        const WriteResult written =
            writeFully(systemPwrite(), part.fd(), bytes.constData(), static_cast<std::size_t>(bytes.size()), offset);
        offset += bytes.size();
        error = written.error;
        return error == 0;
    });
    error = error != 0 || !hash ? error : part.synchronize();
    if (error != 0) {
        return errnoFailure(error);
    }
    const auto after = hash ? m_services.client.stat(file.name) : tl::unexpected(hash.error());
    if (!after) {
        return tl::unexpected(after.error());
    }
    if (!*after || (*after)->version() != file.remote->version()) {
        // It was replaced while it came: neither the one nor the other.
        return failure(qtTrId("error_cloud_growing").arg(pathText(file.name)));
    }
    const auto stamp = m_services.now().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")).toStdString();
    // Before it has its name, under which somebody may write at once.
    const auto written = FileIdentity::at(part.temporaryPath());
    const auto replaced =
        replaceSeen(path, part.temporaryPath(), file.local,
                    m_services.folder / conflictName(file.name, stamp, m_services.device.toStdString()));
    if (!replaced) {
        return tl::unexpected(errorOf(replaced.error()));
    }
    synchronizeFolder(m_services.folder);
    file.local = written;
    return file.local ? agree(file, *file.remote, *hash) : errnoFailure(ENOENT);
}

Result<void> SyncPass::compare(File& file) {
    const auto contents = FileContents::ofFile(m_services.folder / file.name);
    const auto here = contents ? hashOf(*contents, m_services.client) : std::nullopt;
    if (!here) {
        return failure(qtTrId("error_cloud_unreadable").arg(pathText(file.name)));
    }
    const auto there = m_services.client.get(file.name, file.remote->size, {});
    if (!there) {
        return tl::unexpected(there.error());
    }
    if (*here == *there) {
        return agree(file, *file.remote, *there);
    }
    if (*there == m_services.journal.sent(file.name)) {
        // Ours, sent before the program ended and replaced here since.
        file.entry.local.clear();
        file.entry.remote = file.remote->version();
        file.entry.hash = *there;
        m_services.journal.put(file.name, file.entry);
        m_isToBeContinued = true;
        return failure(qtTrId("error_cloud_growing").arg(pathText(file.name)));
    }
    return stepAside(file);
}

Result<void> SyncPass::stepAside(const File& file) {
    const auto stamp = m_services.now().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")).toStdString();
    const Path other = freePath(m_services.folder / conflictName(file.name, stamp, m_services.device.toStdString()));
    if (const int error = renameWithoutReplacing(m_services.folder / file.name, other); error != 0) {
        return errnoFailure(error);
    }
    m_isToBeContinued = true;
    // The one from here is new now, and goes there; the one from there is asked for.
    m_services.journal.put(file.name, {});
    m_services.journal.setWanted(file.name, true);
    return failure(qtTrId("error_cloud_conflict").arg(pathText(file.name)));
}

Result<void> SyncPass::removeRemote(File& file) {
    const auto discarded = m_dav.discard(file.name, file.entry.hash);
    if (!discarded) {
        return tl::unexpected(discarded.error());
    }
    m_services.journal.forget(file.name);
    setState(file.name, std::nullopt);
    return {};
}

Result<void> SyncPass::removeLocal(File& file) {
    ++file.entry.missing;
    m_services.journal.put(file.name, file.entry);
    const auto there = m_services.client.stat(file.name);
    if (!there) {
        return tl::unexpected(there.error());
    }
    if (*there || file.entry.missing < kMissings) {
        return failure(qtTrId("error_cloud_missing").arg(pathText(file.name)));
    }
    if (FileIdentity::at(m_services.folder / file.name) != file.local) {
        // Saved since the pass began: not what was removed there.
        return failure(qtTrId("error_cloud_growing").arg(pathText(file.name)));
    }
    const auto trashed = m_services.trash.moveToTrash(m_services.folder / file.name);
    if (!trashed) {
        return tl::unexpected(trashed.error());
    }
    m_services.journal.forget(file.name);
    setState(file.name, std::nullopt);
    return {};
}

}  // namespace tavi
