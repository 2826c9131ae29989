#pragma once

#include <optional>

#include "watch/MMWormholeServices.h"
#include "watch/MMWormholeTransiting.h"
#include "watch/MessageFile.h"

namespace tavi {

/// A message is a file with its archive, IDENTIFIER.archive, in the folder that the programs of a group share.
class MMWormholeFileTransiting : public MMWormholeTransiting {
public:
    /// With an empty directory the messages lie in the group's folder itself. Without a group, or with a directory that
    /// is more than one name, there is no folder. Services must outlive this.
    MMWormholeFileTransiting(const MMWormholeServices& services, QString applicationGroupIdentifier,
                             QString directory = {});
    /// With a group that is nobody's, so that the misuse shows.
    explicit MMWormholeFileTransiting(const MMWormholeServices& services);

    const QString& applicationGroupIdentifier() const { return m_applicationGroupIdentifier; }
    const QString& directory() const { return m_directory; }

    /// The folder of the messages, which is made; nothing where there is none.
    std::optional<std::filesystem::path> messagePassingDirectoryPath() const;
    /// The file of a message; nothing for an identifier that cannot name one.
    std::optional<std::filesystem::path> filePathForIdentifier(const QString& identifier) const;

    /// True for nothing as well, which changes no file: listeners read what was there before.
    bool writeMessageObject(const QVariant& message, const QString& identifier) override;
    QVariant messageObjectForIdentifier(const QString& identifier) override;
    void deleteContentForIdentifier(const QString& identifier) override;
    /// Only where a directory was given, on purpose: the group's folder holds more than messages.
    void deleteContentForAllMessages() override;

protected:
    const MMWormholeServices& services() const { return m_services; }
    /// The archive of a message; nothing where it cannot be archived, or has more bytes than that.
    std::optional<QByteArray> archived(const QVariant& message, qint64 most = messagefile::kMostMessageBytes) const;
    /// The message of an archive; an invalid variant for anything else.
    QVariant unarchived(const QByteArray& archive) const;
    /// Writes and reads the file of an archive.
    virtual bool writeFile(const std::filesystem::path& path, const QByteArray& archive);
    virtual std::optional<QByteArray> readFile(const std::filesystem::path& path);

private:
    /// Looks at nothing: what a group may be is the system's to say.
    void checkAppGroupCapabilities() const {}

    const MMWormholeServices m_services;
    const QString m_applicationGroupIdentifier;
    const QString m_directory;
};

/// The same, and one program at a time at a message's file.
class MMWormholeCoordinatedFileTransiting : public MMWormholeFileTransiting {
public:
    using MMWormholeFileTransiting::MMWormholeFileTransiting;

protected:
    bool writeFile(const std::filesystem::path& path, const QByteArray& archive) override;
    std::optional<QByteArray> readFile(const std::filesystem::path& path) override;
};

}  // namespace tavi
