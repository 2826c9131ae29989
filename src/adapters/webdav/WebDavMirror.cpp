#include "adapters/webdav/WebDavMirror.h"

#include <QHostAddress>
#include <algorithm>
#include <chrono>
#include <utility>

#include "files/PathText.h"

namespace tavi {

namespace {

constexpr int kShortestPause = 60;
constexpr int kLongestPause = 3600;

Result<void> notWritten() {
    return failure(QStringLiteral("The cloud's journal cannot be written."));
}

}  // namespace

bool mayHavePassword(const QUrl& url) {
    const bool isHere = url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
    return url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() &&
           (url.scheme() == QLatin1String("https") || (url.scheme() == QLatin1String("http") && isHere));
}

Result<std::unique_ptr<WebDavMirror>> WebDavMirror::create(const Place& place, Trash& trash) {
    if (!mayHavePassword(place.account.folder)) {
        return failure(QStringLiteral("The address must begin with https://."));
    }
    auto journal = SyncJournal::open(place.journal);
    if (!journal) {
        return tl::unexpected(journal.error());
    }
    return std::unique_ptr<WebDavMirror>(new WebDavMirror(place, trash, std::move(*journal)));
}

WebDavMirror::WebDavMirror(const Place& place, Trash& trash, std::unique_ptr<SyncJournal> journal)
    : m_place(place), m_trash(trash), m_journal(std::move(journal)), m_thread([this] { run(); }) {}

WebDavMirror::~WebDavMirror() {
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        m_client != nullptr ? m_client->abort() : void();
        m_wake.notify_all();
    }
    m_thread.join();
}

void WebDavMirror::run() {
    DavClient client(m_place.account);
    std::unique_lock lock(m_mutex);
    m_client = &client;
    for (int pause = kShortestPause; !m_hasEnded;) {
        m_isAsked = false;
        lock.unlock();
        SyncPass pass({.client = client,
                       .journal = *m_journal,
                       .trash = m_trash,
                       .folder = m_place.folder,
                       .device = m_place.device,
                       .now = [] { return QDateTime::currentDateTime(); },
                       .tellAll = [this](const SyncPass::States& states) { update([&] { m_states = states; }); },
                       .tell =
                           [this](const std::filesystem::path& name, std::optional<MirrorState> state) {
                               update([&] { state ? void(m_states[name] = *state) : void(m_states.erase(name)); });
                           }});
        SyncOutcome outcome = pass.run();
        lock.lock();
        pause = outcome.isInStep ? std::min(pause * 2, kLongestPause) : kShortestPause;
        pause = std::max(pause, std::min(outcome.retryAfter, kLongestPause));
        // A server that asks to be left alone is, whatever changes here.
        const bool isPatient = outcome.retryAfter > 0;
        m_outcome = std::move(outcome);
        ++m_passes;
        lock.unlock();
        update([] {});
        lock.lock();
        if (m_wake.wait_for(lock, std::chrono::seconds(pause),
                            [&] { return (m_isAsked && !isPatient) || m_hasEnded; })) {
            pause = kShortestPause;
        }
    }
    m_client = nullptr;
}

void WebDavMirror::update(const std::function<void()>& change) {
    {
        const std::lock_guard lock(m_mutex);
        change();
    }
    const std::lock_guard lock(m_observerMutex);
    if (m_observer) {
        m_observer();
    }
}

void WebDavMirror::setObserver(std::function<void()> observer) {
    const std::lock_guard lock(m_observerMutex);
    m_observer = std::move(observer);
}

std::map<std::filesystem::path, MirrorState> WebDavMirror::states() const {
    const std::lock_guard lock(m_mutex);
    return m_states;
}

std::pair<int, SyncOutcome> WebDavMirror::lastPass() const {
    const std::lock_guard lock(m_mutex);
    return {m_passes, m_outcome};
}

void WebDavMirror::wake() {
    const std::lock_guard lock(m_mutex);
    m_isAsked = true;
    m_wake.notify_all();
}

Result<void> WebDavMirror::noted(bool isWritten) {
    if (!isWritten) {
        return notWritten();
    }
    wake();
    return {};
}

Result<void> WebDavMirror::download(const std::filesystem::path& name) {
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_states.find(name);
        if (found == m_states.end()) {
            return failure(QStringLiteral("%1 is not in the cloud.").arg(pathText(name)));
        }
        found->second = found->second == MirrorState::OnlyThere ? MirrorState::Arriving : found->second;
    }
    return noted(m_journal->setWanted(name, true));
}

Result<void> WebDavMirror::willEvict(const std::filesystem::path& name) {
    const auto identity = FileIdentity::at(m_place.folder / name);
    const SyncEntry known = m_journal->entry(name);
    if (!identity || !known.isAgreed() || known.local != localVersion(*identity)) {
        return failure(QStringLiteral("%1 is not in the cloud yet.").arg(pathText(name)));
    }
    return noted(m_journal->setWanted(name, false));
}

Result<void> WebDavMirror::willRemove(const std::filesystem::path& name) {
    return noted(m_journal->setRemovedHere(name, true));
}

void WebDavMirror::didNotRemove(const std::filesystem::path& name) {
    m_journal->setRemovedHere(name, false);
}

Result<void> WebDavMirror::willMove(const std::filesystem::path& from, const std::filesystem::path& to) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_states.contains(to)) {
            return failure(QStringLiteral("There is a file of that name in the cloud."));
        }
    }
    return noted(m_journal->addMove(from, to));
}

void WebDavMirror::didNotMove(const std::filesystem::path& from, const std::filesystem::path& to) {
    m_journal->dropMove(from, to);
}

}  // namespace tavi
