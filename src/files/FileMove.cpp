#include "files/FileMove.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <system_error>
#include <utility>
#include <vector>

#include "files/PathText.h"

namespace tavi {

namespace {

constexpr std::size_t kCopyBlock = std::size_t{1} << 20;
constexpr mode_t kPermissionBits = 07777;

class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }
    int close() { return m_descriptor >= 0 ? ::close(std::exchange(m_descriptor, -1)) : 0; }

private:
    int m_descriptor;
};

/// Removes a file when it goes out of scope.
class TemporaryName {
public:
    explicit TemporaryName(std::filesystem::path path) : m_path(std::move(path)) {}
    ~TemporaryName() { ::unlink(m_path.c_str()); }
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;

private:
    std::filesystem::path m_path;
};

std::filesystem::path folderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : ".";
}

bool isUnsupported(int error) {
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM || error == EMLINK;
}

int renameByLink(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::link(from.c_str(), to.c_str()) != 0) {
        return errno;
    }
    if (::unlink(from.c_str()) != 0) {
        const int error = errno;
        ::unlink(to.c_str());
        return error;
    }
    return 0;
}

int renameByReserving(const std::filesystem::path& from, const std::filesystem::path& to) {
    const FileDescriptor reserved(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!reserved.isOpen()) {
        return errno;
    }
    if (::rename(from.c_str(), to.c_str()) != 0) {
        const int error = errno;
        ::unlink(to.c_str());
        return error;
    }
    return 0;
}

/// Brings a folder's names to the disk; not every file system can or needs to.
int synchronizeFolder(const std::filesystem::path& folder) {
    const FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen()) {
        // A folder that may be written but not read.
        return errno == EACCES ? 0 : errno;
    }
    return ::fsync(descriptor.get()) == 0 || isUnsupported(errno) ? 0 : errno;
}

int writeAll(int descriptor, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(descriptor, bytes, count);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return 0;
}

int copyContents(int source, int target) {
    std::vector<char> block(kCopyBlock);
    for (;;) {
        const ssize_t count = ::read(source, block.data(), block.size());
        if (count == 0) {
            return 0;
        }
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        if (const int error = writeAll(target, block.data(), static_cast<std::size_t>(count))) {
            return error;
        }
    }
}

/// Contents, permissions and dates of one open file into another, down to the disk.
int copyFile(int source, const struct stat& attributes, FileDescriptor& target) {
    if (const int error = copyContents(source, target.get())) {
        return error;
    }
    // A file system without permissions refuses them; the file itself is as good.
    if (::fchmod(target.get(), attributes.st_mode & kPermissionBits) != 0 && !isUnsupported(errno)) {
        return errno;
    }
    const std::array<timespec, 2> times{attributes.st_atim, attributes.st_mtim};
    if (::futimens(target.get(), times.data()) != 0 && !isUnsupported(errno)) {
        return errno;
    }
    if (::fsync(target.get()) != 0) {
        return errno;
    }
    return target.close() == 0 ? 0 : errno;
}

int moveAcrossFileSystems(const std::filesystem::path& from, const std::filesystem::path& to) {
    // Without O_NONBLOCK a pipe would be waited for.
    const FileDescriptor source(::open(from.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat attributes = {};
    if (!source.isOpen() || ::fstat(source.get(), &attributes) != 0) {
        return errno;
    }
    if (!S_ISREG(attributes.st_mode)) {
        return S_ISDIR(attributes.st_mode) ? EISDIR : EINVAL;
    }
    struct stat taken = {};
    if (::lstat(to.c_str(), &taken) == 0) {
        return EEXIST;
    }
    const std::filesystem::path inbox = folderOf(to) / "PrivateInbox";
    if (::mkdir(inbox.c_str(), 0700) != 0 && errno != EEXIST) {
        return errno;
    }
    std::string temporary = inbox / "move-XXXXXX";
    FileDescriptor target(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!target.isOpen()) {
        return errno;
    }
    const TemporaryName cleaner(temporary);
    if (const int error = copyFile(source.get(), attributes, target)) {
        return error;
    }
    if (const int error = renameWithoutReplacing(temporary, to)) {
        return error;
    }
    // The source goes last: until then a failure takes back the copy.
    int error = synchronizeFolder(folderOf(to));
    if (error == 0 && ::unlink(from.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        ::unlink(to.c_str());
    }
    return error;
}

}  // namespace

int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to, RenameMethod method) {
    if (method == RenameMethod::Exclusive) {
        if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
            return 0;
        }
        if (!isUnsupported(errno)) {
            return errno;
        }
    }
    if (method != RenameMethod::Reserve) {
        const int error = renameByLink(from, to);
        if (!isUnsupported(error)) {
            return error;
        }
    }
    return renameByReserving(from, to);
}

Result<void> moveItem(const std::filesystem::path& from, const std::filesystem::path& to) {
    int error = renameWithoutReplacing(from, to);
    if (error == 0) {
        // The move is done for every process, and a power cut leaves the file under one of its two names: not being
        // able to hurry the disk is no failure.
        synchronizeFolder(folderOf(to));
    } else if (error == EXDEV) {
        error = moveAcrossFileSystems(from, to);
    }
    if (error != 0) {
        return failure(
            QStringLiteral("Cannot move \"%1\" to \"%2\": %3")
                .arg(pathText(from), pathText(to), QString::fromStdString(std::generic_category().message(error))));
    }
    return {};
}

}  // namespace tavi
