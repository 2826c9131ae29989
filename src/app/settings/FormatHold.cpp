#include "app/settings/FormatHold.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace tavi {

namespace {

/// The lock's file, open and locked; invalid, with errno set, when it cannot be both at once.
FileDescriptor locked(const AppContainer& container, int operation) {
    FileDescriptor file = FileDescriptor::open(container.cachesPath() / "recording.lock", O_RDONLY | O_CREAT, 0600);
    if (file.isValid() && ::flock(file.get(), operation | LOCK_NB) != 0) {
        const int error = errno;
        file.close();
        errno = error;
    }
    return file;
}

}  // namespace

FormatHold::FormatHold(const AppContainer& container, QObject* parent) : QObject(parent), m_container(container) {}

void FormatHold::setHeld(bool held) {
    if (held == m_isHeld) {
        return;
    }
    m_isHeld = held;
    // A recording does not wait for a process that changes a setting in this very moment, nor for a lock that cannot be
    // had: what is written then is saved all the same.
    m_lock = held ? locked(m_container, LOCK_SH) : FileDescriptor();
    Q_EMIT heldChanged();
}

Result<FileDescriptor> FormatHold::leaveToChange(const AppContainer& container) {
    FileDescriptor lock = locked(container, LOCK_EX);
    if (lock.isValid()) {
        return lock;
    }
    return failure(errno == EWOULDBLOCK
                       ? QStringLiteral("a recording is running, whose type and quality stay until it is saved")
                       : QStringLiteral("the lock of recordings cannot be had: %1").arg(qt_error_string(errno)));
}

}  // namespace tavi
