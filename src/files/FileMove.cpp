#include "files/FileMove.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "files/DurableFile.h"
#include "files/FileCopy.h"
#include "files/FileDescriptor.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

constexpr mode_t kPermissionBits = 07777;

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
    const FileDescriptor reserved = FileDescriptor::open(to, O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (!reserved.isValid()) {
        return errno;
    }
    if (::rename(from.c_str(), to.c_str()) != 0) {
        const int error = errno;
        removeIfStill(to, reserved.get());
        return error;
    }
    return 0;
}

/// Permissions, contents and dates of one open file into another.
int copyFile(int source, const struct stat& attributes, int target) {
    // A file system without permissions refuses them; the file itself is as good.
    if (::fchmod(target, attributes.st_mode & kPermissionBits) != 0 && !isUnsupported(errno)) {
        return errno;
    }
    return copyContents(source, attributes, target);
}

int moveAcrossFileSystems(const std::filesystem::path& from, const std::filesystem::path& to) {
    struct stat attributes = {};
    const FileDescriptor source = openRegular(from, attributes);
    if (!source.isValid()) {
        return errno;
    }
    if (existsAt(to)) {
        return EEXIST;
    }
    if (::mkdir((folderOf(to) / foldername::kPrivateInbox).c_str(), 0700) != 0 && errno != EEXIST) {
        return errno;
    }
    DurableFile target = DurableFile::create(to);
    if (!target.isValid()) {
        return errno;
    }
    if (const int error = copyFile(source.get(), attributes, target.fd())) {
        return error;
    }
    if (const int error = target.publish()) {
        return error;
    }
    // The source goes last: until then a failure takes back the copy.
    if (::unlink(from.c_str()) != 0) {
        const int error = errno;
        removeIfStill(to, target.fd());
        return error;
    }
    return 0;
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

FileResult<std::filesystem::path> stepAside(const std::filesystem::path& path) {
    for (int number = 2;; ++number) {
        std::filesystem::path name = numberedPath(path, number);
        const int error = renameWithoutReplacing(path, name);
        if (error == 0) {
            return name;
        }
        if (error != EEXIST) {
            return fileFailure("Cannot rename \"" + path.native() + "\": " + std::generic_category().message(error));
        }
    }
}

FileResult<void> moveItem(const std::filesystem::path& from, const std::filesystem::path& to) {
    int error = renameWithoutReplacing(from, to);
    if (error == 0) {
        // The move is done for every process, and a power cut leaves the file under one of its two names: not being
        // able to hurry the disk is no failure.
        synchronizeFolder(folderOf(to));
    } else if (error == EXDEV) {
        error = moveAcrossFileSystems(from, to);
    }
    if (error != 0) {
        return fileFailure("Cannot move \"" + from.native() + "\" to \"" + to.native() +
                           "\": " + std::generic_category().message(error));
    }
    return {};
}

}  // namespace tavi
