#include "library/ImportInbox.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "files/DurableFile.h"
#include "files/FileMove.h"
#include "files/FileNames.h"
#include "files/LockedFolder.h"
#include "files/PositionedIo.h"

namespace tavi::importinbox {

namespace {

namespace fs = std::filesystem;

/// How the folders are named that are made here.
constexpr std::string_view kOwn = "tavi-import-";
constexpr std::size_t kBlock = std::size_t{1} << 20;

/// Whether something is a folder, and no link to one.
bool isFolder(const fs::path& path) {
    struct stat attributes = {};
    if (::lstat(path.c_str(), &attributes) != 0) {
        return false;
    }
    errno = ENOTDIR;
    return S_ISDIR(attributes.st_mode);
}

/// A folder of its own in "Inbox". Where the file system has locks for folders, it is locked until this goes; the
/// folder and what is in it go with this, too.
class OwnFolder {
public:
    OwnFolder() = default;
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;
    ~OwnFolder() {
        std::error_code ignored;
        if (!m_path.empty()) {
            fs::remove_all(m_path, ignored);
        }
    }

    /// 0 or an errno value.
    int make(const fs::path& documents) {
        const fs::path inbox = documents / foldername::kInbox;
        for (;;) {
            if (::mkdir(inbox.c_str(), 0700) != 0 && errno != EEXIST) {
                return errno;
            }
            std::string name = inbox / kOwn;
            name += "XXXXXX";
            if (!isFolder(inbox) || ::mkdtemp(name.data()) == nullptr) {
                return errno;
            }
            m_lock = LockedFolder::lock(name);
            // Whoever looks for what was left may have taken a new folder for that.
            if (m_lock || (errno != EWOULDBLOCK && errno != ENOENT)) {
                m_path = name;
                return 0;
            }
        }
    }

    const fs::path& path() const { return m_path; }

private:
    fs::path m_path;
    std::optional<LockedFolder> m_lock;
};

/// The folder in which a file lies, without links and "..", if that is "Inbox" or below it; empty where it is not.
fs::path inboxFolderOf(const fs::path& documents, const fs::path& file) {
    std::error_code error;
    // An "Inbox" that is a link leads elsewhere, and what it leads to is no inbox.
    const fs::path inbox = fs::canonical(documents, error) / foldername::kInbox;
    fs::path folder = error ? fs::path() : fs::canonical(folderOf(file), error);
    if (error) {
        return {};
    }
    const auto [end, at] = std::mismatch(inbox.begin(), inbox.end(), folder.begin(), folder.end());
    return end == inbox.end() ? folder : fs::path();
}

/// Gives a file in "Inbox" its name among the recordings. 0 or an errno value.
int moveOver(const fs::path& file, const fs::path& to) {
    struct stat attributes = {};
    if (::lstat(file.c_str(), &attributes) != 0) {
        return errno;
    }
    const int error = S_ISREG(attributes.st_mode) ? renameWithoutReplacing(file, to) : EXDEV;
    if (error == EXDEV) {
        return copyItem(file, to);
    }
    // It is whole under one of its two names, whatever comes: not being able to hurry the disk is no failure.
    if (error == 0) {
        synchronizeFolder(folderOf(to));
    }
    return error;
}

}  // namespace

int refusal(const fs::path& documents, const fs::path& file) {
    struct stat attributes = {};
    if (::stat(file.c_str(), &attributes) != 0) {
        return errno;
    }
    if (!S_ISREG(attributes.st_mode)) {
        return S_ISDIR(attributes.st_mode) ? EISDIR : EINVAL;
    }
    if (::access(file.c_str(), R_OK) != 0) {
        return errno;
    }
    return !isRecordingName(file.filename()) || existsAt(documents / file.filename()) ? EEXIST : 0;
}

int bringIn(const fs::path& documents, const fs::path& file, const CopyWatch& watch) {
    if (const int error = refusal(documents, file)) {
        return error;
    }
    OwnFolder folder;
    if (const int error = folder.make(documents)) {
        return error;
    }
    const fs::path incoming = folder.path() / file.filename();
    if (const int error = copyItem(file, incoming, watch)) {
        return error;
    }
    return takeOver(documents, incoming);
}

int takeOver(const fs::path& documents, const fs::path& file) {
    const fs::path name = file.filename();
    const fs::path folder = inboxFolderOf(documents, file);
    if (name.empty() || name == "." || name == "..") {
        return EISDIR;
    }
    const fs::path to = documents / name;
    const int error = !isRecordingName(name) ? EEXIST : folder.empty() ? copyItem(file, to) : moveOver(file, to);
    // What could not be copied, and is nowhere else, stays.
    const bool isDone = error == 0 || error == EEXIST;
    if (isDone && folder.filename() == foldername::kInbox) {
        removeAt(folder / name);
        ::rmdir(folder.c_str());
    } else if (isDone && !folder.empty()) {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
    return error;
}

int save(const fs::path& documents, const fs::path& name, const FileContents& data) {
    if (!isRecordingName(name)) {
        return EINVAL;
    }
    DurableFile file = DurableFile::create(documents / name);
    if (!file.isValid()) {
        return errno;
    }
    std::vector<char> block(kBlock);
    for (std::uint64_t offset = 0; offset < data.size();) {
        const std::size_t count = data.read(block.data(), block.size(), offset);
        if (count == 0) {
            return EIO;
        }
        if (const int error =
                writeFully(::pwrite, file.fd(), block.data(), count, static_cast<std::int64_t>(offset)).error) {
            return error;
        }
        offset += count;
    }
    return file.publish();
}

void removeLeftovers(const fs::path& documents) {
    const fs::path inbox = documents / foldername::kInbox;
    if (!isFolder(inbox)) {
        return;
    }
    std::error_code error;
    for (fs::directory_iterator item(inbox, error), end; !error && item != end; item.increment(error)) {
        if (!item->path().filename().native().starts_with(kOwn)) {
            continue;
        }
        // What is being imported is locked.
        if (auto folder = LockedFolder::lock(item->path())) {
            for (const fs::path& file : folder->files()) {
                removeAt(file);
            }
            folder->remove();
        }
    }
}

}  // namespace tavi::importinbox
