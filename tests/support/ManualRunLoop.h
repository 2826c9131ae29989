#pragma once

#include <algorithm>
#include <cmath>
#include <deque>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/RunLoop.h"

namespace tavi::test {

/// A clock that stands still until told otherwise; starts at 2024-03-05 14:03:59 local time.
struct ManualClock : Clock {
    QDateTime now() const override { return m_now; }
    void set(const QDateTime& now) { m_now = now; }
    void advance(double seconds) { m_now = m_now.addMSecs(std::llround(seconds * 1000.0)); }

private:
    QDateTime m_now = QDateTime(QDate(2024, 3, 5), QTime(14, 3, 59));
};

/// A run loop whose time passes only in advance(). Background work runs in drain(), on the calling thread.
struct ManualRunLoop : RunLoop {
    const Clock& clock() const override { return m_clock; }
    ManualClock& manualClock() { return m_clock; }

    std::shared_ptr<Timer> scheduledTimer(double interval, bool repeats, std::function<void()> callback) override {
        m_timers.push_back(std::make_shared<ManualTimer>());
        ManualTimer& timer = *m_timers.back();
        timer.due = m_elapsed + interval;
        timer.interval = interval;
        timer.repeats = repeats;
        timer.callback = std::move(callback);
        return m_timers.back();
    }
    void dispatchAfter(double seconds, std::function<void()> callback) override {
        scheduledTimer(seconds, false, std::move(callback));
    }
    void dispatchMain(std::function<void()> callback) override {
        const std::lock_guard lock(m_mutex);
        m_queue.push_back(std::move(callback));
    }
    void dispatchBackground(std::function<void()> callback) override {
        const std::lock_guard lock(m_mutex);
        (m_isBackgroundHeld ? m_held : m_queue).push_back(std::move(callback));
    }

    /// Lets that much time pass, calling what falls due in its order.
    void advance(double seconds) {
        const double end = m_elapsed + seconds;
        for (drain();; drain()) {
            std::erase_if(m_timers, [](const auto& timer) { return !timer->isValid(); });
            const auto next = std::min_element(m_timers.begin(), m_timers.end(),
                                               [](const auto& a, const auto& b) { return a->due < b->due; });
            // Half a microsecond forgives the rounding of many additions.
            if (next == m_timers.end() || (*next)->due > end + 5e-7) {
                break;
            }
            const auto timer = *next;
            passUntil(timer->due);
            timer->due += timer->interval;
            timer->valid = timer->repeats;
            timer->callback();
        }
        passUntil(end);
    }
    /// Runs what was dispatched, and what that dispatches, without letting time pass.
    void drain() {
        while (const auto next = takeFirst()) {
            next();
        }
    }
    /// While held back, background work waits as behind a slow disk; then it goes on.
    void holdBackground(bool isHeld) {
        const std::lock_guard lock(m_mutex);
        m_isBackgroundHeld = isHeld;
        if (!isHeld) {
            std::move(m_held.begin(), m_held.end(), std::back_inserter(m_queue));
            m_held.clear();
        }
    }
    /// How many timers could still fire.
    std::size_t activeTimers() const {
        return static_cast<std::size_t>(
            std::count_if(m_timers.begin(), m_timers.end(), [](const auto& timer) { return timer->isValid(); }));
    }

private:
    struct ManualTimer : Timer {
        void invalidate() override { valid = false; }
        bool isValid() const override { return valid; }

        double due = 0.0;
        double interval = 0.0;
        bool repeats = false;
        bool valid = true;
        std::function<void()> callback;
    };

    void passUntil(double time) {
        m_clock.advance(time - m_elapsed);
        m_elapsed = time;
    }
    std::function<void()> takeFirst() {
        const std::lock_guard lock(m_mutex);
        if (m_queue.empty()) {
            return nullptr;
        }
        std::function<void()> first = std::move(m_queue.front());
        m_queue.pop_front();
        return first;
    }

    ManualClock m_clock;
    double m_elapsed = 0.0;
    std::vector<std::shared_ptr<ManualTimer>> m_timers;
    std::mutex m_mutex;
    std::deque<std::function<void()>> m_queue;
    bool m_isBackgroundHeld = false;
    std::deque<std::function<void()>> m_held;
};

}  // namespace tavi::test
