#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/DispatchQueues.h"

namespace tavi {

/// Does one after the other what may wait for a disk, on a thread of its own. A disk that does not answer holds up what
/// is behind it, and nobody else: the end of this waits a second at most for what is under way, and drops the rest.
class FolderThread {
public:
    using Job = std::function<void()>;

    /// The queues must outlive it.
    explicit FolderThread(DispatchQueues& queues);
    ~FolderThread();
    FolderThread(const FolderThread&) = delete;
    FolderThread& operator=(const FolderThread&) = delete;

    /// Any thread.
    void post(Job job) { m_state->post(std::move(job)); }
    /// Calls the job there, and then the completion on the main thread, unless this is gone by then.
    void post(Job job, Job completion);
    /// What the job returns, if it does so in time; it is dropped where it could not begin. Not from within a job.
    template <class T>
    std::optional<T> within(std::chrono::milliseconds time, std::function<T()> job) {
        struct Answer {
            std::mutex mutex;
            std::condition_variable given;
            std::optional<T> value;
            bool isLate = false;
        };
        const auto answer = std::make_shared<Answer>();
        post([answer, job = std::move(job)] {
            std::unique_lock lock(answer->mutex);
            if (answer->isLate) {
                return;
            }
            lock.unlock();
            T value = job();
            lock.lock();
            answer->value = std::move(value);
            answer->given.notify_all();
        });
        std::unique_lock lock(answer->mutex);
        answer->given.wait_for(lock, time, [&answer] { return answer->value.has_value(); });
        answer->isLate = true;
        return std::move(answer->value);
    }

private:
    /// Outlives this where a job hangs.
    struct State {
        void post(Job job);
        void run();
        void dispatchMain(Job job);

        std::mutex mutex;
        std::condition_variable wake;
        std::condition_variable idle;
        bool isBusy = false;
        std::deque<Job> jobs;
        /// Null at the end.
        DispatchQueues* queues = nullptr;
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace tavi
