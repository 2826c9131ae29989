#include "adapters/secret/StoreFiles.h"

#include <fcntl.h>
#include <sodium.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <thread>

#include "files/DurableFile.h"
#include "files/FileNames.h"
#include "files/PathText.h"
#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr auto kLockPatience = std::chrono::seconds(2);
constexpr std::int64_t kMaximumSize = 64 << 20;
constexpr mode_t kOthers = S_IRWXG | S_IRWXO;

}  // namespace

tl::expected<StoreLock, int> StoreLock::take(const std::filesystem::path& path, const std::stop_token& stop) {
    FileDescriptor file = FileDescriptor::open(path, O_RDWR | O_CREAT | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (!file.isValid()) {
        return tl::unexpected(errno);
    }
    const auto end = std::chrono::steady_clock::now() + kLockPatience;
    while (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK || stop.stop_requested() || std::chrono::steady_clock::now() > end) {
            return tl::unexpected(errno);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return StoreLock(std::move(file));
}

tl::expected<std::optional<QByteArray>, StoreTrouble> readPrivateFile(const std::filesystem::path& path) {
    const auto trouble = [&path](StoreTrouble::Kind kind) {
        return tl::unexpected(StoreTrouble{.kind = kind, .detail = pathText(path)});
    };
    const FileDescriptor file = FileDescriptor::open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (!file.isValid()) {
        if (errno == ENOENT) {
            return std::nullopt;
        }
        return trouble(StoreTrouble::Kind::FileForeign);
    }
    struct stat attributes = {};
    if (::fstat(file.get(), &attributes) != 0 || !S_ISREG(attributes.st_mode) || attributes.st_uid != ::geteuid()) {
        return trouble(StoreTrouble::Kind::FileForeign);
    }
    if (attributes.st_size > kMaximumSize) {
        return trouble(StoreTrouble::Kind::FileDamaged);
    }
    if ((attributes.st_mode & kOthers) != 0) {
        ::fchmod(file.get(), S_IRUSR | S_IWUSR);
    }
    QByteArray bytes(attributes.st_size, Qt::Uninitialized);
    if (readFully(file.get(), bytes.data(), static_cast<std::size_t>(bytes.size()), 0) !=
        static_cast<std::size_t>(bytes.size())) {
        return trouble(StoreTrouble::Kind::FileDamaged);
    }
    return bytes;
}

int replacePrivateFile(const std::filesystem::path& path, const QByteArray& bytes) {
    std::filesystem::path temporary = path;
    temporary += ".new";
    // What a killed program has left: nobody else is at it.
    removeAt(temporary);
    FileDescriptor file = FileDescriptor::open(temporary, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (!file.isValid()) {
        return errno;
    }
    int error =
        writeFully(systemPwrite(), file.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()), 0).error;
    if (error == 0 && ::fsync(file.get()) != 0) {
        error = errno;
    }
    if (const int closing = file.close(); error == 0) {
        error = closing;
    }
    if (error == 0 && ::rename(temporary.c_str(), path.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        removeAt(temporary);
        return error;
    }
    return synchronizeFolder(folderOf(path));
}

void removePrivateFile(const std::filesystem::path& path) {
    removeAt(path);
    synchronizeFolder(folderOf(path));
}

void wipe(QByteArray& bytes) {
    sodium_memzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
}

}  // namespace tavi
