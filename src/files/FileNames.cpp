#include "files/FileNames.h"

#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace tavi {

bool isRecordingName(const std::filesystem::path& name) {
    const bool isName = name.has_filename() && !name.has_parent_path() && name != "." && name != "..";
    return isName && name != foldername::kCloud && name != foldername::kInbox && name != foldername::kPrivateInbox;
}

std::filesystem::path folderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : ".";
}

bool existsAt(const std::filesystem::path& path) {
    struct stat attributes = {};
    return ::lstat(path.c_str(), &attributes) == 0;
}

void removeAt(const std::filesystem::path& path) {
    ::unlink(path.c_str());
}

void removeIfStill(const std::filesystem::path& path, int fd) {
    struct stat named = {};
    struct stat opened = {};
    if (::lstat(path.c_str(), &named) == 0 && ::fstat(fd, &opened) == 0 && named.st_dev == opened.st_dev &&
        named.st_ino == opened.st_ino) {
        ::unlink(path.c_str());
    }
}

std::filesystem::path numberedPath(const std::filesystem::path& path, int number) {
    std::filesystem::path numbered = path.parent_path() / path.stem();
    numbered += '_' + std::to_string(number);
    numbered += path.extension();
    return numbered;
}

std::filesystem::path freePath(const std::filesystem::path& path) {
    std::filesystem::path free = path;
    for (int number = 2; existsAt(free); ++number) {
        free = numberedPath(path, number);
    }
    return free;
}

}  // namespace tavi
