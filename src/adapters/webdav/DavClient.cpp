#include "adapters/webdav/DavClient.h"

#include <sched.h>

#include <QAuthenticator>
#include <QBuffer>
#include <QEventLoop>
#include <QLocale>
#include <QNetworkReply>
#include <QSslError>
#include <QTimeZone>
#include <algorithm>
#include <limits>
#include <utility>

#include "adapters/webdav/Sha256.h"

namespace tavi {

namespace {

constexpr int kStallMilliseconds = 30'000;
/// Seconds for a server that has too much to do and does not say how long, and for one whose disk is full.
constexpr int kBusyPause = 60;
constexpr int kFullPause = 600;
/// Of an answer that is kept in memory: a listing of a hundred thousand files.
constexpr qint64 kLongestAnswer = 64LL << 20;
constexpr qint64 kReadAhead = 1LL << 20;
/// From this size on, what is sent is worth a connection of its own.
constexpr std::size_t kLarge = 16U << 20;
constexpr char kProperties[] =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?><D:propfind xmlns:D=\"DAV:\"><D:prop><D:resourcetype/>"
    "<D:getcontentlength/><D:getetag/><D:getlastmodified/></D:prop></D:propfind>";

/// Contents as a device that can be read again, and hashes what is read.
class ContentsDevice : public QIODevice {
public:
    explicit ContentsDevice(FileContents contents) : m_contents(std::move(contents)) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    qint64 size() const override { return static_cast<qint64>(m_contents.size()); }
    /// It could not be read to its end.
    bool isBroken() const { return m_isBroken; }
    /// Of all of it, where all of it was read since it was begun last. Once.
    std::optional<QByteArray> hash() { return m_hashed == size() ? std::optional(m_hash.result()) : std::nullopt; }

protected:
    qint64 readData(char* data, qint64 length) override {
        const qint64 offset = pos();
        const auto count = static_cast<qint64>(
            m_contents.read(data, static_cast<std::size_t>(length), static_cast<std::uint64_t>(offset)));
        if (offset == 0 && m_hashed > 0) {
            // It is sent anew.
            m_hash = Sha256();
            m_hashed = 0;
        }
        if (offset == m_hashed) {
            m_hash.add(QByteArrayView(data, count));
            m_hashed += count;
        }
        // Cut short since it was opened: the request fails, and nothing shorter is sent as if it were whole.
        m_isBroken = count == 0 && offset < size();
        return m_isBroken ? -1 : count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    FileContents m_contents;
    Sha256 m_hash;
    qint64 m_hashed = 0;
    bool m_isBroken = false;
};

/// While it lives, this thread and those that it begins share the processor that it runs on; where the system refuses
/// that, they do not.
///
/// Qt's network thread asks for each 16 kB of what it sends, and waits for them. On two processors each of the two
/// threads sleeps and is woken for every one of these, which takes more time than all the rest.
class OneProcessor {
public:
    OneProcessor() {
        const int here = ::sched_getcpu();
        if (here < 0 || ::sched_getaffinity(0, sizeof(m_before), &m_before) != 0) {
            return;
        }
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(here, &one);
        m_isShared = ::sched_setaffinity(0, sizeof(one), &one) == 0;
    }
    ~OneProcessor() { m_isShared ? void(::sched_setaffinity(0, sizeof(m_before), &m_before)) : void(); }
    OneProcessor(const OneProcessor&) = delete;
    OneProcessor& operator=(const OneProcessor&) = delete;

private:
    cpu_set_t m_before = {};
    bool m_isShared = false;
};

/// Nothing stronger than Basic is offered.
bool isBasic(const QByteArray& logins) {
    const QByteArray offered = logins.toLower();
    return offered.contains("basic") && !offered.contains("digest");
}

/// Seconds that the server has to be left alone after an answer.
int pauseAfter(const DavReply& reply) {
    const int least = reply.status == 507 ? kFullPause : reply.status == 429 || reply.status == 503 ? kBusyPause : 0;
    return std::max(least, reply.retryAfter);
}

QDateTime timeOfHttp(const QByteArray& text) {
    QDateTime time =
        QLocale::c().toDateTime(QString::fromLatin1(text.trimmed()), QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
    time.setTimeZone(QTimeZone::utc());
    return time;
}

}  // namespace

int secondsOfRetryAfter(const QByteArray& value, const QByteArray& date, const QDateTime& now) {
    bool isNumber = false;
    if (const int seconds = value.trimmed().toInt(&isNumber); isNumber) {
        return std::max(0, seconds);
    }
    const QDateTime until = timeOfHttp(value);
    const QDateTime here = timeOfHttp(date);
    const qint64 seconds = until.isValid() ? (here.isValid() ? here : now).secsTo(until) : 0;
    return static_cast<int>(std::clamp<qint64>(seconds, 0, std::numeric_limits<int>::max()));
}

DavClient::DavClient(Account account) : m_account(std::move(account)) {
    m_manager.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    connect(&m_manager, &QNetworkAccessManager::authenticationRequired, this,
            [this](QNetworkReply* reply, QAuthenticator* authenticator) {
                // Once: a server that refuses them is not asked again.
                if (m_login == Login::Other && !reply->property("asked").toBool()) {
                    reply->setProperty("asked", true);
                    authenticator->setUser(m_account.user);
                    authenticator->setPassword(m_account.password);
                }
            });
}

void DavClient::abort() {
    m_isAborted = true;
    QMetaObject::invokeMethod(
        this, [this] { m_reply != nullptr ? m_reply->abort() : void(); }, Qt::QueuedConnection);
}

Error DavClient::lastError() const {
    switch (m_last.status) {
        case 0:
            return {!m_last.certificate.isEmpty() ? qtTrId("error_cloud_certificate").arg(m_last.certificate)
                    : m_last.error.isEmpty()      ? qtTrId("error_cloud_silent")
                                                  : qtTrId("error_cloud_broken").arg(m_last.error)};
        case 301:
        case 302:
        case 303:
        case 307:
        case 308:
            return {qtTrId("error_cloud_moved").arg(QString::fromUtf8(m_last.location))};
        case 200:
        case 405:
        case 501:
            return {qtTrId("error_cloud_no_dav")};
        case 401:
        case 403:
            return {qtTrId("error_cloud_refused")};
        case 404:
            return {qtTrId("error_cloud_no_folder")};
        case 507:
            return {qtTrId("error_cloud_full")};
        case 429:
        case 503:
            return {qtTrId("error_cloud_busy")};
        default:
            return {qtTrId("error_cloud_status").arg(m_last.status)};
    }
}

QUrl DavClient::urlOf(const std::filesystem::path& name) const {
    return QUrl::fromEncoded(
        m_account.folder.toEncoded() + QByteArray::fromStdString(name.native()).toPercentEncoding(), QUrl::StrictMode);
}

DavReply DavClient::request(const QByteArray& verb, const QUrl& url,
                            const QList<std::pair<QByteArray, QByteArray>>& headers, QIODevice* upload,
                            const std::function<bool(const QByteArray&)>& sink) {
    DavReply first = ask(verb, url, headers, upload, sink);
    const Login login = isBasic(first.logins) ? Login::Basic : Login::Other;
    if (first.status != 401 || first.logins.isEmpty() || m_account.user.isEmpty() || m_login == login) {
        return first;
    }
    m_login = login;
    return upload == nullptr || upload->reset() ? ask(verb, url, headers, upload, sink) : first;
}

DavReply DavClient::ask(const QByteArray& verb, const QUrl& url,
                        const QList<std::pair<QByteArray, QByteArray>>& headers, QIODevice* upload,
                        const std::function<bool(const QByteArray&)>& sink) {
    m_last = {};
    if (m_isAborted) {
        return m_last;
    }
    QNetworkRequest question(url);
    question.setTransferTimeout(kStallMilliseconds);
    question.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    question.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    question.setRawHeader("Accept-Encoding", "identity");
    for (const auto& [name, value] : headers) {
        question.setRawHeader(name, value);
    }
    if (m_login == Login::Basic) {
        question.setRawHeader("Authorization",
                              "Basic " + (m_account.user + QLatin1Char(':') + m_account.password).toUtf8().toBase64());
    }
    if (upload != nullptr) {
        question.setHeader(QNetworkRequest::ContentLengthHeader, upload->size());
    }
    const std::unique_ptr<QNetworkReply> reply(m_manager.sendCustomRequest(question, verb, upload));
    // What comes faster than it is read waits at the server, and not in memory.
    reply->setReadBufferSize(kReadAhead);
    m_reply = reply.get();
    DavReply answer;
    bool& isRefused = answer.isRefused;
    const auto take = [&] {
        const QByteArray bytes = reply->readAll();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (sink && status == 200) {
            isRefused = isRefused || !sink(bytes);
            m_moved ? m_moved(bytes.size()) : void();
        } else {
            answer.body += bytes;
            isRefused = isRefused || answer.body.size() > kLongestAnswer;
        }
        isRefused ? reply->abort() : void();
    };
    QEventLoop loop;
    connect(reply.get(), &QNetworkReply::readyRead, this, take);
    if (verb == "PUT" && m_moved) {
        connect(reply.get(), &QNetworkReply::uploadProgress, this,
                [this, sent = qint64(0)](qint64 done, qint64) mutable {
                    done > sent ? m_moved(done - std::exchange(sent, done)) : void();
                });
    }
    connect(reply.get(), &QNetworkReply::sslErrors, this, [&answer](const QList<QSslError>& errors) {
        answer.certificate = errors.isEmpty() ? QString() : errors.first().errorString();
    });
    connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) {
        loop.exec();
    }
    if (!isRefused && reply->isOpen()) {
        take();
    }
    m_reply = nullptr;
    answer.status = isRefused ? 0 : reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isBroken = reply->error() != QNetworkReply::NoError && answer.succeeded();
    if (isBroken || answer.status == 0) {
        // The status of an answer that was cut off says nothing.
        answer.status = 0;
        answer.error = reply->errorString();
    }
    answer.location = reply->rawHeader("Location");
    answer.logins = reply->rawHeader("WWW-Authenticate");
    answer.retryAfter =
        secondsOfRetryAfter(reply->rawHeader("Retry-After"), reply->rawHeader("Date"), QDateTime::currentDateTimeUtc());
    m_pause = std::max(m_pause, pauseAfter(answer));
    m_last = answer;
    return answer;
}

DavReply DavClient::propfind(const QUrl& url, const QByteArray& depth) {
    QBuffer body;
    body.setData(kProperties, sizeof(kProperties) - 1);
    body.open(QIODevice::ReadOnly);
    return request("PROPFIND", url, {{"Depth", depth}, {"Content-Type", "application/xml; charset=utf-8"}}, &body, {});
}

Result<DavFiles> DavClient::list() {
    const DavReply reply = propfind(m_account.folder, "1");
    return reply.status == 207
               ? readListing(reply.body,
                             QByteArray::fromPercentEncoding(m_account.folder.path(QUrl::FullyEncoded).toLatin1()))
               : tl::unexpected(lastError());
}

Result<std::optional<DavFile>> DavClient::stat(const std::filesystem::path& name) {
    const DavReply reply = propfind(urlOf(name), "0");
    if (reply.status == 404 || reply.status == 410) {
        return std::optional<DavFile>();
    }
    return reply.status == 207 ? readFile(reply.body) : tl::unexpected(lastError());
}

Result<void> DavClient::makeFolder() {
    const DavReply reply = request("MKCOL", m_account.folder, {}, nullptr, {});
    return reply.succeeded() || reply.status == 405 ? Result<void>() : tl::unexpected(lastError());
}

std::optional<QByteArray> DavClient::put(const std::filesystem::path& name, const FileContents& contents) {
    ContentsDevice device(contents);
    std::optional<OneProcessor> shared;
    if (contents.size() >= kLarge) {
        shared.emplace();
        // The next request begins another network thread.
        m_manager.clearConnectionCache();
        // A refusal of the login would cost all of the contents.
        m_login == Login::Other ? void(propfind(urlOf(name), "0")) : void();
    }
    request("PUT", urlOf(name), {{"If-None-Match", "*"}, {"Content-Type", "application/octet-stream"}}, &device, {});
    if (shared) {
        shared.reset();
        m_manager.clearConnectionCache();
    }
    m_last.isRefused = device.isBroken();
    return device.hash();
}

void DavClient::move(const std::filesystem::path& from, const std::filesystem::path& to) {
    const auto moveTo = [&](const QByteArray& destination) {
        return request("MOVE", urlOf(from), {{"Destination", destination}, {"Overwrite", "F"}}, nullptr, {}).status;
    };
    const int status = moveTo(urlOf(to).toEncoded());
    if (status == 400 || status == 502) {
        // Behind a proxy that speaks TLS a server may take its own address for another one's.
        moveTo(urlOf(to).path(QUrl::FullyEncoded).toLatin1());
    }
}

void DavClient::remove(const std::filesystem::path& name) {
    request("DELETE", urlOf(name), {}, nullptr, {});
}

Result<QByteArray> DavClient::get(const std::filesystem::path& name, qint64 size,
                                  const std::function<bool(const QByteArray&)>& sink) {
    Sha256 hash;
    qint64 count = 0;
    const DavReply reply = request("GET", urlOf(name), {}, nullptr, [&](const QByteArray& bytes) {
        hash.add(bytes);
        count += bytes.size();
        return (size < 0 || count <= size) && (!sink || sink(bytes));
    });
    if (reply.status != 200) {
        return tl::unexpected(lastError());
    }
    // A chunked answer that is cut off looks whole.
    return size < 0 || count == size ? Result<QByteArray>(hash.result()) : failure(qtTrId("error_cloud_part"));
}

}  // namespace tavi
