#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace tavi::test {

/// Runs the event loop until the condition holds. False when it does not come to hold: the limit is there only to end a
/// test that hangs.
template <class Condition>
bool spinUntil(Condition condition) {
    QDeadlineTimer limit(20'000);
    QTimer wakeUp;
    wakeUp.start(100);
    while (!condition()) {
        if (limit.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

}  // namespace tavi::test
