#pragma once

#include <QSocketNotifier>
#include <QThreadPool>
#include <chrono>
#include <deque>
#include <memory>
#include <mutex>

#include "adapters/qt/QtClock.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The event loop of the thread that builds this, with a thread pool beside it.
///
/// A repeating timer keeps to the grid of its first call: it never drifts, whatever its calls take. When the thread was
/// busy for longer, a timer of a second or more makes up for every tick it missed, since such ticks are counted; a
/// faster one, which samples something that has gone by, leaves them out.
///
/// The destructor drops calls that are pending, and waits for background calls that are running: they may still use
/// this. No other thread may use it from then on.
class QtRunLoop : public RunLoop {
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::steady_clock::duration;

    QtRunLoop();
    ~QtRunLoop() override;
    QtRunLoop(const QtRunLoop&) = delete;
    QtRunLoop& operator=(const QtRunLoop&) = delete;

    const Clock& clock() const override { return m_clock; }
    std::shared_ptr<Timer> scheduledTimer(double interval, bool repeats, std::function<void()> callback) override;
    void dispatchAfter(double seconds, std::function<void()> callback) override;
    void dispatchMain(std::function<void()> callback) override;
    void dispatchBackground(std::function<void()> callback) override;

    /// When a timer that was due then and has been called at `now` is due next. Any thread.
    static TimePoint nextDue(TimePoint due, Duration interval, TimePoint now);

private:
    class QtTimer;
    class TimerSet;

    /// Calls waiting for a thread, in order.
    class CallQueue {
    public:
        void append(std::function<void()> call);
        /// The first one; empty where there is none.
        std::function<void()> takeFirst();
        std::deque<std::function<void()>> takeAll();
        std::size_t size() const;

    private:
        mutable std::mutex m_mutex;
        std::deque<std::function<void()>> m_calls;
    };

    void callWaiting();
    std::shared_ptr<Timer> addTimer(TimePoint due, Duration interval, bool repeats, std::function<void()> callback);

    QtClock m_clock;
    /// Timers that may still fire: it is this that keeps them alive.
    std::shared_ptr<TimerSet> m_timers;
    CallQueue m_forMainThread;
    CallQueue m_forBackground;
    /// Descriptor that other threads write to when there is something in the main thread's queue.
    int m_wakeUp = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QThreadPool m_pool;
};

}  // namespace tavi
