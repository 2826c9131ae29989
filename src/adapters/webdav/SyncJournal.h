#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <vector>

#include "files/FileIdentity.h"
#include "platform/Error.h"

class QSqlDatabase;
class QSqlQuery;

namespace tavi {

/// What was last seen of a file on both sides, and what its user asked for.
struct SyncEntry {
    /// Of the local file and of the one on the server; empty where it was missing.
    QByteArray local;
    QByteArray remote;
    /// SHA-256 of what both had when they agreed; empty where they never have.
    QByteArray hash;
    bool isRemovedHere = false;
    bool isWanted = false;
    /// Passes in a row that have missed it on the server.
    int missing = 0;

    bool isAgreed() const { return !hash.isEmpty(); }
};

/// Tells one version of a local file from another.
QByteArray localVersion(const FileIdentity& identity);

/// What has to survive the end of the program at any moment, on SQLite: each call that writes has written when it
/// returns. Any thread, one connection each.
class SyncJournal {
public:
    using Path = std::filesystem::path;
    /// A file of ours on the server under a name for the meantime. Without an original it is a part of an upload.
    using Scraps = std::map<Path, Path>;

    static Result<std::unique_ptr<SyncJournal>> open(const Path& path);
    ~SyncJournal();
    SyncJournal(const SyncJournal&) = delete;
    SyncJournal& operator=(const SyncJournal&) = delete;

    std::map<Path, SyncEntry> entries();
    SyncEntry entry(const Path& name);
    /// All but what the user asked for, which stays as it is.
    bool put(const Path& name, const SyncEntry& entry);
    bool setRemovedHere(const Path& name, bool isRemoved);
    bool setWanted(const Path& name, bool isWanted);
    bool forget(const Path& name);

    /// Renames that the server has not heard of, in their order.
    std::vector<std::pair<Path, Path>> moves();
    bool addMove(const Path& from, const Path& to);
    bool dropMove(const Path& from, const Path& to);
    /// Drops renames that were noted and never done here, since the program ended between. Before anybody notes one.
    void dropMovesNotDone(const Path& folder);

    Scraps scraps();
    bool addScrap(const Path& name, const Path& original);
    bool dropScrap(const Path& name);

    /// The SHA-256 of what was sent last under a name, until both sides agree: it is ours where the server has it.
    QByteArray sent(const Path& name);
    bool setSent(const Path& name, const QByteArray& hash);
    bool dropSent(const Path& name);

    /// What has been found out about the server's folder for good: that it has been marked as this account's, and that
    /// its listing has the mark; how it has its users log in.
    enum class Fact { IsMarked, ListsMark, TakesBasic, TakesOther };
    bool isKnown(Fact fact);
    bool know(Fact fact);
    /// When both sides had the same; invalid where they never have.
    QDateTime lastSync();
    bool setLastSync(const QDateTime& time);

private:
    explicit SyncJournal(const Path& path) : m_path(QString::fromStdString(path.native())) {}
    bool execute(const QString& statement, const QList<QByteArray>& values,
                 const std::function<void(QSqlQuery&)>& row = {});

    QString m_path;
    std::mutex m_mutex;
    std::set<QString> m_connections;
};

}  // namespace tavi
