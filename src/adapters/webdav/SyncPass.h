#pragma once

#include <QDateTime>
#include <functional>
#include <set>

#include "adapters/webdav/DavFolder.h"
#include "adapters/webdav/SyncDecision.h"
#include "files/FolderListing.h"
#include "platform/CloudMirror.h"
#include "platform/Trash.h"

namespace tavi {

/// What a pass has come to.
struct SyncOutcome {
    /// Whether both sides have the same, but for what is only there and has not been asked for.
    bool isInStep = false;
    /// What stands in the way, for the user; empty where nothing does.
    QString error;
    /// Seconds that the server asks to be left alone.
    int retryAfter = 0;
    /// Files that are gone from the server all at once: nothing is done about them before the user says so.
    std::set<std::filesystem::path> vanished;
    /// It has made work for another pass, which may come at once.
    bool isToBeContinued = false;
};

/// What the user has said of files that are gone from the server all at once. It is about these, and no others.
struct VanishedAnswer {
    std::set<std::filesystem::path> names;
    /// Whether they go here, too; else they are sent again.
    bool areRemoved = false;
};

/// Looks at both sides once and does what is to be done, file by file. On the client's thread; waits for disk and
/// server, and ends soon once the client is aborted.
class SyncPass {
public:
    using Path = std::filesystem::path;
    using States = std::map<Path, MirrorState>;

    /// What it works with; all of it must outlive this.
    struct Services {
        DavClient& client;
        SyncJournal& journal;
        Trash& trash;
        /// The documents on this machine.
        Path folder;
        /// For names of conflicts.
        QString device;
        std::function<QDateTime()> now;
        /// Hears what is known of all files, and of every change of one.
        std::function<void(const States&)> tellAll;
        std::function<void(const Path&, std::optional<MirrorState>)> tell;
        /// Hears how much of a file has been sent or fetched, 0 to 1; after every hundredth.
        std::function<void(const Path&, double)> tellProgress = {};
        VanishedAnswer answer = {};
    };

    explicit SyncPass(const Services& services) : m_services(services), m_dav(services.client, services.journal) {}
    ~SyncPass() { m_services.client.setMoved({}); }
    SyncPass(const SyncPass&) = delete;
    SyncPass& operator=(const SyncPass&) = delete;

    SyncOutcome run();

private:
    struct File {
        Path name;
        SyncEntry entry;
        std::optional<FileIdentity> local;
        std::optional<DavFile> remote;
    };

    /// Logs in as the server is known to want it, and remembers how that is.
    Result<DavFiles> list();
    Result<DavFiles> look();
    /// Has the server hear of renames. Those that it refuses wait, and nothing is done with their files.
    Result<void> sendMoves(DavFiles& files);
    Result<std::map<Path, File>> gather();
    void askAboutVanished(std::vector<std::pair<File*, SyncAction>>& work, SyncOutcome& outcome);
    void follow(const Path& name, qint64 bytes);
    static MirrorState stateOf(const File& file, SyncAction action);
    SyncSituation situationOf(const File& file) const;
    Result<void> act(File& file, SyncAction action);
    Result<void> upload(File& file);
    Result<void> download(File& file);
    Result<void> compare(File& file);
    Result<void> removeRemote(File& file);
    Result<void> removeLocal(File& file);
    /// Gives the file here the name of a conflict: both stay.
    Result<void> stepAside(const File& file);
    Result<void> agree(File& file, const DavFile& remote, const QByteArray& hash);
    void setState(const Path& name, std::optional<MirrorState> state) { m_services.tell(name, state); }

    Services m_services;
    DavFolder m_dav;
    std::set<Path> m_held;
    std::optional<Error> m_refusal;
    bool m_isToBeContinued = false;
};

/// SHA-256 of contents; nothing where they could not be read to their end, or the client is aborted.
std::optional<QByteArray> hashOf(const FileContents& contents, const DavClient& client);

}  // namespace tavi
