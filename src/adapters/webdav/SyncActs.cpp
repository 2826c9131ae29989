#include <algorithm>

#include "adapters/webdav/Sha256.h"
#include "adapters/webdav/SyncPass.h"
#include "files/ConflictNames.h"
#include "files/DurableFile.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "files/PositionedIo.h"

// What a pass does with a file, once it has been decided.

namespace tavi {

namespace {

/// How often a file has to be missing in the listing: one that is stale lacks it once.
constexpr int kMissings = 2;

Result<void> errnoFailure(int error) {
    return failure(QString::fromStdString(writeErrorText(error)));
}

}  // namespace

std::optional<QByteArray> hashOf(const FileContents& contents, const DavClient& client) {
    constexpr std::size_t kBlock = 1024 * 1024;
    Sha256 hash;
    QByteArray block(static_cast<qsizetype>(kBlock), '\0');
    std::uint64_t offset = 0;
    while (offset < contents.size()) {
        const std::size_t count = contents.read(block.data(), kBlock, offset);
        if (count == 0 || client.isAborted()) {
            return std::nullopt;
        }
        hash.add(QByteArrayView(block.constData(), static_cast<qsizetype>(count)));
        offset += count;
    }
    return hash.result();
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
    const Error unreadable{qtTrId("error_cloud_unreadable").arg(pathText(file.name))};
    if (!contents) {
        return tl::unexpected(unreadable);
    }
    setState(file.name, MirrorState::Sending);
    // It is read back.
    follow(file.name, 2 * static_cast<qint64>(contents->size()));
    const auto uploaded =
        file.remote ? m_dav.replace(file.name, *contents, file.entry.hash) : m_dav.create(file.name, *contents);
    setState(file.name, MirrorState::Waiting);
    if (!uploaded) {
        return tl::unexpected(m_services.client.lastReply().isRefused ? unreadable : uploaded.error());
    }
    if (uploaded->outcome == DavFolder::Outcome::Taken) {
        return stepAside(file);
    }
    if (FileIdentity::at(m_services.folder / file.name) != file.local) {
        // It has changed while it was sent: what was sent is agreed on, and the rest follows.
        agree(file, uploaded->file, uploaded->hash);
        return failure(qtTrId("error_cloud_growing").arg(pathText(file.name)));
    }
    return agree(file, uploaded->file, uploaded->hash);
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
