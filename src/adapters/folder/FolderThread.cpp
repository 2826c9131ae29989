#include "adapters/folder/FolderThread.h"

#include <thread>
#include <utility>

namespace tavi {

namespace {

constexpr std::chrono::seconds kPatience(1);

}  // namespace

FolderThread::FolderThread(DispatchQueues& queues) {
    m_state->queues = &queues;
    std::thread([state = m_state] { state->run(); }).detach();
}

FolderThread::~FolderThread() {
    std::deque<Job> dropped;
    std::unique_lock lock(m_state->mutex);
    m_state->queues = nullptr;
    dropped.swap(m_state->jobs);
    m_state->wake.notify_all();
    // It may use what goes after this.
    m_state->idle.wait_for(lock, kPatience, [this] { return !m_state->isBusy; });
}

void FolderThread::post(Job job, Job completion) {
    m_state->post([job = std::move(job), completion = std::move(completion), weak = std::weak_ptr(m_state)]() mutable {
        job();
        if (const auto state = weak.lock()) {
            state->dispatchMain(std::move(completion));
        }
    });
}

void FolderThread::State::post(Job job) {
    const std::lock_guard lock(mutex);
    if (queues != nullptr) {
        jobs.push_back(std::move(job));
        wake.notify_all();
    }
}

void FolderThread::State::dispatchMain(Job job) {
    const std::lock_guard lock(mutex);
    if (queues != nullptr) {
        queues->dispatchMain(std::move(job));
    }
}

void FolderThread::State::run() {
    std::unique_lock lock(mutex);
    while (true) {
        wake.wait(lock, [this] { return !jobs.empty() || queues == nullptr; });
        if (queues == nullptr) {
            return;
        }
        Job job = std::move(jobs.front());
        jobs.pop_front();
        isBusy = true;
        lock.unlock();
        job();
        job = nullptr;
        lock.lock();
        isBusy = false;
        idle.notify_all();
    }
}

}  // namespace tavi
