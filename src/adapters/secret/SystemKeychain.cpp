#include "adapters/secret/SystemKeychain.h"

#include <QLoggingCategory>
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>

#include "adapters/secret/StoreChoice.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcKeychain, "tavi.keychain", QtInfoMsg)

}  // namespace

/// The store's thread, and what it is to do.
class SystemKeychain::StoreThread {
public:
    using Job = std::function<void(StoreChoice& store)>;

    explicit StoreThread(const StorePlaces& places) : m_store(places), m_thread([this] { run(); }) {}

    /// Does what is there to do, for so long at most.
    void finish(std::chrono::milliseconds patience) {
        {
            std::unique_lock lock(m_mutex);
            m_isEnding = true;
            m_changed.notify_all();
            m_changed.wait_for(lock, patience, [this] { return m_hasEnded; });
        }
        m_store.cancel();
        m_thread.join();
    }

    void post(Job job) {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
        m_changed.notify_all();
    }

private:
    void run() {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
            if (m_jobs.empty()) {
                break;
            }
            const Job job = std::move(m_jobs.front());
            m_jobs.pop_front();
            lock.unlock();
            job(m_store);
            lock.lock();
        }
        m_hasEnded = true;
        m_changed.notify_all();
    }

    StoreChoice m_store;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    bool m_isEnding = false;
    bool m_hasEnded = false;
    std::thread m_thread;
};

SystemKeychain::SystemKeychain(const StorePlaces& places, DispatchQueues& queues, std::chrono::milliseconds patience)
    : m_queues(queues), m_patience(patience), m_thread(std::make_unique<StoreThread>(places)) {}

SystemKeychain::~SystemKeychain() {
    m_self.reset();
    m_thread->finish(m_isLate ? std::chrono::milliseconds(0) : m_patience);
}

void SystemKeychain::prepare() {
    m_thread->post([](StoreChoice& store) { store.choose(); });
}

StoreAnswer SystemKeychain::ask(const StoreRequest& request) {
    if (m_isLate) {
        return unavailable(StoreTrouble::Kind::Waiting);
    }
    struct Exchange {
        std::promise<StoreAnswer> promise;
        /// Whether somebody still waits for the promise, or hears of it later.
        std::atomic<bool> isLate = false;
    };
    const auto exchange = std::make_shared<Exchange>();
    auto future = exchange->promise.get_future();
    const std::weak_ptr<SystemKeychain*> self = m_self;
    m_thread->post([exchange, request, self, &queues = m_queues](StoreChoice& store) {
        StoreAnswer answer = store.perform(request);
        if (!exchange->isLate.exchange(true)) {
            exchange->promise.set_value(std::move(answer));
            return;
        }
        queues.dispatchMain([self, answer] {
            if (const auto keychain = self.lock()) {
                (*keychain)->m_isLate = false;
                (*keychain)->heard(answer);
            }
        });
    });
    if (future.wait_for(m_patience) == std::future_status::ready || exchange->isLate.exchange(true)) {
        StoreAnswer answer = future.get();
        heard(answer);
        return answer;
    }
    m_isLate = true;
    setTrouble({.kind = StoreTrouble::Kind::Waiting});
    return unavailable(StoreTrouble::Kind::Waiting);
}

void SystemKeychain::heard(const StoreAnswer& answer) {
    if (answer.status == KeychainStatus::NotAvailable || m_waiting.empty()) {
        setTrouble(answer.trouble);
    } else {
        storeWaiting();
    }
}

void SystemKeychain::setTrouble(const StoreTrouble& trouble) {
    if (std::exchange(m_trouble, trouble) == trouble) {
        return;
    }
    if (m_trouble.kind != StoreTrouble::Kind::None) {
        const bool isTold = m_trouble.kind != StoreTrouble::Kind::KeyringGone;
        qCWarning(lcKeychain, "%s %s", qUtf8Printable(textOf(m_trouble)),
                  qUtf8Printable(isTold ? QString() : m_trouble.detail));
    }
    if (m_handler) {
        m_handler();
    }
}

void SystemKeychain::storeWaiting() {
    const std::weak_ptr<SystemKeychain*> self = m_self;
    for (const StoreRequest& request : m_waiting) {
        m_thread->post([request, self, &queues = m_queues](StoreChoice& store) {
            queues.dispatchMain([self, request, answer = store.perform(request)] {
                if (const auto keychain = self.lock()) {
                    (*keychain)->heardOfWaiting(request, answer);
                }
            });
        });
    }
}

void SystemKeychain::heardOfWaiting(const StoreRequest& request, const StoreAnswer& answer) {
    if (answer.status == KeychainStatus::NotAvailable) {
        setTrouble(answer.trouble);
        return;
    }
    std::erase_if(m_waiting, [&request](const StoreRequest& waiting) {
        return waiting.query == request.query && waiting.attributes == request.attributes;
    });
    if (m_waiting.empty()) {
        setTrouble({});
    }
}

KeychainStatus SystemKeychain::write(const StoreRequest& request) {
    // What waits for this item is older.
    std::erase_if(m_waiting, [&request](const StoreRequest& waiting) { return waiting.query == request.query; });
    const StoreAnswer answer = ask(request);
    if (answer.status == KeychainStatus::NotAvailable) {
        // By the time that it can be stored it may be there or not.
        const bool isRemoval = request.kind == StoreRequest::Kind::Remove;
        m_waiting.push_back({.kind = isRemoval ? StoreRequest::Kind::Remove : StoreRequest::Kind::Put,
                             .query = request.query,
                             .attributes = request.attributes});
    }
    return answer.status;
}

KeychainStatus SystemKeychain::add(const KeychainQuery& query, const KeychainAttributes& attributes) {
    return write({.kind = StoreRequest::Kind::Add, .query = query, .attributes = attributes});
}

KeychainStatus SystemKeychain::update(const KeychainQuery& query, const KeychainAttributes& attributes) {
    return write({.kind = StoreRequest::Kind::Update, .query = query, .attributes = attributes});
}

tl::expected<KeychainAttributes, KeychainStatus> SystemKeychain::fetch(const KeychainQuery& query) {
    const auto waiting = std::find_if(m_waiting.begin(), m_waiting.end(),
                                      [&query](const StoreRequest& request) { return request.query == query; });
    if (waiting != m_waiting.end()) {
        if (waiting->kind == StoreRequest::Kind::Remove) {
            return tl::unexpected(KeychainStatus::ItemNotFound);
        }
        return waiting->attributes;
    }
    const StoreAnswer answer = ask({.kind = StoreRequest::Kind::Fetch, .query = query});
    if (answer.status != KeychainStatus::Success) {
        return tl::unexpected(answer.status);
    }
    return answer.attributes;
}

KeychainStatus SystemKeychain::remove(const KeychainQuery& query) {
    return write({.kind = StoreRequest::Kind::Remove, .query = query});
}

}  // namespace tavi
