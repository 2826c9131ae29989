#include "watch/MMWormholeFileTransiting.h"

#include <utility>

#include "files/FileNames.h"
#include "files/PathText.h"

namespace tavi {

MMWormholeFileTransiting::MMWormholeFileTransiting(const MMWormholeServices& services,
                                                   QString applicationGroupIdentifier, QString directory)
    : m_services(services),
      m_applicationGroupIdentifier(std::move(applicationGroupIdentifier)),
      m_directory(std::move(directory)) {
    if (!m_applicationGroupIdentifier.isEmpty()) {
        checkAppGroupCapabilities();
    }
}

MMWormholeFileTransiting::MMWormholeFileTransiting(const MMWormholeServices& services)
    : MMWormholeFileTransiting(services, QStringLiteral("dev.assertion.nonDesignatedInitializer")) {}

std::optional<std::filesystem::path> MMWormholeFileTransiting::messagePassingDirectoryPath() const {
    const bool isOneName = m_directory.isEmpty() || (messagefile::canName(m_directory) && m_directory != u".");
    if (!messagefile::canName(m_applicationGroupIdentifier) || !isOneName) {
        return std::nullopt;
    }
    std::filesystem::path folder = m_services.container.groupContainerPath(m_applicationGroupIdentifier);
    if (!m_directory.isEmpty()) {
        folder /= nativePath(m_directory);
    }
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    return folder;
}

std::optional<std::filesystem::path> MMWormholeFileTransiting::filePathForIdentifier(const QString& identifier) const {
    const auto folder = messagePassingDirectoryPath();
    if (!folder || !messagefile::canName(identifier)) {
        return std::nullopt;
    }
    return *folder / nativePath(QStringLiteral("%1.archive").arg(identifier));
}

std::optional<QByteArray> MMWormholeFileTransiting::archived(const QVariant& message, qint64 most) const {
    auto archive = m_services.propertyLists.archivedDataWithRootObject(message);
    return archive && archive->size() <= most ? std::optional(std::move(*archive)) : std::nullopt;
}

QVariant MMWormholeFileTransiting::unarchived(const QByteArray& archive) const {
    return m_services.propertyLists.unarchiveObjectWithData(archive).value_or(QVariant());
}

bool MMWormholeFileTransiting::writeMessageObject(const QVariant& message, const QString& identifier) {
    if (identifier.isEmpty() || !message.isValid()) {
        return !identifier.isEmpty();
    }
    const auto path = filePathForIdentifier(identifier);
    const auto archive = path ? archived(message) : std::nullopt;
    return archive && writeFile(*path, *archive);
}

QVariant MMWormholeFileTransiting::messageObjectForIdentifier(const QString& identifier) {
    const auto path = filePathForIdentifier(identifier);
    const auto archive = path ? readFile(*path) : std::nullopt;
    return archive ? unarchived(*archive) : QVariant();
}

void MMWormholeFileTransiting::deleteContentForIdentifier(const QString& identifier) {
    if (const auto path = filePathForIdentifier(identifier)) {
        removeAt(*path);
    }
}

void MMWormholeFileTransiting::deleteContentForAllMessages() {
    const auto folder = m_directory.isEmpty() ? std::nullopt : messagePassingDirectoryPath();
    if (!folder) {
        return;
    }
    std::error_code ignored;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(*folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::filesystem::remove_all(entry->path(), ignored);
    }
}

bool MMWormholeFileTransiting::writeFile(const std::filesystem::path& path, const QByteArray& archive) {
    return messagefile::write(path, archive);
}

std::optional<QByteArray> MMWormholeFileTransiting::readFile(const std::filesystem::path& path) {
    return messagefile::read(path);
}

bool MMWormholeCoordinatedFileTransiting::writeFile(const std::filesystem::path& path, const QByteArray& archive) {
    bool isWritten = false;
    services().files.coordinate(path, [&] { isWritten = messagefile::write(path, archive); });
    return isWritten;
}

std::optional<QByteArray> MMWormholeCoordinatedFileTransiting::readFile(const std::filesystem::path& path) {
    std::optional<QByteArray> archive;
    services().files.coordinate(path, [&] { archive = messagefile::read(path); });
    return archive;
}

}  // namespace tavi
