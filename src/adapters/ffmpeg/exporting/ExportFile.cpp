#include "adapters/ffmpeg/exporting/ExportFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <QUuid>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <system_error>

namespace tavi {

namespace {

/// What one read covers, gaps between the pieces included; little enough to stay in the processor's cache.
constexpr std::int64_t kWindowBytes = 512 * 1024;
constexpr auto kPrefix = ".tavi-export-";
/// Pieces of one gathering write, within the system's limit.
constexpr std::size_t kMaximumPieces = 512;

QString reason(int error) {
    if (error == ENOSPC || error == EDQUOT) {
        return QStringLiteral("The disk is full.");
    }
    return QStringLiteral("The file could not be written: ") +
           QString::fromStdString(std::generic_category().message(error));
}

/// Renames without replacing, also on file systems that lack the call for it. An errno value.
int renameExclusively(const char* from, const char* to) {
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) {
        return errno;
    }
    if (::link(from, to) == 0) {
        ::unlink(from);
        return 0;
    }
    if (errno == EEXIST) {
        return errno;
    }
    const FileDescriptor reserved = FileDescriptor::open(to, O_WRONLY | O_CREAT | O_EXCL, 0600);
    return reserved.isValid() && ::rename(from, to) == 0 ? 0 : errno;
}

/// Where files are made that shall have that path: beside it, or in the folder there that no list shows.
std::filesystem::path workFolderOf(const std::filesystem::path& path) {
    const std::filesystem::path folder = path.parent_path();
    const std::filesystem::path hidden = folder / "PrivateInbox";
    struct stat status = {};
    return ::stat(hidden.c_str(), &status) == 0 && S_ISDIR(status.st_mode) ? hidden : folder;
}

/// Removes what exports have left that were killed: nobody has written to it for a while.
void removeLeftovers(const std::filesystem::path& folder) {
    constexpr std::time_t kWhile = 3600;
    struct Closer {
        void operator()(DIR* directory) const { ::closedir(directory); }
    };
    const std::unique_ptr<DIR, Closer> directory(::opendir(folder.empty() ? "." : folder.c_str()));
    // No other thread reads this stream, which is all that readdir(3) asks for.
    while (const dirent* item = directory ? ::readdir(directory.get()) : nullptr) {  // NOLINT(concurrency-mt-unsafe)
        struct stat status = {};
        const std::filesystem::path path = folder / item->d_name;
        if (std::string_view(item->d_name).starts_with(kPrefix) && ::lstat(path.c_str(), &status) == 0 &&
            S_ISREG(status.st_mode) && std::time(nullptr) - status.st_mtim.tv_sec > kWhile) {
            ::unlink(path.c_str());
        }
    }
}

}  // namespace

Result<std::unique_ptr<ExportFile>> ExportFile::create(const std::filesystem::path& path) {
    struct stat status = {};
    if (path.empty() || path.native().find('\0') != std::string::npos) {
        return failure(QStringLiteral("There is no name for the new file."));
    }
    if (::lstat(path.c_str(), &status) == 0) {
        return failure(QStringLiteral("There is a file of that name already."));
    }
    const std::filesystem::path folder = workFolderOf(path);
    removeLeftovers(folder);
    const std::filesystem::path temporary =
        folder / (kPrefix + QUuid::createUuid().toByteArray(QUuid::Id128) + ".m4a").toStdString();
    FileDescriptor file = FileDescriptor::open(temporary, O_RDWR | O_CREAT | O_EXCL, 0666);
    if (!file.isValid()) {
        return failure(reason(errno));
    }
    return std::unique_ptr<ExportFile>(new ExportFile(std::move(file), temporary, path));
}

ExportFile::ExportFile(FileDescriptor file, std::filesystem::path temporary, std::filesystem::path path)
    : m_file(std::move(file)), m_temporary(std::move(temporary)), m_path(std::move(path)) {}

ExportFile::~ExportFile() {
    if (!m_temporary.empty()) {
        ::unlink(m_temporary.c_str());
    }
}

void ExportFile::discard() {
    m_file.reset();
    ::unlink(m_temporary.c_str());
}

void ExportFile::fail(const QString& text) {
    if (m_failure.isEmpty()) {
        m_failure = text;
    }
}

void ExportFile::append(std::span<const std::uint8_t> bytes) {
    flush();
    overwrite(bytes, m_size);
    m_size += static_cast<std::int64_t>(bytes.size());
}

void ExportFile::overwrite(std::span<const std::uint8_t> bytes, std::int64_t offset) {
    if (m_failure.isEmpty()) {
        const WriteResult result = writeFully(::pwrite, m_file.get(), bytes.data(), bytes.size(), offset);
        if (result.error != 0) {
            fail(reason(result.error));
        }
    }
}

void ExportFile::setControl(ExportControl& control, std::int64_t expectedBytes) {
    m_control = &control;
    m_expected = expectedBytes;
}

