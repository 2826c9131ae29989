#include "library/CloudCache.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QLoggingCategory>
#include <array>
#include <cerrno>
#include <ctime>
#include <fstream>
#include <sstream>
#include <vector>

#include "files/DurableFile.h"
#include "files/FileIdentity.h"
#include "files/FileMove.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcLibrary, "tavi.library", QtInfoMsg)

constexpr std::size_t kBlock = std::size_t{1} << 20U;
/// What was being written when the program was killed is nobody's, however new it is.
constexpr std::time_t kAnyAge = 1 << 20U;

std::string lineOf(const FileIdentity& identity) {
    std::ostringstream line;
    line << identity.device << ' ' << identity.node << ' ' << identity.size << ' ' << identity.seconds << ' '
         << identity.nanoseconds << '\n';
    return line.str();
}

bool haveSameDate(const FileIdentity& identity, const struct stat& attributes) {
    return identity.size == attributes.st_size && identity.seconds == attributes.st_mtim.tv_sec &&
           identity.nanoseconds == attributes.st_mtim.tv_nsec;
}

/// Without the device: many file systems have another number after each start of the machine.
FileIdentity lastingIdentity(struct stat attributes) {
    attributes.st_dev = 0;
    return FileIdentity(attributes);
}

/// Of the entry itself, be it a link.
std::optional<FileIdentity> identityAt(const std::filesystem::path& path) {
    struct stat attributes = {};
    return ::lstat(path.c_str(), &attributes) == 0 ? std::optional(lastingIdentity(attributes)) : std::nullopt;
}

bool writeAll(int fd, const FileContents& contents) {
    std::vector<char> block(kBlock);
    for (std::uint64_t at = 0; at < contents.size();) {
        const std::size_t count = contents.read(block.data(), block.size(), at);
        for (std::size_t done = 0; done < count;) {
            const ssize_t written = ::write(fd, block.data() + done, count - done);
            if (written < 0 && errno != EINTR) {
                return false;
            }
            done += written > 0 ? static_cast<std::size_t>(written) : 0;
        }
        at += count;
        if (count == 0) {
            errno = EIO;
            return false;
        }
    }
    return true;
}

}  // namespace

std::filesystem::path CloudCache::folder() const {
    return m_documents / foldername::kCloud;
}

bool CloudCache::moveAmongRecordings(const std::filesystem::path& path) const {
    return moveItem(path, freePath(m_documents / path.filename())).has_value();
}

void CloudCache::read() {
    if (!m_made) {
        m_made.emplace();
        std::ifstream file(m_record);
        for (FileIdentity each; file >> each.device >> each.node >> each.size >> each.seconds >> each.nanoseconds;) {
            each.device = 0;
            m_made->insert(each);
        }
    }
}

bool CloudCache::empty(const std::optional<std::set<std::filesystem::path>>& staying) {
    const std::lock_guard lock(m_mutex);
    read();
    bool hasMoved = false;
    removeLeftovers(folder(), std::time(nullptr) + kAnyAge);
    std::error_code error;
    std::vector<std::filesystem::path> entries;
    for (std::filesystem::directory_iterator entry(folder(), error), end; !error && entry != end;
         entry.increment(error)) {
        entries.push_back(entry->path());
    }
    Identities left;
    std::string lines;
    const auto keep = [&left, &lines](const FileIdentity& identity) {
        left.insert(identity);
        lines += lineOf(identity);
    };
    for (const std::filesystem::path& path : entries) {
        const auto identity = identityAt(path);
        const bool isOurs = identity && m_made->contains(*identity);
        if (staying && (!isOurs || staying->contains(path.filename()))) {
            isOurs ? keep(*identity) : void();
            continue;
        }
        const bool isDone = isOurs ? ::unlink(path.c_str()) == 0 : moveAmongRecordings(path);
        hasMoved = hasMoved || (isDone && !isOurs);
        isOurs && !isDone ? keep(*identity) : void();
        qCInfo(lcLibrary, "%s", isDone ? "done" : "failed");
    }
    m_made = std::move(left);
    // In one step: a record that is cut off would make the user's own of what is left.
    removeLeftovers(m_record.parent_path(), std::time(nullptr));
    DurableFile record = DurableFile::create(m_record, {}, Existing::Replace);
    if (!record.isValid() || !writeAll(record.fd(), FileContents(lines)) || record.publish() != 0) {
        qCWarning(lcLibrary, "%s: not written", m_record.c_str());
    }
    return hasMoved;
}

int CloudCache::write(const std::filesystem::path& name, const FileContents& contents,
                      const std::filesystem::path& url) {
    const std::lock_guard lock(m_mutex);
    read();
    std::error_code error;
    std::filesystem::create_directories(folder(), error);
    const std::filesystem::path path = folder() / name;
    struct stat attributes = {};
    const bool isDated = !url.empty() && ::stat(url.c_str(), &attributes) == 0;
    if (const auto identity = identityAt(path)) {
        const bool isOurs = m_made->contains(*identity);
        if (isOurs && isDated && haveSameDate(*identity, attributes)) {
            return 0;
        }
        if (!isOurs && !moveAmongRecordings(path)) {
            return EEXIST;
        }
    }
    DurableFile file = DurableFile::create(path, {}, Existing::Replace);
    if (!file.isValid() || !writeAll(file.fd(), contents)) {
        return errno;
    }
    const std::array<timespec, 2> times{attributes.st_atim, attributes.st_mtim};
    if ((isDated && ::futimens(file.fd(), times.data()) != 0) || ::fstat(file.fd(), &attributes) != 0) {
        return errno;
    }
    // Noted before it has its name, so that nobody takes it for the user's own after a kill.
    const FileIdentity made = lastingIdentity(attributes);
    if (!(std::ofstream(m_record, std::ios::app) << lineOf(made) << std::flush)) {
        return EIO;
    }
    m_made->insert(made);
    return file.publish(Disk::Later);
}

}  // namespace tavi
