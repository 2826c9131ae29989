#pragma once

#include <QObject>
#include <utility>

namespace tavi {

/// Whether the program keeps to itself what it holds: while the passcode is asked for before anything else, while the
/// program is in the background with the passcode lock on, and from a start with the lock on until it is decided.
///
/// Written by the passcode lock alone; read and followed by whatever shows or tells something. Main thread only.
class LockState : public QObject {
    Q_OBJECT

public:
    bool isLocked() const { return m_isLocked; }

    void setLocked(bool locked) {
        if (std::exchange(m_isLocked, locked) != locked) {
            Q_EMIT changed();
        }
    }

Q_SIGNALS:
    /// isLocked() has become another.
    void changed();

private:
    bool m_isLocked = false;
};

}  // namespace tavi
