#pragma once

#include <cmath>
#include <deque>
#include <mutex>
#include <vector>

#include "platform/RunLoop.h"

namespace tavi::test {

/// A clock that stands still until told otherwise; starts at 2024-03-05 14:03:59 local time.
class ManualClock : public Clock {
public:
    QDateTime now() const override { return m_now; }
    void set(const QDateTime& now) { m_now = now; }
    void advance(double seconds) { m_now = m_now.addMSecs(std::llround(seconds * 1000.0)); }

private:
    QDateTime m_now = QDateTime(QDate(2024, 3, 5), QTime(14, 3, 59));
};

/// A run loop whose time passes only in advance(). Background work runs in drain(), on the calling thread.
class ManualRunLoop : public RunLoop {
public:
    const Clock& clock() const override { return m_clock; }
    ManualClock& manualClock() { return m_clock; }
    std::shared_ptr<Timer> scheduledTimer(double interval, bool repeats, std::function<void()> callback) override;
    void dispatchAfter(double seconds, std::function<void()> callback) override;
    void dispatchMain(std::function<void()> callback) override;
    void dispatchBackground(std::function<void()> callback) override;

    /// Lets that much time pass, calling what falls due in its order.
    void advance(double seconds);
    /// Runs what was dispatched, and what that dispatches, without letting time pass.
    void drain();
    /// While held back, background work waits as behind a slow disk; then it goes on.
    void holdBackground(bool isHeld);
    /// How many timers could still fire.
    std::size_t activeTimers() const;

private:
    class ManualTimer;

    ManualClock m_clock;
    double m_elapsed = 0.0;
    std::vector<std::shared_ptr<ManualTimer>> m_timers;
    mutable std::mutex m_mutex;
    std::deque<std::function<void()>> m_queue;
    bool m_isBackgroundHeld = false;
    std::vector<std::function<void()>> m_held;
};

}  // namespace tavi::test
