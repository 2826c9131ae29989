#pragma once

#include "adapters/webdav/DavClient.h"
#include "adapters/webdav/SyncJournal.h"

namespace tavi {

/// Changes to one folder of a server that lose nothing on any server, be it interrupted at any moment: contents come
/// under a name of their own, are read back, and take a name only where nothing has it; what was there steps aside
/// first and is looked at. Neither a status nor an entity tag is believed. On the client's thread; waits.
class DavFolder {
public:
    using Path = std::filesystem::path;
    /// How a change ended that was not an error.
    enum class Outcome {
        Done,
        /// The name is taken, or holds what nobody here has seen; there all is as it was.
        Taken,
    };
    struct Uploaded {
        Outcome outcome = Outcome::Done;
        /// What has the name now.
        DavFile file;
        /// SHA-256 of what was sent.
        QByteArray hash;
    };

    /// All of them must outlive it.
    DavFolder(DavClient& client, SyncJournal& journal) : m_client(client), m_journal(journal) {}

    /// Writes contents under a name that nothing has. Before they have it the journal knows what was sent.
    Result<Uploaded> create(const Path& name, const FileContents& contents);
    /// Writes them in the place of contents of that hash.
    Result<Uploaded> replace(const Path& name, const FileContents& contents, const QByteArray& seenHash);
    /// Moves a file of that hash to a name for what was thrown away, where it stays.
    Result<Outcome> discard(const Path& name, const QByteArray& seenHash);
    /// Renames, replacing nothing.
    Result<Outcome> rename(const Path& from, const Path& to);
    /// Puts right what was interrupted. Whether files that are seen have changed by that.
    Result<bool> recover();

private:
    /// Contents that are whole on the server and have no name of their own yet.
    struct Part {
        Path name;
        QByteArray hash;
    };
    Result<Part> sendPart(const Path& name, const FileContents& contents);
    /// Gives a part its name. Whatever is answered, it looks: what has the name must have the hash.
    Result<Uploaded> publish(const Part& part, const Path& name);
    /// What is at the two names after a move.
    struct Places {
        bool hasSource = false;
        std::optional<DavFile> target;
        bool isDone() const { return !hasSource && target; }
    };
    /// Moves and looks. A failure where the server has refused, though nothing stood in the way.
    Result<Places> moveAndLook(const Path& from, const Path& to);
    /// Moves what somebody else has written back to its name; where that is taken by now, a later pass gives it
    /// another.
    void putBack(const Path& aside, const Path& name);
    Result<QByteArray> hashOf(const Path& name, const DavFile& file);

    DavClient& m_client;
    SyncJournal& m_journal;
};

}  // namespace tavi
