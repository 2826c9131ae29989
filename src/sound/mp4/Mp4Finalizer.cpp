#include "sound/mp4/Mp4Finalizer.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <optional>

#include "sound/mp4/Mp4Boxes.h"
#include "sound/mp4/Mp4Fragments.h"
#include "sound/mp4/Mp4Tables.h"

namespace tavi {

namespace {

constexpr std::uint64_t kLargest32 = std::numeric_limits<std::uint32_t>::max();

/// What the first movie header says about the sound.
struct Movie {
    std::vector<Mp4Child> children;
    std::vector<Mp4Child> track;
    std::vector<Mp4Child> media;
    std::vector<Mp4Child> information;
    std::span<const std::uint8_t> description;
    std::uint32_t movieTimeScale = 0;
    std::uint32_t mediaTimeScale = 0;
    /// Media time at which the sound starts: the encoder's priming.
    std::uint64_t start = 0;
};

/// The time scale in the body of an mvhd or mdhd box.
std::uint32_t timeScale(std::span<const std::uint8_t> body) {
    Mp4Reader reader(body);
    const bool isLong = reader.u32() >> 24 == 1;
    reader.skip(isLong ? 16 : 8);
    return reader.u32();
}

std::uint64_t startTime(const std::vector<Mp4Child>& track) {
    const Mp4Child* edits = findMp4Child(track, mp4Type("edts"));
    const auto lists = edits != nullptr ? mp4Children(edits->body) : std::nullopt;
    const Mp4Child* list = lists ? findMp4Child(*lists, mp4Type("elst")) : nullptr;
    if (list == nullptr) {
        return 0;
    }
    Mp4Reader reader(list->body);
    const bool isLong = reader.u32() >> 24 == 1;
    const bool isSingle = reader.u32() == 1;
    reader.skip(isLong ? 8 : 4);
    const std::uint64_t time = isLong ? reader.u64() : reader.u32();
    return reader.ok() && isSingle && time <= kLargest32 / 2 ? time : 0;
}

bool childrenOf(const std::vector<Mp4Child>& parents, std::uint32_t type, std::vector<Mp4Child>& children) {
    const Mp4Child* parent = findMp4Child(parents, type);
    auto found = parent != nullptr ? mp4Children(parent->body) : std::nullopt;
    if (found) {
        children = std::move(*found);
    }
    return found.has_value();
}

std::optional<Movie> readMovie(std::span<const std::uint8_t> body) {
    Movie movie;
    std::vector<Mp4Child> tables;
    auto children = mp4Children(body);
    if (!children) {
        return std::nullopt;
    }
    movie.children = std::move(*children);
    if (!childrenOf(movie.children, mp4Type("trak"), movie.track) ||
        !childrenOf(movie.track, mp4Type("mdia"), movie.media) ||
        !childrenOf(movie.media, mp4Type("minf"), movie.information) ||
        !childrenOf(movie.information, mp4Type("stbl"), tables)) {
        return std::nullopt;
    }
    const Mp4Child* movieHeader = findMp4Child(movie.children, mp4Type("mvhd"));
    const Mp4Child* trackHeader = findMp4Child(movie.track, mp4Type("tkhd"));
    const Mp4Child* mediaHeader = findMp4Child(movie.media, mp4Type("mdhd"));
    const Mp4Child* description = findMp4Child(tables, mp4Type("stsd"));
    if (movieHeader == nullptr || trackHeader == nullptr || mediaHeader == nullptr || description == nullptr) {
        return std::nullopt;
    }
    movie.description = description->whole;
    movie.movieTimeScale = timeScale(movieHeader->body);
    movie.mediaTimeScale = timeScale(mediaHeader->body);
    movie.start = startTime(movie.track);
    return movie.movieTimeScale != 0 && movie.mediaTimeScale != 0 ? std::optional(std::move(movie)) : std::nullopt;
}

/// Copies an mvhd, tkhd or mdhd box with a new duration. Before the duration, and after the two dates, it has a time
/// scale, or a track number and four reserved bytes. Long durations take the box's second version with 64-bit times.
void writeHeader(Mp4Writer& writer, const Mp4Child& header, std::uint64_t duration) {
    Mp4Reader reader(header.body);
    const std::uint32_t versionAndFlags = reader.u32();
    const bool wasLong = versionAndFlags >> 24 == 1;
    const bool isLong = wasLong || duration > kLargest32;
    const auto copyTime = [&](std::uint64_t value) { isLong ? writer.u64(value) : writer.u32(value); };
    const auto readTime = [&] { return wasLong ? reader.u64() : reader.u32(); };
    writer.begin(header.type);
    writer.u32((versionAndFlags & 0xffffff) | (isLong ? 1U << 24 : 0U));
    copyTime(readTime());
    copyTime(readTime());
    writer.bytes(reader.take(header.type == mp4Type("tkhd") ? 8 : 4));
    readTime();
    copyTime(duration);
    writer.bytes(reader.rest());
    writer.end();
}

void writeEditList(Mp4Writer& writer, std::uint64_t duration, std::uint64_t start) {
    const bool isLong = duration > kLargest32;
    writer.begin(mp4Type("edts"));
    writer.begin(mp4Type("elst"));
    writer.u32(isLong ? 1U << 24 : 0U);
    writer.u32(1);
    isLong ? writer.u64(duration) : writer.u32(duration);
    isLong ? writer.u64(start) : writer.u32(start);
    writer.u32(1U << 16);
    writer.end();
    writer.end();
}

/// Copies every child but those of the given types.
void copyOthers(Mp4Writer& writer, const std::vector<Mp4Child>& children, std::initializer_list<std::uint32_t> types) {
    for (const Mp4Child& child : children) {
        if (std::find(types.begin(), types.end(), child.type) == types.end()) {
            writer.bytes(child.whole);
        }
    }
}

/// The movie header up to where the tables begin: they are the last thing in every box around them.
Mp4Writer writeMovie(const Movie& movie, const Mp4Totals& totals) {
    const std::uint64_t played = totals.duration > movie.start ? totals.duration - movie.start : 0;
    // Quotient and remainder apart, so that no length overflows.
    const std::uint64_t duration = played / movie.mediaTimeScale * movie.movieTimeScale +
                                   played % movie.mediaTimeScale * movie.movieTimeScale / movie.mediaTimeScale;
    const std::uint64_t tables = totals.tableBytes();
    Mp4Writer writer;
    writer.begin(mp4Type("moov"));
    writeHeader(writer, *findMp4Child(movie.children, mp4Type("mvhd")), duration);
    copyOthers(writer, movie.children, {mp4Type("mvhd"), mp4Type("trak"), mp4Type("mvex")});
    writer.begin(mp4Type("trak"));
    writeHeader(writer, *findMp4Child(movie.track, mp4Type("tkhd")), duration);
    if (played > 0) {
        writeEditList(writer, duration, movie.start);
    }
    copyOthers(writer, movie.track, {mp4Type("tkhd"), mp4Type("edts"), mp4Type("mdia")});
    writer.begin(mp4Type("mdia"));
    writeHeader(writer, *findMp4Child(movie.media, mp4Type("mdhd")), totals.duration);
    copyOthers(writer, movie.media, {mp4Type("mdhd"), mp4Type("minf")});
    writer.begin(mp4Type("minf"));
    copyOthers(writer, movie.information, {mp4Type("stbl")});
    writer.begin(mp4Type("stbl"));
    writer.bytes(movie.description);
    for (int open = 5; open > 0; --open) {
        writer.end(tables);
    }
    return writer;
}

/// The step that makes the file an ordinary one: everything up to the new movie header becomes media data.
int coverFragments(int fd, std::int64_t from, std::int64_t to, const PwriteFunction& pwrite) {
    Mp4Writer header;
    header.u32(1);
    header.u32(mp4Type("mdat"));
    header.u64(static_cast<std::uint64_t>(to - from));
    const WriteResult result = writeFully(pwrite, fd, header.data().data(), header.data().size(), from);
    return result.error == 0 && ::fsync(fd) != 0 ? errno : result.error;
}

}  // namespace

FileResult<void> Mp4Finalizer::finalize(int fd, const PwriteFunction& pwrite) {
    if (Mp4Fragments::isOrdinary(fd)) {
        return {};
    }
    const FileResult<Mp4Fragments> fragments = Mp4Fragments::open(fd);
    if (!fragments) {
        return tl::unexpected(fragments.error());
    }
    const FileResult<Mp4Totals> totals = Mp4Totals::of(*fragments);
    if (!totals) {
        return tl::unexpected(totals.error());
    }
    const std::optional<Movie> movie = readMovie(fragments->movie());
    if (!movie || totals->tableBytes() > kLargest32 / 2) {
        return fileFailure("The recording's header cannot be understood.");
    }
    if (::ftruncate(fd, totals->end) != 0) {
        return fileFailure(writeErrorText(errno));
    }
    Mp4Appender appender(fd, totals->end, pwrite);
    appender.bytes(writeMovie(*movie, *totals).data());
    const FileResult<void> appended = appendMp4Tables(appender, *fragments, *totals);
    appender.flush();
    int error = appender.error();
    if (appended && error == 0) {
        error = ::fsync(fd) != 0 ? errno : coverFragments(fd, fragments->movieOffset(), totals->end, pwrite);
        return error == 0 ? FileResult<void>() : fileFailure(writeErrorText(error));
    }
    // The file goes on as a fragmented one, without half a header at its end.
    const bool isRestored = ::ftruncate(fd, totals->end) == 0;
    return !appended && isRestored ? appended : fileFailure(writeErrorText(error != 0 ? error : EIO));
}

FileResult<void> Mp4Finalizer::finalize(const std::filesystem::path& path) {
    const FileDescriptor file = FileDescriptor::open(path.native(), O_RDWR);
    return file.isValid() ? finalize(file.get()) : fileFailure(writeErrorText(errno));
}

}  // namespace tavi
