#include "adapters/ffmpeg/recording/RecordingFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "files/DurableFile.h"
#include "files/FileError.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

/// Enough for some seconds of any format and for the index of a recording of a day.
constexpr off_t kReserveBytes = off_t{4} << 20;

bool isDiskFull(int error) {
    return error == ENOSPC || error == EDQUOT;
}

}  // namespace

Result<std::unique_ptr<RecordingFile>> RecordingFile::create(const std::filesystem::path& path, PwriteFunction pwrite,
                                                             SyncFunction sync) {
    FileDescriptor file = FileDescriptor::open(path, O_RDWR | O_CREAT | O_EXCL, 0666);
    if (!file.isValid()) {
        return failure(isDiskFull(errno) ? QString::fromStdString(writeErrorText(errno))
                                         : QStringLiteral("The recording could not be created: ") +
                                               QString::fromStdString(std::generic_category().message(errno)));
    }
    return std::unique_ptr<RecordingFile>(
        new RecordingFile(std::move(file), folderOf(path), std::move(pwrite), std::move(sync)));
}

RecordingFile::RecordingFile(FileDescriptor file, std::filesystem::path folder, PwriteFunction pwrite,
                             SyncFunction sync)
    : m_file(std::move(file)),
      m_folder(std::move(folder)),
      m_pwrite(std::move(pwrite)),
      m_background(std::make_unique<BackgroundSync>(m_file.get(), m_folder, std::move(sync))) {
    makeReserve();
}

void RecordingFile::makeReserve() {
    // fallocate(2) rather than posix_fallocate(3), which would write zeros where the file system cannot reserve.
    m_reserve = FileDescriptor::open(m_folder, O_TMPFILE | O_RDWR, 0600);
    if (m_reserve.isValid() && ::fallocate(m_reserve.get(), 0, 0, kReserveBytes) != 0) {
        m_reserve.close();
    }
}

void RecordingFile::write(const void* data, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    const std::int64_t start = m_position;
    m_position += static_cast<std::int64_t>(size);
    if (m_broken) {
        // What was lost leaves no hole behind it.
        size = static_cast<std::size_t>(std::clamp<std::int64_t>(m_size - start, 0, static_cast<std::int64_t>(size)));
    }
    WriteResult result = writeFully(m_pwrite, m_file.get(), bytes, size, start);
    if (isDiskFull(result.error) && m_reserve.isValid()) {
        m_error = m_error != 0 ? m_error : result.error;
        releaseReserve();
        const std::size_t done = result.written;
        result = writeFully(m_pwrite, m_file.get(), bytes + done, size - done, start + static_cast<std::int64_t>(done));
        result.written += done;
    }
    m_size = std::max(m_size, start + static_cast<std::int64_t>(result.written));
    if (result.error != 0) {
        m_error = m_error != 0 ? m_error : result.error;
        m_broken = true;
    }
}

void RecordingFile::shorten(std::int64_t size) {
    if (size < m_size && ::ftruncate(m_file.get(), size) == 0) {
        m_size = size;
    }
}

int RecordingFile::sync() {
    // The system tells a failure once: whoever asks next hears of none.
    const int error = m_background->finish();
    return error != 0 ? error : synchronize(m_file.get(), m_folder);
}

}  // namespace tavi
