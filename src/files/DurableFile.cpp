#include "files/DurableFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <string>

#include "files/FileMove.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

constexpr std::string_view kPrefix = ".tavi-unfinished-";
constexpr std::time_t kLeftoverSeconds = 3600;

bool cannotSynchronize(int error) {
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM;
}

/// Where files are made that shall have that path.
std::filesystem::path workFolderOf(const std::filesystem::path& path) {
    const std::filesystem::path hidden = folderOf(path) / foldername::kPrivateInbox;
    struct stat attributes = {};
    return ::stat(hidden.c_str(), &attributes) == 0 && S_ISDIR(attributes.st_mode) ? hidden : folderOf(path);
}

std::string temporaryName(std::string_view suffix) {
    std::random_device random;
    std::array<char, 17> number{};
    std::snprintf(number.data(), number.size(), "%08x%08x", random(), random());
    return std::string(kPrefix).append(number.data()).append(suffix);
}

}  // namespace

int synchronizeFolder(const std::filesystem::path& folder) {
    const FileDescriptor descriptor = FileDescriptor::open(folder, O_RDONLY | O_DIRECTORY);
    if (!descriptor.isValid()) {
        return errno == EACCES ? 0 : errno;
    }
    return ::fsync(descriptor.get()) == 0 || cannotSynchronize(errno) ? 0 : errno;
}

int synchronize(int fd, const std::filesystem::path& folder) {
    return ::fsync(fd) == 0 ? synchronizeFolder(folder) : errno;
}

void removeLeftovers(const std::filesystem::path& folder, std::time_t now) {
    struct Closer {
        void operator()(DIR* directory) const { ::closedir(directory); }
    };
    const std::unique_ptr<DIR, Closer> directory(::opendir(folder.c_str()));
    // No other thread reads this stream, which is all that readdir(3) asks for.
    while (const dirent* item = directory ? ::readdir(directory.get()) : nullptr) {  // NOLINT(concurrency-mt-unsafe)
        struct stat attributes = {};
        // The time of the last change of any kind: the one of writing may be the source's already.
        if (std::string_view(item->d_name).starts_with(kPrefix) &&
            ::fstatat(::dirfd(directory.get()), item->d_name, &attributes, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(attributes.st_mode) && now - attributes.st_ctim.tv_sec > kLeftoverSeconds) {
            ::unlinkat(::dirfd(directory.get()), item->d_name, 0);
        }
    }
}

DurableFile DurableFile::create(const std::filesystem::path& path, std::string_view suffix, Existing existing) {
    DurableFile made;
    struct stat attributes = {};
    if (::lstat(path.c_str(), &attributes) == 0) {
        const bool isFile = S_ISREG(attributes.st_mode) || S_ISLNK(attributes.st_mode);
        if (existing == Existing::Keep || !isFile) {
            errno = existing == Existing::Keep ? EEXIST : S_ISDIR(attributes.st_mode) ? EISDIR : EINVAL;
            return made;
        }
    } else if (errno != ENOENT) {
        return made;
    }
    const std::filesystem::path folder = workFolderOf(path);
    removeLeftovers(folder, std::time(nullptr));
    std::filesystem::path temporary = folder / temporaryName(suffix);
    made.m_file = FileDescriptor::open(temporary, O_RDWR | O_CREAT | O_EXCL, 0666);
    if (made.isValid()) {
        made.m_temporary = std::move(temporary);
        made.m_path = path;
        made.m_existing = existing;
    }
    return made;
}

DurableFile::~DurableFile() {
    if (!m_temporary.empty()) {
        removeAt(m_temporary);
    }
}

void DurableFile::discard() {
    m_file.close();
    removeAt(m_temporary);
}

int DurableFile::synchronize() {
    if (!m_file.isValid()) {
        m_file = FileDescriptor::open(m_temporary, O_RDWR);
    }
    return m_file.isValid() && ::fsync(m_file.get()) == 0 ? 0 : errno;
}

int DurableFile::publish(Disk disk) {
    const bool replaces = m_existing == Existing::Replace;
    int error = disk == Disk::Wait ? synchronize() : 0;
    if (error == 0 && !replaces) {
        error = renameWithoutReplacing(m_temporary, m_path);
    } else if (error == 0 && ::rename(m_temporary.c_str(), m_path.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        return error;
    }
    m_temporary.clear();
    error = disk == Disk::Wait ? synchronizeFolder(folderOf(m_path)) : 0;
    if (replaces) {
        // What it has replaced is gone, and a power cut leaves one of the two: there is no way back and no loss.
        return 0;
    }
    if (error != 0) {
        removeIfStill(m_path, m_file.get());
    }
    return error;
}

}  // namespace tavi
