#include "sound/wav/WavWriter.h"

#include "platform/AudioTypes.h"
#include "sound/io/Bytes.h"

namespace tavi {

std::vector<std::uint8_t> wavHeader(std::span<const std::uint8_t> format, std::uint64_t dataBytes,
                                    std::uint64_t frames) {
    constexpr std::uint64_t kNoLength = 0xffffffff;
    constexpr std::uint64_t kLongSizesBytes = 28;
    const std::uint64_t padding = format.size() & 1;
    std::uint64_t size = 4 + 8 + format.size() + padding + 8 + dataBytes + (dataBytes & 1);
    const bool isLong = size > kNoLength;
    ByteWriter header(std::endian::little);
    header.code(isLong ? fourCharacterCode("RF64") : fourCharacterCode("RIFF"));
    header.u32(isLong ? kNoLength : size);
    header.code(fourCharacterCode("WAVE"));
    if (isLong) {
        size += 8 + kLongSizesBytes;
        header.code(fourCharacterCode("ds64"));
        header.u32(kLongSizesBytes);
        header.u64(size);
        header.u64(dataBytes);
        header.u64(frames);
        header.u32(0);
    }
    header.code(fourCharacterCode("fmt "));
    header.u32(format.size());
    header.bytes(format);
    if (padding > 0) {
        header.u8(0);
    }
    header.code(fourCharacterCode("data"));
    header.u32(isLong ? kNoLength : dataBytes);
    return header.release();
}

}  // namespace tavi
