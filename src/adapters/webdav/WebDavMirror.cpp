#include "adapters/webdav/WebDavMirror.h"

#include <QHostAddress>
#include <algorithm>
#include <chrono>
#include <utility>

#include "files/PathText.h"

namespace tavi {

namespace {

Result<void> notWritten() {
    return failure(qtTrId("error_cloud_journal"));
}

}  // namespace

bool mayHavePassword(const DavClient::Account& account) {
    const QUrl& url = account.folder;
    const bool isHere = url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
    return url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() &&
           (url.scheme() == QLatin1String("https") ||
            (url.scheme() == QLatin1String("http") && (isHere || account.mayBeInClear)));
}

Result<std::unique_ptr<WebDavMirror>> WebDavMirror::create(const Place& place, Trash& trash) {
    if (!mayHavePassword(place.account)) {
        return failure(qtTrId("error_cloud_in_clear"));
    }
    auto journal = SyncJournal::open(place.journal);
    if (!journal) {
        return tl::unexpected(journal.error());
    }
    (*journal)->dropMovesNotDone(place.folder);
    return std::unique_ptr<WebDavMirror>(new WebDavMirror(place, trash, std::move(*journal)));
}

WebDavMirror::WebDavMirror(const Place& place, Trash& trash, std::unique_ptr<SyncJournal> journal)
    : m_place(place), m_trash(trash), m_journal(std::move(journal)) {
    m_condition.lastSync = m_journal->lastSync();
    m_thread = std::thread([this] { run(); });
}

void WebDavMirror::stop() {
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        m_client != nullptr ? m_client->abort() : void();
        m_wake.notify_all();
    }
    m_thread.joinable() ? m_thread.join() : void();
}

SyncOutcome WebDavMirror::pass(DavClient& client) {
    const auto answer = [this] {
        const std::lock_guard lock(m_mutex);
        return m_answer;
    }();
    SyncPass pass(
        {.client = client,
         .journal = *m_journal,
         .trash = m_trash,
         .folder = m_place.folder,
         .device = m_place.device,
         .now = [] { return QDateTime::currentDateTime(); },
         .tellAll = [this](const SyncPass::States& states) { update([&] { m_states = states; }); },
         .tell =
             [this](const std::filesystem::path& name, std::optional<MirrorState> state) {
                 update([&] {
                     state ? void(m_states[name] = *state) : void(m_states.erase(name));
                     m_condition.progress.clear();
                 });
             },
         .tellProgress = [this](const std::filesystem::path& name,
                                double progress) { update([&] { m_condition.progress[name] = progress; }, false); },
         .answer = answer});
    return pass.run();
}

void WebDavMirror::run() {
    DavClient client(m_place.account);
    std::unique_lock lock(m_mutex);
    m_client = &client;
    auto ended = std::chrono::steady_clock::now();
    const auto waits = [&] {
        const auto pause = m_pace.pause();
        return !m_hasEnded && (!pause || std::chrono::steady_clock::now() < ended + std::chrono::seconds(*pause));
    };
    while (!m_hasEnded) {
        while (waits()) {
            if (const auto pause = m_pace.pause()) {
                m_wake.wait_until(lock, ended + std::chrono::seconds(*pause));
            } else {
                m_wake.wait(lock);
            }
        }
        if (m_hasEnded) {
            break;
        }
        m_pace.begin();
        lock.unlock();
        update([this] { m_condition.isWorking = true; }, false);
        SyncOutcome outcome = pass(client);
        const QDateTime lastSync = m_journal->lastSync();
        update([&] {
            m_pace.end(outcome.isInStep, outcome.retryAfter, outcome.isToBeContinued);
            // An answer is for the files of that one time.
            m_answer = outcome.isInStep ? VanishedAnswer() : m_answer;
            m_condition.outcome = std::move(outcome);
            m_condition.lastSync = lastSync;
            m_condition.isWorking = false;
            m_condition.progress.clear();
            ++m_condition.passes;
        });
        ended = std::chrono::steady_clock::now();
        lock.lock();
    }
    m_client = nullptr;
}

void WebDavMirror::update(const std::function<void()>& change, bool areStates) {
    {
        const std::lock_guard lock(m_mutex);
        change();
    }
    const std::lock_guard lock(m_observerMutex);
    if (areStates && m_observer) {
        m_observer();
    }
    if (m_conditionObserver) {
        m_conditionObserver();
    }
}

void WebDavMirror::setObserver(std::function<void()> observer) {
    const std::lock_guard lock(m_observerMutex);
    m_observer = std::move(observer);
}

void WebDavMirror::setConditionObserver(std::function<void()> observer) {
    const std::lock_guard lock(m_observerMutex);
    m_conditionObserver = std::move(observer);
}

std::map<std::filesystem::path, MirrorState> WebDavMirror::states() const {
    const std::lock_guard lock(m_mutex);
    return m_states;
}

MirrorCondition WebDavMirror::condition() const {
    const std::lock_guard lock(m_mutex);
    return m_condition;
}

void WebDavMirror::answerVanished(bool areRemoved) {
    {
        const std::lock_guard lock(m_mutex);
        m_answer = {m_condition.outcome.vanished, areRemoved};
    }
    wake();
}

void WebDavMirror::wake() {
    const std::lock_guard lock(m_mutex);
    m_pace.ask();
    m_wake.notify_all();
}

void WebDavMirror::setCircumstances(bool isOnline, bool isVisible) {
    const std::lock_guard lock(m_mutex);
    m_pace.setOnline(isOnline);
    m_pace.setVisible(isVisible);
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
            return failure(qtTrId("error_cloud_unknown").arg(pathText(name)));
        }
        found->second = found->second == MirrorState::OnlyThere ? MirrorState::Arriving : found->second;
    }
    return noted(m_journal->setWanted(name, true));
}

Result<void> WebDavMirror::willEvict(const std::filesystem::path& name) {
    const auto identity = FileIdentity::at(m_place.folder / name);
    const SyncEntry known = m_journal->entry(name);
    if (!identity || !known.isAgreed() || known.local != localVersion(*identity)) {
        return failure(qtTrId("error_cloud_unsent").arg(pathText(name)));
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
            return failure(qtTrId("error_cloud_taken"));
        }
    }
    return noted(m_journal->addMove(from, to));
}

void WebDavMirror::didNotMove(const std::filesystem::path& from, const std::filesystem::path& to) {
    m_journal->dropMove(from, to);
}

}  // namespace tavi
