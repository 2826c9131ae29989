#include "files/LockedFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace tavi {

FileResult<LockedFolder> LockedFolder::create(const std::filesystem::path& parent, const std::string& name) {
    ::mkdir(parent.c_str(), 0700);
    for (int number = 1;; ++number) {
        // Not numberedPath(): a month may be abbreviated with a dot, which begins no extension here.
        const std::filesystem::path path = parent / (number == 1 ? name : name + '_' + std::to_string(number));
        const bool isMade = ::mkdir(path.c_str(), 0700) == 0;
        if (isMade) {
            if (auto folder = lock(path)) {
                return std::move(*folder);
            }
        }
        // Whoever looks for what was left may have taken a new folder for an empty one.
        const int error = errno;
        if (isMade ? error != EWOULDBLOCK && error != ENOENT : error != EEXIST) {
            ::rmdir(path.c_str());
            return fileFailure("Cannot make the folder \"" + path.native() +
                               "\": " + std::generic_category().message(error));
        }
    }
}

std::optional<LockedFolder> LockedFolder::lock(const std::filesystem::path& path) {
    FileDescriptor folder = FileDescriptor::open(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    struct stat attributes = {};
    if (!folder.isValid()) {
        return std::nullopt;
    }
    if (::flock(folder.get(), LOCK_EX | LOCK_NB) != 0 || ::fstat(folder.get(), &attributes) != 0) {
        const int error = errno;
        folder.close();
        errno = error;
        return std::nullopt;
    }
    if (attributes.st_nlink == 0) {
        folder.close();
        errno = ENOENT;
        return std::nullopt;
    }
    return LockedFolder(std::move(folder), path);
}

std::vector<std::filesystem::path> LockedFolder::files() const {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator item(m_path, error), end; !error && item != end; item.increment(error)) {
        std::error_code ignored;
        if (item->symlink_status(ignored).type() == std::filesystem::file_type::regular) {
            files.push_back(item->path());
        }
    }
    return files;
}

void LockedFolder::remove() {
    ::rmdir(m_path.c_str());
}

}  // namespace tavi
