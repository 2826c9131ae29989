#include "recording/SessionClock.h"

#include <QPointer>

namespace tavi {

namespace {

constexpr double kClockInterval = 1.0;
constexpr double kLevelInterval = 0.1;

}  // namespace

void SessionClock::startTimer(bool isReset) {
    if (isReset) {
        m_secondStart = 0;
    }
    const QPointer<SessionClock> self(this);
    m_timer = m_runLoop.scheduledTimer(kClockInterval, true, [self] {
        if (self) {
            self->m_secondStart += 1;
            Q_EMIT self->updateTimer();
        }
    });
    m_waveTimer = m_runLoop.scheduledTimer(kLevelInterval, true, [self] {
        if (self) {
            Q_EMIT self->waveViewUpdate();
        }
    });
}

void SessionClock::stopTimer() {
    for (auto* timer : {&m_timer, &m_waveTimer}) {
        if (*timer != nullptr) {
            (*timer)->invalidate();
            timer->reset();
        }
    }
}

}  // namespace tavi
