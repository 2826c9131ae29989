#pragma once

#include <QObject>
#include <memory>

namespace tavi {

/// The machine's sleep and its awakening. Main thread only; where the system does not tell of them nothing is said.
class SystemSleep : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// The machine is about to sleep, and waits until nobody holds the delay any more: who has to finish something
    /// first keeps it, on whatever thread, and drops it then. The system waits for some seconds, and no longer.
    void willSleep(const std::shared_ptr<void>& delay);
    /// The machine is awake again; for how many seconds it slept, 0 where it did not come to that.
    void hasWoken(double seconds);
};

}  // namespace tavi
