#include "adapters/webdav/SyncJournal.h"

#include <QLoggingCategory>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>

#include "files/FileNames.h"

namespace tavi {

namespace {

/// No name on a server has a slash.
constexpr const char* kSynced = "/synced";
const QByteArray kSent = QByteArrayLiteral("/sent/");

Q_LOGGING_CATEGORY(lcCloud, "tavi.cloud", QtInfoMsg)

QByteArray bytesOf(const std::filesystem::path& path) {
    return QByteArray::fromStdString(path.native());
}

std::filesystem::path pathOf(const QSqlQuery& query, int column) {
    return query.value(column).toByteArray().toStdString();
}

SyncEntry entryOf(const QSqlQuery& query, int first) {
    SyncEntry entry;
    entry.local = query.value(first).toByteArray();
    entry.remote = query.value(first + 1).toByteArray();
    entry.hash = query.value(first + 2).toByteArray();
    entry.isRemovedHere = query.value(first + 3).toByteArray() == "1";
    entry.isWanted = query.value(first + 4).toByteArray() == "1";
    entry.missing = query.value(first + 5).toByteArray().toInt();
    return entry;
}

std::filesystem::path nameOf(SyncJournal::Fact fact) {
    switch (fact) {
        case SyncJournal::Fact::IsMarked:
            return "/marked";
        case SyncJournal::Fact::ListsMark:
            return "/listed";
        case SyncJournal::Fact::TakesBasic:
            return "/basic";
        case SyncJournal::Fact::TakesOther:
            return "/other";
    }
    return {};
}

}  // namespace

QByteArray localVersion(const FileIdentity& identity) {
    return QByteArray::number(identity.size) + '|' + QByteArray::number(identity.seconds) + '.' +
           QByteArray::number(identity.nanoseconds) + '|' + QByteArray::number(static_cast<quint64>(identity.node));
}

Result<std::unique_ptr<SyncJournal>> SyncJournal::open(const Path& path) {
    std::unique_ptr<SyncJournal> journal(new SyncJournal(path));
    for (const char* statement :
         {"PRAGMA journal_mode = WAL",
          "CREATE TABLE IF NOT EXISTS files(name BLOB PRIMARY KEY, local BLOB, remote BLOB, hash BLOB, removed BLOB, "
          "wanted BLOB, missing BLOB)",
          "CREATE TABLE IF NOT EXISTS moves(number INTEGER PRIMARY KEY, source BLOB, target BLOB)",
          "CREATE TABLE IF NOT EXISTS scraps(name BLOB PRIMARY KEY, original BLOB)"}) {
        if (!journal->execute(QLatin1String(statement), {})) {
            return failure(qtTrId("error_cloud_journal"));
        }
    }
    return journal;
}

SyncJournal::~SyncJournal() {
    for (const QString& connection : m_connections) {
        QSqlDatabase::removeDatabase(connection);
    }
}

bool SyncJournal::execute(const QString& statement, const QList<QByteArray>& values,
                          const std::function<void(QSqlQuery&)>& row) {
    const QString name =
        m_path + QString::number(reinterpret_cast<quintptr>(QThread::currentThreadId()));  // NOLINT: only a name
    QSqlDatabase database = QSqlDatabase::database(name);
    if (!database.isValid()) {
        const std::lock_guard lock(m_mutex);
        m_connections.insert(name);
        database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(m_path);
        database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
    }
    if (!database.isOpen() && !database.open()) {
        qCWarning(lcCloud, "%s", qPrintable(database.lastError().text()));
        return false;
    }
    QSqlQuery query(database);
    query.prepare(statement);
    for (const QByteArray& value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        qCWarning(lcCloud, "%s", qPrintable(query.lastError().text()));
        return false;
    }
    while (row && query.next()) {
        row(query);
    }
    return true;
}

std::map<std::filesystem::path, SyncEntry> SyncJournal::entries() {
    std::map<Path, SyncEntry> found;
    execute(QStringLiteral("SELECT name, local, remote, hash, removed, wanted, missing FROM files"), {},
            [&found](QSqlQuery& query) { found[pathOf(query, 0)] = entryOf(query, 1); });
    return found;
}

SyncEntry SyncJournal::entry(const Path& name) {
    SyncEntry found;
    execute(QStringLiteral("SELECT local, remote, hash, removed, wanted, missing FROM files WHERE name = ?"),
            {bytesOf(name)}, [&found](QSqlQuery& query) { found = entryOf(query, 0); });
    return found;
}

bool SyncJournal::put(const Path& name, const SyncEntry& entry) {
    return execute(QStringLiteral("INSERT INTO files(name, local, remote, hash, missing) VALUES(?, ?, ?, ?, ?) "
                                  "ON CONFLICT(name) DO UPDATE SET local = excluded.local, remote = excluded.remote, "
                                  "hash = excluded.hash, missing = excluded.missing"),
                   {bytesOf(name), entry.local, entry.remote, entry.hash, QByteArray::number(entry.missing)});
}

bool SyncJournal::setRemovedHere(const Path& name, bool isRemoved) {
    return execute(QStringLiteral("INSERT INTO files(name, removed) VALUES(?, ?) "
                                  "ON CONFLICT(name) DO UPDATE SET removed = excluded.removed"),
                   {bytesOf(name), isRemoved ? "1" : "0"});
}

bool SyncJournal::setWanted(const Path& name, bool isWanted) {
    return execute(QStringLiteral("INSERT INTO files(name, wanted) VALUES(?, ?) "
                                  "ON CONFLICT(name) DO UPDATE SET wanted = excluded.wanted"),
                   {bytesOf(name), isWanted ? "1" : "0"});
}

bool SyncJournal::forget(const Path& name) {
    return execute(QStringLiteral("DELETE FROM files WHERE name = ?"), {bytesOf(name)});
}

std::vector<std::pair<std::filesystem::path, std::filesystem::path>> SyncJournal::moves() {
    std::vector<std::pair<Path, Path>> found;
    execute(QStringLiteral("SELECT source, target FROM moves ORDER BY number"), {},
            [&found](QSqlQuery& query) { found.emplace_back(pathOf(query, 0), pathOf(query, 1)); });
    return found;
}

bool SyncJournal::addMove(const Path& from, const Path& to) {
    return execute(QStringLiteral("INSERT INTO moves(source, target) VALUES(?, ?)"), {bytesOf(from), bytesOf(to)});
}

bool SyncJournal::dropMove(const Path& from, const Path& to) {
    return execute(QStringLiteral("DELETE FROM moves WHERE source = ? AND target = ?"), {bytesOf(from), bytesOf(to)});
}

void SyncJournal::dropMovesNotDone(const Path& folder) {
    for (const auto& [from, to] : moves()) {
        existsAt(folder / from) ? dropMove(from, to) : false;
    }
}

SyncJournal::Scraps SyncJournal::scraps() {
    Scraps found;
    execute(QStringLiteral("SELECT name, original FROM scraps"), {},
            [&found](QSqlQuery& query) { found[pathOf(query, 0)] = pathOf(query, 1); });
    return found;
}

bool SyncJournal::addScrap(const Path& name, const Path& original) {
    return execute(QStringLiteral("INSERT OR REPLACE INTO scraps VALUES(?, ?)"), {bytesOf(name), bytesOf(original)});
}

bool SyncJournal::dropScrap(const Path& name) {
    return execute(QStringLiteral("DELETE FROM scraps WHERE name = ?"), {bytesOf(name)});
}

QByteArray SyncJournal::sent(const Path& name) {
    QByteArray hash;
    execute(QStringLiteral("SELECT original FROM scraps WHERE name = ?"), {kSent + bytesOf(name)},
            [&hash](QSqlQuery& query) { hash = query.value(0).toByteArray(); });
    return hash;
}

bool SyncJournal::setSent(const Path& name, const QByteArray& hash) {
    return execute(QStringLiteral("INSERT OR REPLACE INTO scraps VALUES(?, ?)"), {kSent + bytesOf(name), hash});
}

bool SyncJournal::dropSent(const Path& name) {
    return execute(QStringLiteral("DELETE FROM scraps WHERE name = ?"), {kSent + bytesOf(name)});
}

bool SyncJournal::isKnown(Fact fact) {
    return scraps().contains(nameOf(fact));
}

bool SyncJournal::know(Fact fact) {
    return isKnown(fact) || addScrap(nameOf(fact), "/");
}

QDateTime SyncJournal::lastSync() {
    const Scraps all = scraps();
    const auto found = all.find(kSynced);
    return found == all.end() ? QDateTime() : QDateTime::fromMSecsSinceEpoch(std::stoll(found->second.native()));
}

bool SyncJournal::setLastSync(const QDateTime& time) {
    return addScrap(kSynced, std::to_string(time.toMSecsSinceEpoch()));
}

}  // namespace tavi
