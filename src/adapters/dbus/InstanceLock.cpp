#include "adapters/dbus/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "files/PathText.h"

namespace tavi {

namespace {

constexpr const char* kFileName = "instance.lock";

/// A lock beside that of flock(2), which alone can be asked after without taking it.
struct flock askedLock() {
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

/// The process id that the lock's owner left in the file; empty when there is none yet.
QString ownerOf(int descriptor) {
    std::array<char, 24> text = {};
    const ssize_t length = ::pread(descriptor, text.data(), text.size(), 0);
    return length > 0 ? QString::fromLatin1(text.data(), length).trimmed() : QString();
}

}  // namespace

tl::expected<InstanceLock, InstanceLock::Refusal> InstanceLock::take(const std::filesystem::path& cachesPath) {
    const std::filesystem::path path = cachesPath / kFileName;
    const auto refusal = [](bool isHeld, const QString& text) {
        return tl::unexpected(Refusal{.isHeld = isHeld, .error = {text}});
    };
    InstanceLock lock(FileDescriptor::open(path, O_RDWR | O_CREAT, 0600));
    const int file = lock.m_file.get();
    if (!lock.m_file.isValid()) {
        return refusal(
            false, QStringLiteral("Cannot make the lock file “%1”: %2.").arg(pathText(path), qt_error_string(errno)));
    }
    if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK) {
            return refusal(
                false, QStringLiteral("Cannot lock the file “%1”: %2.").arg(pathText(path), qt_error_string(errno)));
        }
        const QString owner = ownerOf(file);
        const QString process = owner.isEmpty() ? QString() : QStringLiteral(" as process %1").arg(owner);
        return refusal(true, QStringLiteral("The recorder is already running%1 and uses the folder “%2”.")
                                 .arg(process, pathText(cachesPath)));
    }
    // Where a file system has one kind of locks only, it is there already.
    struct flock asked = askedLock();
    (void)::fcntl(file, F_OFD_SETLK, &asked);
    // The process id is for people only; the lock holds without it.
    const QByteArray pid = QByteArray::number(static_cast<qint64>(::getpid())) + '\n';
    if (::ftruncate(file, 0) != 0 || ::pwrite(file, pid.constData(), size_t(pid.size()), 0) < 0) {
        qWarning("The lock file “%s” does not take the process id: %s.", path.c_str(),
                 qUtf8Printable(qt_error_string(errno)));
    }
    return lock;
}

bool InstanceLock::isHeld(const std::filesystem::path& cachesPath) {
    const FileDescriptor file = FileDescriptor::open(cachesPath / kFileName, O_RDWR);
    struct flock asked = askedLock();
    return file.isValid() && ::fcntl(file.get(), F_OFD_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
}

}  // namespace tavi
