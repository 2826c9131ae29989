#include "support/ManualRunLoop.h"

#include <algorithm>
#include <utility>

namespace tavi::test {

class ManualRunLoop::ManualTimer : public Timer {
public:
    ManualTimer(double firstDue, double period, bool isRepeating, std::function<void()> call)
        : due(firstDue), interval(period), repeats(isRepeating), callback(std::move(call)) {}

    void invalidate() override { m_valid = false; }
    bool isValid() const override { return m_valid; }

    double due;
    double interval;
    bool repeats;
    std::function<void()> callback;

private:
    bool m_valid = true;
};

std::shared_ptr<Timer> ManualRunLoop::scheduledTimer(double interval, bool repeats, std::function<void()> callback) {
    auto timer = std::make_shared<ManualTimer>(m_elapsed + interval, interval, repeats, std::move(callback));
    m_timers.push_back(timer);
    return timer;
}

void ManualRunLoop::dispatchAfter(double seconds, std::function<void()> callback) {
    scheduledTimer(seconds, false, std::move(callback));
}

void ManualRunLoop::dispatchMain(std::function<void()> callback) {
    const std::lock_guard lock(m_mutex);
    m_queue.push_back(std::move(callback));
}

void ManualRunLoop::dispatchBackground(std::function<void()> callback) {
    const std::lock_guard lock(m_mutex);
    if (m_isBackgroundHeld) {
        m_held.push_back(std::move(callback));
    } else {
        m_queue.push_back(std::move(callback));
    }
}

void ManualRunLoop::holdBackground(bool isHeld) {
    const std::lock_guard lock(m_mutex);
    m_isBackgroundHeld = isHeld;
    if (!isHeld) {
        std::move(m_held.begin(), m_held.end(), std::back_inserter(m_queue));
        m_held.clear();
    }
}

void ManualRunLoop::advance(double seconds) {
    const double end = m_elapsed + seconds;
    drain();
    for (;;) {
        std::erase_if(m_timers, [](const auto& timer) { return !timer->isValid(); });
        const auto next = std::min_element(m_timers.begin(), m_timers.end(),
                                           [](const auto& a, const auto& b) { return a->due < b->due; });
        // Half a microsecond forgives the rounding of many additions.
        if (next == m_timers.end() || (*next)->due > end + 5e-7) {
            break;
        }
        const auto timer = *next;
        m_clock.advance(timer->due - m_elapsed);
        m_elapsed = timer->due;
        timer->due += timer->interval;
        if (!timer->repeats) {
            timer->invalidate();
        }
        timer->callback();
        drain();
    }
    m_clock.advance(end - m_elapsed);
    m_elapsed = end;
}

void ManualRunLoop::drain() {
    for (;;) {
        std::function<void()> next;
        {
            const std::lock_guard lock(m_mutex);
            if (m_queue.empty()) {
                return;
            }
            next = std::move(m_queue.front());
            m_queue.pop_front();
        }
        next();
    }
}

std::size_t ManualRunLoop::activeTimers() const {
    return static_cast<std::size_t>(
        std::count_if(m_timers.begin(), m_timers.end(), [](const auto& timer) { return timer->isValid(); }));
}

}  // namespace tavi::test
