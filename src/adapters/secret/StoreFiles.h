#pragma once

#include <QByteArray>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <tl/expected.hpp>

#include "adapters/secret/ItemStore.h"
#include "files/FileDescriptor.h"
#include "platform/AppContainer.h"

namespace tavi {

/// Where a keychain has its files.
struct StorePlaces {
    /// Those of the program in this container.
    static StorePlaces of(const AppContainer& container) {
        return {.folder = container.preferencesPath(), .key = container.unsavedPath().parent_path() / "keychain.key"};
    }

    /// A folder for the user alone: "keychain.sealed" there holds the items, unless "keychain.keyring" says that the
    /// desktop's keyring does; "keychain.lock" is locked by whoever writes.
    std::filesystem::path folder;
    /// The key to the sealed file, in a folder that is copied elsewhere less readily than the first one.
    std::filesystem::path key;

    std::filesystem::path sealed() const { return folder / "keychain.sealed"; }
    std::filesystem::path keyring() const { return folder / "keychain.keyring"; }
    std::filesystem::path lock() const { return folder / "keychain.lock"; }
};

/// Keeps other programs from writing, while it lives.
class StoreLock {
public:
    /// Waits two seconds at most, or until it is to stop. An errno value where the lock cannot be had.
    static tl::expected<StoreLock, int> take(const std::filesystem::path& path, const std::stop_token& stop);

private:
    explicit StoreLock(FileDescriptor file) : m_file(std::move(file)) {}

    FileDescriptor m_file;
};

/// The bytes of a file that is for the user alone; nothing where there is none. A link, a folder, another user's file
/// and one that cannot be read are foreign; one of more than 64 MB is damaged. What others may read is closed to them.
tl::expected<std::optional<QByteArray>, StoreTrouble> readPrivateFile(const std::filesystem::path& path);

/// Puts a file of these bytes, for the user alone, in the place of what is there: all of it is on the disk when this
/// returns, or the old one is as it was. While the lock is held. 0 or an errno value.
int replacePrivateFile(const std::filesystem::path& path, const QByteArray& bytes);

/// Removes the file, for good when this returns.
void removePrivateFile(const std::filesystem::path& path);

/// Overwrites what should not stay in memory.
void wipe(QByteArray& bytes);

}  // namespace tavi
