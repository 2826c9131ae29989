#include "adapters/dbus/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <array>
#include <cerrno>
#include <utility>

namespace tavi {

namespace {

/// The process id that the lock's owner left in the file; empty when there is none yet.
QString ownerOf(int descriptor) {
    std::array<char, 24> text = {};
    const ssize_t length = ::pread(descriptor, text.data(), text.size(), 0);
    return length > 0 ? QString::fromLatin1(text.data(), length).trimmed() : QString();
}

}  // namespace

Result<InstanceLock> InstanceLock::take(const QString& cachesPath) {
    const QString path = cachesPath + QLatin1String("/instance.lock");
    InstanceLock lock(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (lock.m_descriptor < 0) {
        return failure(QStringLiteral("Cannot make the lock file “%1”: %2.").arg(path, qt_error_string(errno)));
    }
    if (::flock(lock.m_descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK) {
            return failure(QStringLiteral("Cannot lock the file “%1”: %2.").arg(path, qt_error_string(errno)));
        }
        const QString owner = ownerOf(lock.m_descriptor);
        const QString process = owner.isEmpty() ? QString() : QStringLiteral(" as process %1").arg(owner);
        return failure(
            QStringLiteral("The recorder is already running%1 and uses the folder “%2”.").arg(process, cachesPath));
    }
    // The process id is for people only; the lock holds without it.
    const QByteArray pid = QByteArray::number(static_cast<qint64>(::getpid())) + '\n';
    if (::ftruncate(lock.m_descriptor, 0) != 0 ||
        ::pwrite(lock.m_descriptor, pid.constData(), size_t(pid.size()), 0) < 0) {
        qWarning("The lock file “%s” does not take the process id: %s.", qUtf8Printable(path),
                 qUtf8Printable(qt_error_string(errno)));
    }
    return lock;
}

InstanceLock::~InstanceLock() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

InstanceLock::InstanceLock(InstanceLock&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

InstanceLock& InstanceLock::operator=(InstanceLock&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

}  // namespace tavi
