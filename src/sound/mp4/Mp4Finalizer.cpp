#include "sound/mp4/Mp4Finalizer.h"

#include <unistd.h>

#include <cerrno>
#include <limits>

#include "sound/mp4/Mp4Description.h"
#include "sound/mp4/Mp4FragmentReader.h"
#include "sound/mp4/Mp4MovieWriter.h"

namespace tavi {

namespace {

/// Media time at which the sound starts: the encoder's priming.
std::int64_t startOf(const Mp4Track& track, std::uint64_t duration) {
    const std::int64_t start = track.edits.size() == 1 ? track.edits.front().start : 0;
    return start >= 0 && static_cast<std::uint64_t>(start) <= duration ? start : 0;
}

/// Appends to a file; the first error stays and ends the writing.
class Appender {
public:
    Appender(int fd, std::int64_t offset, const PwriteFunction& pwrite)
        : m_fd(fd), m_offset(offset), m_pwrite(pwrite) {}

    void append(std::span<const std::uint8_t> bytes) {
        if (m_error == 0) {
            m_error = writeFully(m_pwrite, m_fd, bytes.data(), bytes.size(), m_offset).error;
            m_offset += static_cast<std::int64_t>(bytes.size());
        }
    }
    int error() const { return m_error; }

private:
    int m_fd;
    std::int64_t m_offset;
    const PwriteFunction& m_pwrite;
    int m_error = 0;
};

/// The step that makes the file an ordinary one: everything up to the new movie header becomes media data.
int coverFragments(int fd, std::int64_t from, std::int64_t to, const PwriteFunction& pwrite, const SyncFunction& sync) {
    ByteWriter header;
    header.u32(1);
    header.u32(mp4Type("mdat"));
    header.u64(static_cast<std::uint64_t>(to - from));
    const WriteResult result = writeFully(pwrite, fd, header.data().data(), header.size(), from);
    return result.error == 0 && sync(fd) != 0 ? errno : result.error;
}

}  // namespace

FileResult<void> finalizeMp4(int fd, const PwriteFunction& pwrite, const SyncFunction& sync) {
    const auto movie = Mp4Movie::read(fd);
    if (!movie) {
        return fileFailure("This is no recording in an MP4 file.");
    }
    if (!movie->isFragmented && !movie->tracks.empty()) {
        return {};
    }
    const auto fragments = Mp4FragmentReader::open(fd, *movie);
    if (!fragments) {
        return tl::unexpected(fragments.error());
    }
    std::int64_t end = 0;
    const Mp4Runs runs = [&](const std::function<void(const Mp4Run&)>& visit) -> FileResult<void> {
        const auto read = fragments->forEachRun([&](const Mp4Run& run) {
            visit(run);
            return true;
        });
        end = read.value_or(0);
        return read ? FileResult<void>() : tl::unexpected(read.error());
    };
    const FileResult<Mp4Totals> totals = Mp4Totals::of(runs);
    if (!totals) {
        return tl::unexpected(totals.error());
    }
    const Mp4Track& track = movie->tracks.front();
    const auto description = Mp4Description::read(fd, track);
    if (!description || track.timeScale == 0 || totals->duration > std::numeric_limits<std::int64_t>::max()) {
        return fileFailure("The recording's header cannot be understood.");
    }
    const std::int64_t start = startOf(track, totals->duration);
    const auto userData = movie->readUserData(fd);
    const Mp4MovieDescription sound{track.timeScale, description->box(), userData, start,
                                    static_cast<std::int64_t>(totals->duration) - start};
    const std::int64_t fragmentsEnd = end;
    if (::ftruncate(fd, fragmentsEnd) != 0) {
        return fileFailure(writeErrorText(errno));
    }
    Appender appender(fd, fragmentsEnd, pwrite);
    const FileResult<void> appended =
        writeMp4Movie(sound, *totals, runs, [&](std::span<const std::uint8_t> bytes) { appender.append(bytes); });
    int error = appender.error();
    if (appended && error == 0) {
        error = sync(fd) != 0 ? errno : coverFragments(fd, movie->box.offset, fragmentsEnd, pwrite, sync);
        return error == 0 ? FileResult<void>() : fileFailure(writeErrorText(error));
    }
    // The file goes on as a fragmented one, without half a header at its end.
    const bool isRestored = ::ftruncate(fd, fragmentsEnd) == 0;
    return !appended && isRestored ? appended : fileFailure(writeErrorText(error != 0 ? error : EIO));
}

}  // namespace tavi
