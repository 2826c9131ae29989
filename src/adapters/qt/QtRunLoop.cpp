#include "adapters/qt/QtRunLoop.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <unordered_set>
#include <utility>

namespace tavi {

namespace {

using namespace std::chrono_literals;

constexpr QtRunLoop::Duration kShortestInterval = 100us;
/// From this interval on ticks are counted, and none may be lost.
constexpr QtRunLoop::Duration kCountingInterval = 1s;
/// Background calls may wait for a server or a disk, so that even a single core needs several threads.
constexpr int kLeastThreads = 4;

QtRunLoop::TimePoint now() {
    return std::chrono::steady_clock::now();
}

QtRunLoop::Duration durationOf(double seconds) {
    constexpr double kLongest = 100.0 * 365.0 * 86400.0;
    // The negation also catches a value that is not a number.
    if (!(seconds > 0.0)) {
        return QtRunLoop::Duration::zero();
    }
    return std::chrono::duration_cast<QtRunLoop::Duration>(std::chrono::duration<double>(std::min(seconds, kLongest)));
}

}  // namespace

class QtRunLoop::TimerSet {
public:
    std::unordered_set<std::shared_ptr<QtTimer>> timers;
};

class QtRunLoop::QtTimer final : public Timer, public std::enable_shared_from_this<QtTimer> {
public:
    QtTimer(std::weak_ptr<TimerSet> owners, TimePoint due, Duration interval, bool repeats,
            std::function<void()> callback)
        : m_owners(std::move(owners)),
          m_due(due),
          m_interval(interval),
          m_repeats(repeats),
          m_callback(std::move(callback)) {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { fire(); });
    }

    void invalidate() override {
        if (!m_valid) {
            return;
        }
        const auto self = shared_from_this();
        if (const auto owners = m_owners.lock()) {
            owners->timers.erase(self);
        }
        stop();
    }

    /// For the run loop, which has let go of the timer already.
    void stop() {
        m_valid = false;
        m_timer.stop();
        if (!m_calling) {
            m_callback = nullptr;
        }
    }

    bool isValid() const override { return m_valid; }

    void arm() {
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(m_due - now());
        constexpr std::chrono::milliseconds kLongest(std::numeric_limits<int>::max());
        m_timer.start(std::clamp(wait, 0ms, kLongest));
    }

private:
    void fire() {
        const auto self = shared_from_this();
        const TimePoint present = now();
        if (present < m_due) {
            arm();
            return;
        }
        m_calling = true;
        if (!m_repeats) {
            invalidate();
        }
        m_callback();
        m_calling = false;
        if (m_valid) {
            m_due = nextDue(m_due, m_interval, now());
            arm();
        } else {
            m_callback = nullptr;
        }
    }

    std::weak_ptr<TimerSet> m_owners;
    QTimer m_timer;
    TimePoint m_due;
    Duration m_interval;
    bool m_repeats;
    bool m_valid = true;
    /// A call that is running must not lose its function under its feet.
    bool m_calling = false;
    std::function<void()> m_callback;
};

QtRunLoop::QtRunLoop() : m_timers(std::make_shared<TimerSet>()), m_wakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (m_wakeUp < 0) {
        qFatal("No descriptor for the run loop: %s.", qUtf8Printable(qt_error_string(errno)));
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_wakeUp, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { callWaiting(); });
    m_pool.setMaxThreadCount(std::max(kLeastThreads, QThread::idealThreadCount()));
}

QtRunLoop::~QtRunLoop() {
    m_forBackground.takeAll();
    m_pool.waitForDone();
    m_notifier.reset();
    m_forMainThread.takeAll();
    ::close(m_wakeUp);
    // Dropping a callback may drop, or invalidate, other timers.
    const auto timers = std::exchange(m_timers->timers, {});
    for (const auto& timer : timers) {
        timer->stop();
    }
}

std::shared_ptr<Timer> QtRunLoop::scheduledTimer(double interval, bool repeats, std::function<void()> callback) {
    const Duration period = std::max(durationOf(interval), kShortestInterval);
    return addTimer(now() + period, period, repeats, std::move(callback));
}

void QtRunLoop::dispatchAfter(double seconds, std::function<void()> callback) {
    const TimePoint due = now() + durationOf(seconds);
    dispatchMain([this, due, callback = std::move(callback)]() mutable {
        addTimer(due, kShortestInterval, false, std::move(callback));
    });
}

void QtRunLoop::dispatchMain(std::function<void()> callback) {
    m_forMainThread.append(std::move(callback));
    // Fails only when the counter is full, and then the main thread is being woken already.
    ::eventfd_write(m_wakeUp, 1);
}

void QtRunLoop::dispatchBackground(std::function<void()> callback) {
    m_forBackground.append(std::move(callback));
    m_pool.start([this] {
        if (const auto call = m_forBackground.takeFirst()) {
            call();
        }
    });
}

void QtRunLoop::callWaiting() {
    eventfd_t count = 0;
    ::eventfd_read(m_wakeUp, &count);
    // Only those that are waiting now: what they dispatch waits for the next turn, behind timers and the user's input.
    // One at a time, since a call may run an event loop of its own that goes on with the next.
    for (std::size_t remaining = m_forMainThread.size(); remaining > 0; --remaining) {
        if (const auto call = m_forMainThread.takeFirst()) {
            call();
        }
    }
}

void QtRunLoop::CallQueue::append(std::function<void()> call) {
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(std::move(call));
}

std::function<void()> QtRunLoop::CallQueue::takeFirst() {
    const std::lock_guard lock(m_mutex);
    if (m_calls.empty()) {
        return nullptr;
    }
    std::function<void()> first = std::move(m_calls.front());
    m_calls.pop_front();
    return first;
}

std::deque<std::function<void()>> QtRunLoop::CallQueue::takeAll() {
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_calls, {});
}

std::size_t QtRunLoop::CallQueue::size() const {
    const std::lock_guard lock(m_mutex);
    return m_calls.size();
}

QtRunLoop::TimePoint QtRunLoop::nextDue(TimePoint due, Duration interval, TimePoint now) {
    const TimePoint next = due + interval;
    if (interval >= kCountingInterval || next > now) {
        return next;
    }
    return next + ((now - next) / interval + 1) * interval;
}

std::shared_ptr<Timer> QtRunLoop::addTimer(TimePoint due, Duration interval, bool repeats,
                                           std::function<void()> callback) {
    auto timer = std::make_shared<QtTimer>(m_timers, due, interval, repeats, std::move(callback));
    m_timers->timers.insert(timer);
    timer->arm();
    return timer;
}

}  // namespace tavi
