#include "sound/SoundRepair.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "platform/AudioTypes.h"
#include "sound/HeaderDuration.h"
#include "sound/adts/AdtsStream.h"
#include "sound/caf/CafHeader.h"
#include "sound/io/Bytes.h"
#include "sound/mp4/Mp4Finalizer.h"
#include "sound/mp4/Mp4Movie.h"
#include "sound/wav/WavHeader.h"

namespace tavi {

namespace {

/// More than a power cut leaves of any recording.
constexpr std::int64_t kMostZeros = std::int64_t{16} << 20;
constexpr double kMostZeroSeconds = 10;
/// A file of less than this may be a header and nothing else.
constexpr std::int64_t kMuch = std::int64_t{64} * 1024;

FileResult<void> resultOfErrno(int error) {
    return error == 0 ? FileResult<void>() : fileFailure(writeErrorText(error));
}

FileResult<void> cut(int fd, std::int64_t size) {
    return resultOfErrno(regularFileSize(fd) <= size || ::ftruncate(fd, size) == 0 ? 0 : errno);
}

FileResult<void> overwrite(int fd, const PwriteFunction& pwrite, std::span<const std::uint8_t> bytes,
                           std::int64_t offset) {
    return resultOfErrno(writeFully(pwrite, fd, bytes.data(), bytes.size(), offset).error);
}

/// Where the zeros begin that end the file. The size of the file where it ends in few or more than so many, and where
/// nothing else stands behind the start.
std::int64_t endBeforeZeros(int fd, std::int64_t start, std::int64_t most) {
    // A codec's packets end in fewer.
    constexpr std::int64_t kFewestZeros = 64;
    const std::int64_t size = regularFileSize(fd);
    std::vector<std::uint8_t> block(std::size_t{64} * 1024);
    for (std::int64_t end = size; end > start && size - end <= most;) {
        const auto count = std::min<std::int64_t>(end - start, static_cast<std::int64_t>(block.size()));
        std::size_t last = readFully(fd, block.data(), static_cast<std::size_t>(count), end - count);
        while (last > 0 && block[last - 1] == 0) {
            --last;
        }
        if (last > 0) {
            const std::int64_t used = end - count + static_cast<std::int64_t>(last);
            return size - used >= kFewestZeros && size - used <= most ? used : size;
        }
        end -= count;
    }
    return size;
}

/// Whether nothing is in the file but zeros.
bool isAllZeros(int fd) {
    std::vector<std::uint8_t> block(std::size_t{1} << 20);
    std::int64_t offset = 0;
    while (const std::size_t read = readFully(fd, block.data(), block.size(), offset)) {
        if (std::any_of(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(read),
                        [](std::uint8_t byte) { return byte != 0; })) {
            return false;
        }
        offset += static_cast<std::int64_t>(read);
    }
    return true;
}

std::int64_t zerosOf(double bytesPerSecond) {
    return static_cast<std::int64_t>(kMostZeroSeconds * std::min(bytesPerSecond, 1e6));
}

void put(std::vector<std::uint8_t>& bytes, std::size_t offset, const ByteWriter& numbers) {
    std::copy(numbers.data().begin(), numbers.data().end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

/// The lengths in everything that stands before the sound, for a file that ends there.
void putWavLengths(std::vector<std::uint8_t>& start, const WavHeader& wav, std::int64_t end) {
    constexpr std::uint32_t kNoLength = 0xffffffff;
    constexpr std::uint32_t kLongLengthsBytes = 28;
    const auto dataBytes = static_cast<std::uint64_t>(end) - start.size();
    const bool isLong = end - 8 >= std::int64_t{kNoLength};
    if (isLong) {
        // The writer keeps room for it, as a chunk of nothing.
        ByteReader room(std::span<const std::uint8_t>(start).subspan(12), std::endian::little);
        const std::uint32_t name = room.code();
        if ((name != fourCharacterCode("JUNK") && name != fourCharacterCode("ds64")) ||
            room.u32() < kLongLengthsBytes || room.rest().size() < kLongLengthsBytes) {
            return;
        }
        ByteWriter lengths(std::endian::little);
        lengths.u64(static_cast<std::uint64_t>(end) - 8);
        lengths.u64(dataBytes);
        lengths.u64(dataBytes / wav.frameBytes);
        put(start, 20, lengths);
        ByteWriter chunk(std::endian::little);
        chunk.code(fourCharacterCode("ds64"));
        put(start, 12, chunk);
    }
    ByteWriter riff(std::endian::little);
    riff.code(isLong ? fourCharacterCode("RF64") : fourCharacterCode("RIFF"));
    riff.u32(isLong ? kNoLength : static_cast<std::uint64_t>(end) - 8);
    put(start, 0, riff);
    ByteWriter data(std::endian::little);
    data.u32(isLong ? kNoLength : dataBytes);
    put(start, start.size() - 4, data);
}

FileResult<void> repairWav(int fd, const WavHeader& wav, const PwriteFunction& pwrite) {
    constexpr std::int64_t kMaximumHeaderBytes = 4096;
    if (wav.isWhole || wav.dataOffset > kMaximumHeaderBytes) {
        return {};
    }
    std::vector<std::uint8_t> start(static_cast<std::size_t>(wav.dataOffset));
    if (readFully(fd, start.data(), start.size(), 0) != start.size()) {
        return resultOfErrno(EIO);
    }
    const double bytesPerSecond = static_cast<double>(wav.sampleRate) * wav.frameBytes;
    const std::int64_t bytes = endBeforeZeros(fd, wav.dataOffset, zerosOf(bytesPerSecond)) - wav.dataOffset;
    const std::int64_t even = wav.frameBytes % 2 == 0 ? wav.frameBytes : 2 * std::int64_t{wav.frameBytes};
    const std::int64_t end = wav.dataOffset + bytes / even * even;
    putWavLengths(start, wav, end);
    const FileResult<void> result = overwrite(fd, pwrite, start, 0);
    return result ? cut(fd, end) : result;
}

FileResult<void> repairCaf(int fd, const CafHeader& caf, const PwriteFunction& pwrite) {
    CafChunk last;
    FileWindow window(fd);
    forEachCafChunk(fd, window, [&](const CafChunk& chunk) {
        last = chunk;
        return true;
    });
    if (!last.isOpen || caf.packetBytes == 0 || caf.packetFrames == 0) {
        return {};
    }
    if (last.type != fourCharacterCode("data")) {
        return cut(fd, last.offset);
    }
    const double bytesPerSecond = caf.sampleRate / caf.packetFrames * caf.packetBytes;
    const std::int64_t there = endBeforeZeros(fd, caf.dataOffset, zerosOf(bytesPerSecond)) - caf.dataOffset;
    const std::int64_t end = caf.dataOffset + std::max<std::int64_t>(0, there) / caf.packetBytes * caf.packetBytes;
    ByteWriter length;
    length.u64(static_cast<std::uint64_t>(end - last.body));
    const FileResult<void> result = overwrite(fd, pwrite, length.data(), last.offset + 4);
    return result ? cut(fd, end) : result;
}

FileResult<void> repairMp4(int fd, const Mp4Movie& movie, const PwriteFunction& pwrite) {
    if (!movie.isFragmented) {
        return {};
    }
    FileResult<void> result = cut(fd, endBeforeZeros(fd, movie.box.end, kMostZeros));
    if (result && headerDuration(fd).value_or(0) > 0) {
        // What it does not understand, or has no room for, plays as far as it did.
        static_cast<void>(finalizeMp4(fd, pwrite));
    }
    return result;
}

FileResult<void> repairAdts(int fd, int rate) {
    constexpr std::int64_t kLongestFrame = 8191;
    constexpr std::int64_t kLastBytes = 16 * kLongestFrame;
    const std::int64_t zeros = endBeforeZeros(fd, 0, kMostZeros);
    AdtsScanner scanner(fd, rate, static_cast<std::size_t>(kLastBytes));
    std::int64_t end = std::max<std::int64_t>(0, zeros - kLastBytes);
    scanner.seek(end);
    // Behind a gap a frame counts only for the one that follows it, even when that is torn.
    bool isInStep = false;
    for (auto found = scanner.next(); found && found->offset < zeros; found = scanner.next()) {
        isInStep = found->offset == end;
        end = found->offset + found->frame.bytes;
    }
    return isInStep && zeros - end < kLongestFrame ? cut(fd, end) : FileResult<void>();
}

std::optional<AdtsFrame> firstAdtsFrame(int fd) {
    std::array<std::uint8_t, kAdtsHeaderBytes> start{};
    return readFully(fd, start.data(), start.size(), 0) == start.size() ? readAdtsFrame(start.data()) : std::nullopt;
}

FileResult<void> repairAny(int fd, const PwriteFunction& pwrite) {
    if (const auto movie = Mp4Movie::read(fd)) {
        return repairMp4(fd, *movie, pwrite);
    }
    if (const auto wav = readWavHeader(fd)) {
        return repairWav(fd, *wav, pwrite);
    }
    if (const auto caf = readCafHeader(fd)) {
        return repairCaf(fd, *caf, pwrite);
    }
    const auto frame = firstAdtsFrame(fd);
    return frame ? repairAdts(fd, frame->rate) : FileResult<void>();
}

}  // namespace

FileResult<bool> repairSound(int fd, const PwriteFunction& pwrite) {
    if (const FileResult<void> result = repairAny(fd, pwrite); !result) {
        return tl::unexpected(result.error());
    }
    // An encoder's first frame stands before the sound.
    const auto frame = firstAdtsFrame(fd);
    const bool isSingle = frame && frame->bytes >= regularFileSize(fd);
    if (!isSingle && headerDuration(fd).value_or(0) > 0) {
        return true;
    }
    return regularFileSize(fd) < kMuch || isAllZeros(fd) ? FileResult<bool>(false)
                                                         : fileFailure("The recording cannot be understood.");
}

}  // namespace tavi
