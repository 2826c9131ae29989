#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>
#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>

#include "adapters/webdav/DavListing.h"
#include "files/FileContents.h"
#include "platform/Error.h"

class QNetworkReply;

namespace tavi {

/// What came of a request. Status 0 says that there was no answer.
struct DavReply {
    int status = 0;
    QByteArray body;
    QString error;
    /// It was ended here: it was longer than it may be, or could not be written or read.
    bool isRefused = false;
    /// Seconds that the server asks to be left alone.
    int retryAfter = 0;
    /// The ways to log in that a refusal offers.
    QByteArray logins;
    /// Where a redirect leads.
    QByteArray location;
    /// Why the server's certificate is refused.
    QString certificate;

    bool succeeded() const { return status >= 200 && status < 300; }
};

/// One folder on a WebDAV server (RFC 4918), asked one thing at a time; each call waits for the server, at most half a
/// minute without a byte. On the thread that made it, but for abort().
///
/// A status is not believed where contents are at stake: whoever moves or writes looks afterwards what is there.
/// Redirects are not followed, a certificate that Qt refuses is refused, and credentials go to this origin alone.
class DavClient : public QObject {
    Q_OBJECT

public:
    struct Account {
        /// Of the folder, with a slash at its end.
        QUrl folder;
        QString user;
        QString password;
        /// Its user has agreed to http.
        bool mayBeInClear = false;
    };

    explicit DavClient(Account account);

    /// Ends what is under way, and all that is asked for from now on. Any thread.
    void abort();
    bool isAborted() const { return m_isAborted; }
    /// The last answer, for what is to be said when something fails.
    const DavReply& lastReply() const { return m_last; }
    /// That in words.
    Error lastError() const;
    /// Seconds that the server has to be left alone since it was asked for this last, by any of its answers; 0 for
    /// none.
    int takePause() { return std::exchange(m_pause, 0); }

    /// How the server has its users log in: known from its first refusal, or from an earlier time.
    enum class Login { Unknown, Basic, Other };
    /// With Basic the password goes along at once, and costs no answer that asks for it.
    Login login() const { return m_login; }
    void setLogin(Login login) { m_login = login; }

    /// Hears how many bytes of files have been sent and fetched since it was called last; none by default.
    void setMoved(std::function<void(qint64 bytes)> moved) { m_moved = std::move(moved); }

    Result<DavFiles> list();
    /// Nothing where there is no such file.
    Result<std::optional<DavFile>> stat(const std::filesystem::path& name);
    Result<void> makeFolder();
    /// Writes a new name. The answer is not to be believed. SHA-256 of what was sent; nothing where not all of it was.
    std::optional<QByteArray> put(const std::filesystem::path& name, const FileContents& contents);
    /// Moves to a name that nothing has. The answer is not to be believed.
    void move(const std::filesystem::path& from, const std::filesystem::path& to);
    void remove(const std::filesystem::path& name);
    /// Reads all of a file; hands on what arrives until the sink says false. SHA-256 of it, where all of it has come.
    Result<QByteArray> get(const std::filesystem::path& name, qint64 size,
                           const std::function<bool(const QByteArray&)>& sink);

private:
    QUrl urlOf(const std::filesystem::path& name) const;
    DavReply request(const QByteArray& verb, const QUrl& url, const QList<std::pair<QByteArray, QByteArray>>& headers,
                     QIODevice* upload, const std::function<bool(const QByteArray&)>& sink);
    /// That, once.
    DavReply ask(const QByteArray& verb, const QUrl& url, const QList<std::pair<QByteArray, QByteArray>>& headers,
                 QIODevice* upload, const std::function<bool(const QByteArray&)>& sink);
    DavReply propfind(const QUrl& url, const QByteArray& depth);

    Account m_account;
    QNetworkAccessManager m_manager;
    QNetworkReply* m_reply = nullptr;
    std::atomic<bool> m_isAborted = false;
    DavReply m_last;
    int m_pause = 0;
    Login m_login = Login::Unknown;
    std::function<void(qint64)> m_moved;
};

/// Seconds that an answer asks to be left alone: a number, or a moment by the server's own clock where its "Date" says
/// what that is (RFC 9110, 10.2.3). 0 for none, and for what is neither.
int secondsOfRetryAfter(const QByteArray& value, const QByteArray& date, const QDateTime& now);

}  // namespace tavi
