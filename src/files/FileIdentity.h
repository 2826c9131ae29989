#pragma once

#include <sys/stat.h>

#include <QByteArray>
#include <QHashFunctions>
#include <optional>

namespace tavi {

/// A file and its contents, as far as the file system tells them apart. Any thread.
struct FileIdentity {
    /// Of no file.
    FileIdentity() = default;
    explicit FileIdentity(const struct stat& attributes)
        : device(attributes.st_dev),
          node(attributes.st_ino),
          size(attributes.st_size),
          seconds(attributes.st_mtim.tv_sec),
          nanoseconds(attributes.st_mtim.tv_nsec) {}

    /// Of what is at a path, given in the file system's bytes; nothing where there is nothing.
    static std::optional<FileIdentity> at(const QByteArray& path) {
        struct stat attributes = {};
        return ::stat(path.constData(), &attributes) == 0 ? std::optional(FileIdentity(attributes)) : std::nullopt;
    }

    bool operator==(const FileIdentity&) const = default;
    friend std::size_t qHash(const FileIdentity& identity, std::size_t seed) {
        return qHashMulti(seed, identity.node, identity.size, identity.seconds, identity.nanoseconds);
    }

    quint64 device = 0;
    quint64 node = 0;
    qint64 size = 0;
    qint64 seconds = 0;
    qint64 nanoseconds = 0;
};

}  // namespace tavi
