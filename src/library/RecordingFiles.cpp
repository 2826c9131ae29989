#include "library/RecordingFiles.h"

#include <sys/stat.h>

#include <algorithm>
#include <string>
#include <system_error>

#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi::recordingfiles {

namespace {

/// Where the extension begins, with its dot; the name's length where it has none: ".hidden" and "name." have none.
std::size_t extensionPlace(const std::string& name) {
    const std::size_t dot = name.rfind('.');
    return dot == 0 || dot == std::string::npos || dot + 1 == name.size() ? name.size() : dot;
}

Result<void> resultOf(int error) {
    if (error == 0) {
        return {};
    }
    return failure(QString::fromLocal8Bit(std::generic_category().message(error).c_str()));
}

/// Whether a folder lists exactly that name.
bool hasEntry(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::directory_iterator entries(folderOf(path), error);
    return std::any_of(begin(entries), end(entries),
                       [&path](const auto& entry) { return entry.path().filename() == path.filename(); });
}

/// Whether both paths are one entry of a folder, which the file system finds by either.
bool isOtherSpelling(const std::filesystem::path& file, const std::filesystem::path& path) {
    struct stat one = {};
    struct stat other = {};
    return file != path && ::lstat(file.c_str(), &one) == 0 && ::lstat(path.c_str(), &other) == 0 &&
           one.st_dev == other.st_dev && one.st_ino == other.st_ino && !hasEntry(path);
}

/// By way of a free name, as the file system sees no difference between the two. Whoever lists the folder meanwhile
/// finds the recording.
int respell(const std::filesystem::path& file, const std::filesystem::path& newPath) {
    const std::filesystem::path between = freePath(file);
    int error = renameWithoutReplacing(file, between);
    if (error == 0 && (error = renameWithoutReplacing(between, newPath)) != 0) {
        renameWithoutReplacing(between, file);
    }
    return error;
}

/// A typed name as the file system has it. One that is no text, left as it was offered, stays what it is.
std::string bytesOf(const std::filesystem::path& file, const QString& typed) {
    const std::string name = file.filename();
    return typed == nameToEdit(file) ? name.substr(0, extensionPlace(name)) : nativePath(typed).native();
}

}  // namespace

QString nameToEdit(const std::filesystem::path& file) {
    const std::string name = file.filename();
    return pathText(name.substr(0, extensionPlace(name)));
}

std::filesystem::path renamedPath(const std::filesystem::path& file, const QString& typed) {
    return renamedPath(file, bytesOf(file, typed));
}

std::filesystem::path renamedPath(const std::filesystem::path& file, const std::string& typed) {
    const std::string name = file.filename();
    return file.parent_path() / (typed + name.substr(extensionPlace(name)));
}

NewNameFault faultOfNewName(const std::filesystem::path& file, const QString& typed) {
    return faultOfNewName(file, bytesOf(file, typed));
}

NewNameFault faultOfNewName(const std::filesystem::path& file, const std::string& typed) {
    if (typed.find('/') != std::string::npos) {
        return NewNameFault::HasSlash;
    }
    if (typed.empty()) {
        return NewNameFault::IsEmpty;
    }
    if (typed == file.filename()) {
        return NewNameFault::IsOldName;
    }
    const std::filesystem::path newPath = renamedPath(file, typed);
    return existsAt(newPath) && !isOtherSpelling(file, newPath) ? NewNameFault::IsTaken : NewNameFault::None;
}

Result<void> rename(const std::filesystem::path& file, const std::filesystem::path& newPath) {
    return resultOf(isOtherSpelling(file, newPath) ? respell(file, newPath) : renameWithoutReplacing(file, newPath));
}

Result<void> remove(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::remove(file, error) && !error) {
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    }
    return resultOf(error.value());
}

}  // namespace tavi::recordingfiles
