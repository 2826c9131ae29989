#include "files/FileCopy.h"

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <limits>
#include <vector>

#include "files/FileIdentity.h"
#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr std::size_t kCopyBlock = std::size_t{1} << 20;
/// How much waits for the disk at most.
constexpr std::int64_t kUnsynchronized = std::int64_t{16} << 20;
constexpr mode_t kReadAndWrite = 0666;

bool isUnsupported(int error) {
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM;
}

/// Sees that there is room for a file, and takes it where the file system can. 0 or an errno value.
int reserve(int fd, std::int64_t size) {
    // Asked first: some would take all that there is before they say that it is not enough.
    struct statvfs disk = {};
    const bool isKnown = ::fstatvfs(fd, &disk) == 0 && disk.f_blocks > 0 && disk.f_frsize > 0;
    if (size == 0 || (isKnown && static_cast<std::uint64_t>(size) / disk.f_frsize >= disk.f_bavail)) {
        return size == 0 ? 0 : ENOSPC;
    }
    const bool isRefused = ::fallocate(fd, FALLOC_FL_KEEP_SIZE, 0, size) != 0 && (errno == ENOSPC || errno == EDQUOT);
    return isRefused ? errno : 0;
}

/// Says how far a copy has come, not more often than anybody can see.
class Progress {
public:
    Progress(const CopyWatch& watch, std::int64_t all) : m_watch(watch), m_all(all) {}

    void tell(std::int64_t done) {
        constexpr int kSteps = 100;
        const int step =
            m_all > 0 ? static_cast<int>(static_cast<double>(done) / static_cast<double>(m_all) * kSteps) : 0;
        if (m_watch.progress && step > m_step) {
            m_step = step;
            m_watch.progress(static_cast<double>(step) / kSteps);
        }
    }

private:
    const CopyWatch& m_watch;
    std::int64_t m_all;
    int m_step = 0;
};

int copyBytes(int source, std::int64_t size, int target, const CopyWatch& watch) {
    // Files of the kernel's say that they are empty, and are not.
    const std::int64_t end = size > 0 ? size : std::numeric_limits<std::int64_t>::max();
    std::vector<char> block(kCopyBlock);
    Progress progress(watch, size);
    std::int64_t synchronized = 0;
    for (std::int64_t offset = 0; offset < end;) {
        if (watch.stop.stop_requested()) {
            return ECANCELED;
        }
        const auto wanted = std::min<std::int64_t>(end - offset, static_cast<std::int64_t>(block.size()));
        const ssize_t count = ::read(source, block.data(), static_cast<std::size_t>(wanted));
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        if (count == 0) {
            return size > 0 ? EBUSY : 0;
        }
        const auto bytes = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        if (const int error = writeFully(::pwrite, target, block.data(), bytes, offset).error) {
            return error;
        }
        offset += static_cast<std::int64_t>(bytes);
        if (offset - synchronized >= kUnsynchronized) {
            // What goes wrong is told once, and not again at the end.
            if (::fdatasync(target) != 0 && !isUnsupported(errno)) {
                return errno;
            }
            synchronized = offset;
        }
        progress.tell(offset);
    }
    return 0;
}

}  // namespace

FileDescriptor openRegular(const std::filesystem::path& path, struct stat& attributes) {
    const auto isRegular = [&attributes] {
        if (!S_ISREG(attributes.st_mode)) {
            errno = S_ISDIR(attributes.st_mode) ? EISDIR : EINVAL;
        }
        return S_ISREG(attributes.st_mode);
    };
    // Looked at before it is opened, which some devices take for a request; and again, should it be another one by now.
    if (::stat(path.c_str(), &attributes) != 0 || !isRegular()) {
        return {};
    }
    FileDescriptor file = FileDescriptor::open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (file.isValid() && (::fstat(file.get(), &attributes) != 0 || !isRegular())) {
        const int error = errno;
        file.close();
        errno = error;
    }
    return file;
}

int copyContents(int source, const struct stat& attributes, int target, const CopyWatch& watch) {
    int error = reserve(target, attributes.st_size);
    if (error == 0) {
        error = copyBytes(source, attributes.st_size, target, watch);
    }
    struct stat now = {};
    if (error == 0 && attributes.st_size > 0 &&
        (::fstat(source, &now) != 0 || FileIdentity(now) != FileIdentity(attributes))) {
        error = EBUSY;
    }
    if (error != 0) {
        return error;
    }
    const std::array<timespec, 2> times{attributes.st_atim, attributes.st_mtim};
    return ::futimens(target, times.data()) == 0 || isUnsupported(errno) ? 0 : errno;
}

int copyItem(const std::filesystem::path& from, const std::filesystem::path& to, const CopyWatch& watch,
             Existing existing) {
    struct stat attributes = {};
    const FileDescriptor source = openRegular(from, attributes);
    if (!source.isValid()) {
        return errno;
    }
    DurableFile target = DurableFile::create(to, {}, existing);
    if (!target.isValid()) {
        return errno;
    }
    if (const int error = copyContents(source.get(), attributes, target.fd(), watch)) {
        return error;
    }
    // Whoever could read the source may read the copy, and its owner may change it. It is no program, whatever the disk
    // says from which it comes. A file system without permissions is as good.
    ::fchmod(target.fd(), (attributes.st_mode & kReadAndWrite) | S_IRUSR | S_IWUSR);
    return watch.stop.stop_requested() ? ECANCELED : target.publish();
}

}  // namespace tavi
