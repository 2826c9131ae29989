#include "adapters/webdav/DavFolder.h"

#include <QRandomGenerator>
#include <algorithm>

#include "files/ConflictNames.h"

namespace tavi {

namespace {

constexpr const char* kAside = ".tavi-old-";

/// Hidden from every list, and never the same twice.
std::filesystem::path scrapName(const char* kind, const std::filesystem::path& name = {}) {
    QRandomGenerator* random = QRandomGenerator::system();
    std::filesystem::path made = QStringLiteral(".tavi-%1-%2%3")
                                     .arg(QLatin1String(kind))
                                     .arg(random->generate64(), 16, 16, QLatin1Char('0'))
                                     .arg(random->generate64(), 16, 16, QLatin1Char('0'))
                                     .toStdString();
    if (!name.empty()) {
        // Between two letters: some servers refuse half a one.
        std::size_t length = std::min<std::size_t>(name.native().size(), 150);
        while (length > 0 && length < name.native().size() && (name.native()[length] & 0xC0) == 0x80) {
            --length;
        }
        made += "-" + name.native().substr(0, length);
    }
    return made;
}

tl::unexpected<Error> notWritten() {
    return failure(qtTrId("error_cloud_journal"));
}

}  // namespace

Result<QByteArray> DavFolder::hashOf(const Path& name, const DavFile& file) {
    return m_client.get(name, file.size, {});
}

Result<DavFolder::Places> DavFolder::moveAndLook(const Path& from, const Path& to) {
    m_client.move(from, to);
    const Error refusal = m_client.lastError();
    const auto source = m_client.stat(from);
    const auto target = source ? m_client.stat(to) : source;
    if (!target) {
        return tl::unexpected(target.error());
    }
    return *source && !*target ? Result<Places>(tl::unexpected(refusal)) : Places{source->has_value(), *target};
}

void DavFolder::putBack(const Path& aside, const Path& name) {
    if (const auto back = moveAndLook(aside, name); back && back->isDone()) {
        m_journal.dropScrap(aside);
    }
}

Result<DavFolder::Part> DavFolder::sendPart(const Path& name, const FileContents& contents) {
    const Path part = scrapName("part");
    if (!m_journal.addScrap(part, {})) {
        return notWritten();
    }
    const auto hash = m_client.put(part, contents);
    const Error error = m_client.lastReply().succeeded() ? Error{qtTrId("error_cloud_not_kept")} : m_client.lastError();
    if (m_client.lastReply().isRefused) {
        return tl::unexpected(error);
    }
    const auto there = m_client.stat(part);
    if (!there) {
        return tl::unexpected(there.error());
    }
    if (!hash || !*there || (*there)->size != static_cast<qint64>(contents.size())) {
        // What is there of it goes with a later pass: an answer that was lost may still be on its way.
        return tl::unexpected(error);
    }
    return m_journal.setSent(name, *hash) ? Result<Part>(Part{part, *hash}) : notWritten();
}

Result<DavFolder::Uploaded> DavFolder::publish(const Part& part, const Path& name) {
    const auto moved = moveAndLook(part.name, name);
    if (!moved) {
        return tl::unexpected(moved.error());
    }
    if (!moved->target) {
        return failure(qtTrId("error_cloud_not_kept"));
    }
    const auto found = hashOf(name, *moved->target);
    if (!found) {
        return tl::unexpected(found.error());
    }
    if (*found == part.hash) {
        moved->hasSource ? false : m_journal.dropScrap(part.name);
        return Uploaded{Outcome::Done, *moved->target, part.hash};
    }
    return Uploaded{Outcome::Taken, *moved->target, part.hash};
}

Result<DavFolder::Uploaded> DavFolder::create(const Path& name, const FileContents& contents) {
    const auto there = m_client.stat(name);
    if (!there) {
        return tl::unexpected(there.error());
    }
    if (*there) {
        return Uploaded{Outcome::Taken, **there, {}};
    }
    const auto part = sendPart(name, contents);
    return part ? publish(*part, name) : tl::unexpected(part.error());
}

Result<DavFolder::Uploaded> DavFolder::replace(const Path& name, const FileContents& contents,
                                               const QByteArray& seenHash) {
    const auto part = sendPart(name, contents);
    if (!part) {
        return tl::unexpected(part.error());
    }
    const Path aside = scrapName("old", name);
    if (!m_journal.addScrap(aside, name)) {
        return notWritten();
    }
    const auto moved = moveAndLook(name, aside);
    if (!moved) {
        return tl::unexpected(moved.error());
    }
    if (!moved->target) {
        m_journal.dropScrap(aside);
        return Uploaded{Outcome::Taken, {}, {}};
    }
    const auto oldHash = hashOf(aside, *moved->target);
    if (!oldHash) {
        return tl::unexpected(oldHash.error());
    }
    if (*oldHash != seenHash) {
        putBack(aside, name);
        return Uploaded{Outcome::Taken, {}, {}};
    }
    auto published = publish(*part, name);
    if (published && published->outcome == Outcome::Done) {
        m_client.remove(aside);
        m_journal.dropScrap(aside);
    }
    return published;
}

Result<DavFolder::Outcome> DavFolder::discard(const Path& name, const QByteArray& seenHash) {
    const Path trash = scrapName("trash", name);
    // Until it has been looked at it may be somebody else's version: a later pass puts it back.
    if (!m_journal.addScrap(trash, name)) {
        return notWritten();
    }
    const auto moved = moveAndLook(name, trash);
    if (!moved) {
        return tl::unexpected(moved.error());
    }
    if (!moved->target) {
        m_journal.dropScrap(trash);
        return Outcome::Taken;
    }
    if (!seenHash.isEmpty()) {
        const auto hash = hashOf(trash, *moved->target);
        if (!hash) {
            return tl::unexpected(hash.error());
        }
        if (*hash != seenHash) {
            putBack(trash, name);
            return Outcome::Taken;
        }
    }
    return m_journal.dropScrap(trash) ? Result<Outcome>(Outcome::Done) : notWritten();
}

Result<DavFolder::Outcome> DavFolder::rename(const Path& from, const Path& to) {
    const auto moved = moveAndLook(from, to);
    if (!moved) {
        return tl::unexpected(moved.error());
    }
    return moved->isDone() ? Outcome::Done : Outcome::Taken;
}

Result<bool> DavFolder::recover() {
    bool hasMoved = false;
    for (const auto& [name, original] : m_journal.scraps()) {
        if (name.is_absolute()) {
            continue;
        }
        // Not by the listing, in which some servers leave out what is hidden.
        const auto there = m_client.stat(name);
        const auto other = there && *there && !original.empty() ? m_client.stat(original) : there;
        if (!other) {
            return tl::unexpected(other.error());
        }
        if (!*there) {
            // A request whose answer was lost may still make it: it stays hidden then.
            m_journal.dropScrap(name);
            continue;
        }
        if (original.empty()) {
            // Ours, and what it was made of is here.
            m_client.remove(name);
            m_journal.dropScrap(name);
            continue;
        }
        if (*other && name.native().starts_with(kAside)) {
            const auto hash = hashOf(name, **there);
            if (!hash) {
                return tl::unexpected(hash.error());
            }
            if (*hash == m_journal.entry(original).hash) {
                // The version that was seen and replaced here.
                m_client.remove(name);
                m_journal.dropScrap(name);
                continue;
            }
        }
        // Where both are there the new version has been published, or somebody else has written one: the old one stays
        // under a name that is seen.
        const std::string random = name.native().substr(name.native().find('-', 6) + 1, 6);
        const auto kept = moveAndLook(name, *other ? conflictName(original, "old", random) : original);
        if (!kept) {
            return tl::unexpected(kept.error());
        }
        kept->isDone() ? m_journal.dropScrap(name) : false;
        hasMoved = true;
    }
    return hasMoved;
}

}  // namespace tavi
