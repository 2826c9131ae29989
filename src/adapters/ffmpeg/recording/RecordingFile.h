#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>

#include "files/BackgroundSync.h"
#include "files/FileDescriptor.h"
#include "files/PositionedIo.h"
#include "platform/Error.h"

namespace tavi {

/// The file that a recording grows into. One thread at a time.
///
/// It holds a reserve of a few MiB of the same disk. When the disk fills up the reserve is given back, so that the
/// bytes that did not fit are stored after all, and there is room to complete the file.
///
/// Errors are remembered, not returned: the container writer above would drop what it writes after a failure, the
/// completed headers among it. After an error that could not be cured the file no longer grows, but what it holds can
/// still be overwritten.
class RecordingFile {
public:
    /// Makes a file that must not exist yet.
    static Result<std::unique_ptr<RecordingFile>> create(const std::filesystem::path& path,
                                                         PwriteFunction pwrite = systemPwrite(),
                                                         SyncFunction sync = systemSync());

    /// Writes at the position and moves it on by size in any case.
    void write(const void* data, std::size_t size);
    void seek(std::int64_t position) { m_position = position; }
    std::int64_t position() const { return m_position; }
    /// Bytes that are really there.
    std::int64_t size() const { return m_size; }
    int fd() const { return m_file.get(); }
    const PwriteFunction& pwrite() const { return m_pwrite; }

    /// The first errno that a write met, cured or not; 0 when there was none.
    int error() const { return m_error; }
    /// Bytes were lost: the file ends before what was written.
    bool isBroken() const { return m_broken; }

    /// Drops what stands behind that many bytes.
    void shorten(std::int64_t size);
    /// Gives the reserve back.
    void releaseReserve() { m_reserve.close(); }
    /// Has what is in the file by now brought to the disk, on another thread.
    void beginSync() { m_background->begin(); }
    /// Waits for that; its error is told by sync().
    void waitForSync() { m_background->finish(); }
    /// Brings the file and its entry in the folder to the disk. The errno of what failed, before, too, or 0.
    int sync();

private:
    RecordingFile(FileDescriptor file, std::filesystem::path folder, PwriteFunction pwrite, SyncFunction sync);

    void makeReserve();

    FileDescriptor m_file;
    FileDescriptor m_reserve;
    std::filesystem::path m_folder;
    PwriteFunction m_pwrite;
    std::int64_t m_position = 0;
    std::int64_t m_size = 0;
    int m_error = 0;
    bool m_broken = false;
    /// Ends before the descriptor is closed.
    std::unique_ptr<BackgroundSync> m_background;
};

}  // namespace tavi
