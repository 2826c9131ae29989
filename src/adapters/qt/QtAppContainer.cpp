#include "adapters/qt/QtAppContainer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace tavi {

namespace {

constexpr QLatin1String kFolder("/com.quillfen.voicerecorder");

bool makeFolder(const QString& path, bool isPrivate) {
    if (QFileInfo(path).isDir()) {
        return true;
    }
    if (!QDir().mkpath(path)) {
        return false;
    }
    return !isPrivate || QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString xdg(QStandardPaths::StandardLocation location) {
    return QStandardPaths::writableLocation(location);
}

}  // namespace

Result<std::unique_ptr<QtAppContainer>> QtAppContainer::create(const QString& container) {
    std::unique_ptr<QtAppContainer> made(new QtAppContainer);
    if (container.isEmpty()) {
        made->m_documents = xdg(QStandardPaths::MusicLocation) + QLatin1String("/Voice Recordings");
        made->m_caches = xdg(QStandardPaths::GenericCacheLocation) + kFolder;
        made->m_temporary = made->m_caches + QLatin1String("/tmp");
        made->m_preferences = xdg(QStandardPaths::GenericConfigLocation) + kFolder;
        made->m_groups = xdg(QStandardPaths::GenericDataLocation) + kFolder + QLatin1String("/Groups");
    } else {
        const QDir root(QDir::cleanPath(QDir::current().absoluteFilePath(container)));
        made->m_documents = root.filePath(QStringLiteral("Documents"));
        made->m_caches = root.filePath(QStringLiteral("Caches"));
        made->m_temporary = root.filePath(QStringLiteral("tmp"));
        made->m_preferences = root.filePath(QStringLiteral("Preferences"));
        made->m_groups = root.filePath(QStringLiteral("Groups"));
    }
    for (const QString& path :
         {made->m_documents, made->m_caches, made->m_temporary, made->m_preferences, made->m_groups}) {
        if (!makeFolder(path, path != made->m_documents)) {
            return failure(QStringLiteral("Cannot make the folder “%1”.").arg(path));
        }
        if (!QFileInfo(path).isWritable()) {
            return failure(QStringLiteral("Cannot write to the folder “%1”.").arg(path));
        }
    }
    return made;
}

QString QtAppContainer::groupContainerPath(const QString& groupIdentifier) const {
    QString path = m_groups + QLatin1Char('/') + groupIdentifier;
    makeFolder(path, true);
    return path;
}

}  // namespace tavi
