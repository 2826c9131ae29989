#include "adapters/qt/QtAppContainer.h"

#include <unistd.h>

#include <QStandardPaths>

#include "files/PathText.h"

namespace tavi {

namespace {

namespace fs = std::filesystem;

constexpr auto kFolder = "com.quillfen.voicerecorder";

bool makeFolder(const fs::path& path, bool isPrivate) {
    std::error_code error;
    if (fs::is_directory(path, error)) {
        return true;
    }
    fs::create_directories(path, error);
    if (!error && isPrivate) {
        fs::permissions(path, fs::perms::owner_all, error);
    }
    return !error;
}

fs::path xdg(QStandardPaths::StandardLocation location) {
    return nativePath(QStandardPaths::writableLocation(location));
}

/// The path from the root, without "." and ".." and a slash at its end.
fs::path fromRoot(const fs::path& path) {
    std::error_code ignored;
    const fs::path clean = fs::absolute(path, ignored).lexically_normal();
    return clean.has_filename() ? clean : clean.parent_path();
}

}  // namespace

Result<std::unique_ptr<QtAppContainer>> QtAppContainer::create(const fs::path& container) {
    std::unique_ptr<QtAppContainer> made(new QtAppContainer);
    if (container.empty() && !fs::path(qgetenv("HOME").toStdString()).is_absolute()) {
        return failure(QStringLiteral("HOME does not say where your files are: set it, or choose a --container."));
    }
    if (container.empty()) {
        made->m_documents = xdg(QStandardPaths::MusicLocation) / "Voice Recordings";
        made->m_unsaved = xdg(QStandardPaths::GenericDataLocation) / kFolder / "Unsaved";
        made->m_caches = xdg(QStandardPaths::GenericCacheLocation) / kFolder;
        made->m_temporary = made->m_caches / "tmp";
        made->m_preferences = xdg(QStandardPaths::GenericConfigLocation) / kFolder;
        made->m_groups = xdg(QStandardPaths::GenericDataLocation) / kFolder / "Groups";
    } else {
        const fs::path root = fromRoot(container);
        made->m_documents = root / "Documents";
        made->m_unsaved = root / "Unsaved";
        made->m_caches = root / "Caches";
        made->m_temporary = root / "tmp";
        made->m_preferences = root / "Preferences";
        made->m_groups = root / "Groups";
    }
    // Nothing depends on the documents folder: the running program is to be reached without it, and what is recorded
    // meanwhile is saved when it is back.
    makeFolder(made->m_documents, false);
    for (const fs::path& path :
         {made->m_unsaved, made->m_caches, made->m_temporary, made->m_preferences, made->m_groups}) {
        if (!makeFolder(path, true)) {
            return failure(QStringLiteral("Cannot make the folder “%1”.").arg(pathText(path)));
        }
        if (::access(path.c_str(), W_OK) != 0) {
            return failure(QStringLiteral("Cannot write to the folder “%1”.").arg(pathText(path)));
        }
    }
    return made;
}

fs::path QtAppContainer::groupContainerPath(const QString& groupIdentifier) const {
    fs::path path = m_groups / nativePath(groupIdentifier);
    makeFolder(path, true);
    return path;
}

}  // namespace tavi