void ExportFile::advance(std::int64_t bytes) {
    m_size += bytes;
    m_copied += bytes;
    if (m_control != nullptr) {
        m_control->setProgress(static_cast<double>(m_copied) /
                               static_cast<double>(std::max({m_expected, m_copied, std::int64_t{1}})));
        if (m_control->isCancelled()) {
            fail(QStringLiteral("The export was cancelled."));
        }
    }
}

void ExportFile::copy(int source, std::int64_t offset, std::int64_t size) {
    if (source != m_source) {
        flush();
        m_source = source;
    }
    if (!m_pieces.empty() && m_pieces.back().offset + m_pieces.back().size == offset) {
        m_pieces.back().size += size;
    } else {
        const bool isNear = !m_pieces.empty() && offset >= m_pieces.back().offset + m_pieces.back().size &&
                            offset + size - m_pieces.front().offset <= kWindowBytes;
        if (!isNear || m_pieces.size() >= kMaximumPieces) {
            flush();
        }
        m_pieces.push_back({offset, size});
    }
    m_gathered += size;
    if (m_pieces.back().offset + m_pieces.back().size - m_pieces.front().offset > kWindowBytes) {
        flush();
    }
}

void ExportFile::flush() {
    if (m_failure.isEmpty() && m_pieces.size() == 1) {
        copyLong(m_pieces.front());
    } else if (m_failure.isEmpty() && !m_pieces.empty()) {
        const Piece last = m_pieces.back();
        if (last.offset + last.size - m_pieces.front().offset > kWindowBytes) {
            m_pieces.pop_back();
            writeGathered();
            copyLong(last);
        } else {
            writeGathered();
        }
    }
    m_pieces.clear();
    m_gathered = 0;
}

void ExportFile::writeGathered() {
    const std::int64_t start = m_pieces.front().offset;
    const auto span = static_cast<std::size_t>(m_pieces.back().offset + m_pieces.back().size - start);
    m_window.resize(std::max(m_window.size(), span));
    if (readFully(m_source, m_window.data(), span, start) < span) {
        return fail(QStringLiteral("The sound file became shorter while it was read."));
    }
    std::vector<iovec> vectors;
    vectors.reserve(m_pieces.size());
    std::size_t total = 0;
    for (const Piece& piece : m_pieces) {
        vectors.push_back({m_window.data() + (piece.offset - start), static_cast<std::size_t>(piece.size)});
        total += static_cast<std::size_t>(piece.size);
    }
    const ssize_t written = ::pwritev(m_file.get(), vectors.data(), static_cast<int>(vectors.size()), m_size);
    // What was cut short is written again piece by piece, to get its error.
    if (written < 0 || static_cast<std::size_t>(written) < total) {
        std::int64_t offset = m_size;
        for (const iovec& vector : vectors) {
            overwrite({static_cast<const std::uint8_t*>(vector.iov_base), vector.iov_len}, offset);
            offset += static_cast<std::int64_t>(vector.iov_len);
        }
    }
    advance(static_cast<std::int64_t>(total));
}

void ExportFile::copyLong(const Piece& piece) {
    m_window.resize(std::max(m_window.size(), static_cast<std::size_t>(kWindowBytes)));
    for (std::int64_t done = 0; done < piece.size && m_failure.isEmpty();) {
        const auto count = static_cast<std::size_t>(std::min(kWindowBytes, piece.size - done));
        if (readFully(m_source, m_window.data(), count, piece.offset + done) < count) {
            return fail(QStringLiteral("The sound file became shorter while it was read."));
        }
        overwrite({m_window.data(), count}, m_size);
        advance(static_cast<std::int64_t>(count));
        done += static_cast<std::int64_t>(count);
    }
}

Result<void> ExportFile::result() const {
    return m_failure.isEmpty() ? Result<void>() : failure(m_failure);
}

Result<void> ExportFile::publish(const ExportControl& control) {
    flush();
    if (!m_file.isValid()) {
        m_file = FileDescriptor::open(m_temporary, O_RDWR);
    }
    if (m_failure.isEmpty() && (!m_file.isValid() || ::fsync(m_file.get()) != 0)) {
        fail(reason(errno));
    }
    if (m_failure.isEmpty() && control.isCancelled()) {
        fail(QStringLiteral("The export was cancelled."));
    }
    if (!m_failure.isEmpty()) {
        return failure(m_failure);
    }
    if (const int error = renameExclusively(m_temporary.c_str(), m_path.c_str()); error != 0) {
        return failure(error == EEXIST ? QStringLiteral("There is a file of that name already.") : reason(error));
    }
    m_temporary.clear();
    // The name, too. Where that cannot be done the file is whole all the same.
    const FileDescriptor entry =
        FileDescriptor::open(m_path.has_parent_path() ? m_path.parent_path() : ".", O_RDONLY | O_DIRECTORY);
    if (entry.isValid()) {
        ::fsync(entry.get());
    }
    return {};
}

}  // namespace tavi
