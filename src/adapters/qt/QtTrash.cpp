#include "adapters/qt/QtTrash.h"

#include <sys/stat.h>

#include <QFile>
#include <QStandardPaths>
#include <cerrno>
#include <system_error>

#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

namespace {

QString errorText(int error) {
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

/// What the trash remembers of a file: "info/NAME.trashinfo" beside "files/NAME".
std::filesystem::path noteOf(const std::filesystem::path& trashed) {
    std::filesystem::path note = folderOf(folderOf(trashed)) / "info" / trashed.filename();
    note += ".trashinfo";
    return note;
}

/// Whether the user has a home trash, which is made if need be. Without one the toolkit would take the working
/// directory for it.
bool hasHomeTrash() {
    const auto data = nativePath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    std::error_code error;
    std::filesystem::create_directories(data, error);
    ::mkdir((data / "Trash").c_str(), 0700);
    return data.is_absolute() && std::filesystem::is_directory(data / "Trash", error);
}

}  // namespace

Result<std::filesystem::path> QtTrash::moveToTrash(const std::filesystem::path& path) {
    if (!hasHomeTrash()) {
        return failure(errorText(ENOENT));
    }
    std::filesystem::path named = path;
    const std::filesystem::path text = nativePath(pathText(path.filename()));
    if (text != path.filename()) {
        // The toolkit's paths are texts.
        named = freePath(path.parent_path() / text);
        if (const int error = renameWithoutReplacing(path, named)) {
            return failure(errorText(error));
        }
    }
    QFile file(named);
    if (!file.moveToTrash()) {
        if (named != path) {
            renameWithoutReplacing(named, path);
        }
        return failure(file.errorString());
    }
    return nativePath(file.fileName());
}

Result<std::filesystem::path> QtTrash::putBack(const std::filesystem::path& trashed,
                                               const std::filesystem::path& path) {
    for (;;) {
        std::filesystem::path free = freePath(path);
        const auto moved = moveItem(trashed, free);
        if (moved) {
            removeAt(noteOf(trashed));
            return free;
        }
        // Somebody else may have taken the name just now.
        if (!existsAt(free)) {
            return tl::unexpected(errorOf(moved.error()));
        }
    }
}

}  // namespace tavi
