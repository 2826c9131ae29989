#include "adapters/local/LocalCoordinatedFiles.h"

#include <fcntl.h>

#include <string>
#include <thread>

#include "files/FileDescriptor.h"
#include "files/FileIdentity.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

constexpr auto kPause = std::chrono::milliseconds(2);

/// The same for every way to write the path of the file's folder. Two files that share a byte by chance only wait for
/// each other.
off_t byteOf(const std::filesystem::path& file) {
    std::string text = file.string();
    if (const auto folder = FileIdentity::at(folderOf(file))) {
        text = std::to_string(folder->device) + '/' + std::to_string(folder->node) + '/' + file.filename().string();
    }
    // By a rule of our own: two programs may have been built with different libraries.
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char letter : text) {
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3U;
    }
    return static_cast<off_t>(hash & 0x3fffffffffffffffU);
}

/// Whether the open file is still the one that everybody else would open.
bool isStillAt(const std::filesystem::path& path, int fd) {
    struct stat attributes = {};
    const auto there = FileIdentity::at(path);
    return ::fstat(fd, &attributes) == 0 && there && there->node == attributes.st_ino &&
           there->device == attributes.st_dev;
}

}  // namespace

bool LocalCoordinatedFiles::coordinate(const std::filesystem::path& file, const std::function<void()>& accessor) {
    const auto end = std::chrono::steady_clock::now() + m_patience;
    const off_t byte = byteOf(file);
    while (true) {
        // Opened anew each time: such a lock belongs to what was opened, so it also keeps other threads out.
        const FileDescriptor lock = FileDescriptor::open(m_lockFile, O_RDWR | O_CREAT, 0600);
        if (!lock.isValid()) {
            return false;
        }
        struct flock range = {};
        range.l_type = F_WRLCK;
        range.l_whence = SEEK_SET;
        range.l_start = byte;
        range.l_len = 1;
        if (::fcntl(lock.get(), F_OFD_SETLK, &range) == 0 && isStillAt(m_lockFile, lock.get())) {
            accessor();
            return true;
        }
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(kPause);
    }
}

}  // namespace tavi
