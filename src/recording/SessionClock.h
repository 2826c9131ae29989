#pragma once

#include <QObject>
#include <cstdint>
#include <memory>

#include "platform/RunLoop.h"

namespace tavi {

/// The two timers of a session that captures: it counts seconds by their ticks, whatever the recorder's own time, and
/// says ten times a second that the level is to be read. Main thread only.
class SessionClock : public QObject {
    Q_OBJECT

public:
    /// The run loop must outlive the clock.
    explicit SessionClock(RunLoop& runLoop, QObject* parent = nullptr) : QObject(parent), m_runLoop(runLoop) {}
    ~SessionClock() override { stopTimer(); }

    /// Seconds of the session so far. No bound: hours simply grow.
    std::int64_t secondStart() const { return m_secondStart; }
    /// Goes on where stopTimer() left off, or, for a reset, from 0.
    void startTimer(bool isReset);
    void stopTimer();

Q_SIGNALS:
    /// Once a second, and ten times a second.
    void updateTimer();
    void waveViewUpdate();

private:
    RunLoop& m_runLoop;
    std::int64_t m_secondStart = 0;
    std::shared_ptr<Timer> m_timer;
    std::shared_ptr<Timer> m_waveTimer;
};

}  // namespace tavi
