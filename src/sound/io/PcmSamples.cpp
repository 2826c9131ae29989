#include "sound/io/PcmSamples.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace tavi {

namespace {

using Kind = PcmEncoding::Kind;

constexpr std::size_t bytesOf(Kind kind) {
    switch (kind) {
        case Kind::Unsigned8:
        case Kind::Signed8:
            return 1;
        case Kind::Signed16:
            return 2;
        case Kind::Signed24:
            return 3;
        default:
            return 4;
    }
}

template <class T>
T swapped(T value) {
    if constexpr (sizeof(T) == 2) {
        return static_cast<T>(__builtin_bswap16(value));
    } else {
        return static_cast<T>(__builtin_bswap32(value));
    }
}

template <class T, bool kSwap>
T load(const std::uint8_t* at) {
    T value;
    std::memcpy(&value, at, sizeof value);
    return kSwap ? swapped(value) : value;
}

template <class T, bool kSwap>
void store(std::uint8_t* at, T value) {
    value = kSwap ? swapped(value) : value;
    std::memcpy(at, &value, sizeof value);
}

template <Kind kKind, bool kSwap>
float decode(const std::uint8_t* at) {
    if constexpr (kKind == Kind::Unsigned8) {
        return static_cast<float>(static_cast<int>(*at) - 128) * (1.0F / 128);
    } else if constexpr (kKind == Kind::Signed8) {
        return static_cast<float>(static_cast<std::int8_t>(*at)) * (1.0F / 128);
    } else if constexpr (kKind == Kind::Signed16) {
        return static_cast<float>(static_cast<std::int16_t>(load<std::uint16_t, kSwap>(at))) * (1.0F / 32768);
    } else if constexpr (kKind == Kind::Signed24) {
        const auto value = static_cast<std::uint32_t>(kSwap ? at[2] : at[0]) << 8 |
                           static_cast<std::uint32_t>(at[1]) << 16 |
                           static_cast<std::uint32_t>(kSwap ? at[0] : at[2]) << 24;
        return static_cast<float>(static_cast<std::int32_t>(value)) * (1.0F / 2147483648.0F);
    } else if constexpr (kKind == Kind::Signed32) {
        return static_cast<float>(static_cast<std::int32_t>(load<std::uint32_t, kSwap>(at))) * (1.0F / 2147483648.0F);
    } else {
        const auto value = std::bit_cast<float>(load<std::uint32_t, kSwap>(at));
        // False for NaN, too.
        return std::abs(value) <= 3.0e38F ? value : 0.0F;
    }
}

template <Kind kKind, bool kSwap>
void encode(float value, std::uint8_t* at) {
    if constexpr (kKind == Kind::Float32) {
        store<std::uint32_t, kSwap>(at, std::bit_cast<std::uint32_t>(value));
        return;
    }
    constexpr int kBits = static_cast<int>(bytesOf(kKind) * 8);
    constexpr double kScale = static_cast<double>(std::int64_t{1} << (kBits - 1));
    const double scaled = std::isnan(value) ? 0.0 : std::nearbyint(static_cast<double>(value) * kScale);
    const auto sample = static_cast<std::int32_t>(std::clamp(scaled, -kScale, kScale - 1));
    const auto bits = static_cast<std::uint32_t>(sample);
    if constexpr (kKind == Kind::Unsigned8) {
        *at = static_cast<std::uint8_t>(sample + 128);
    } else if constexpr (kKind == Kind::Signed8) {
        *at = static_cast<std::uint8_t>(bits);
    } else if constexpr (kKind == Kind::Signed16) {
        store<std::uint16_t, kSwap>(at, static_cast<std::uint16_t>(bits));
    } else if constexpr (kKind == Kind::Signed24) {
        at[kSwap ? 2 : 0] = static_cast<std::uint8_t>(bits);
        at[1] = static_cast<std::uint8_t>(bits >> 8);
        at[kSwap ? 0 : 2] = static_cast<std::uint8_t>(bits >> 16);
    } else {
        store<std::uint32_t, kSwap>(at, bits);
    }
}

template <Kind kKind, bool kSwap>
struct Codec {
    static constexpr std::size_t kBytes = bytesOf(kKind);

    static void unpack(const std::uint8_t* from, std::size_t stride, float* to, std::size_t count) {
        // The compiler makes vector code of the strides that it knows.
        if (stride == 1) {
            for (std::size_t i = 0; i < count; ++i) {
                to[i] = decode<kKind, kSwap>(from + i * kBytes);
            }
        } else if (stride == 2) {
            for (std::size_t i = 0; i < count; ++i) {
                to[i] = decode<kKind, kSwap>(from + i * 2 * kBytes);
            }
        } else {
            for (std::size_t i = 0; i < count; ++i) {
                to[i] = decode<kKind, kSwap>(from + i * stride * kBytes);
            }
        }
    }

    static void pack(const float* from, std::uint8_t* to, std::size_t stride, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            encode<kKind, kSwap>(from[i], to + i * stride * kBytes);
        }
    }
};

template <class Visit>
void withCodec(PcmEncoding encoding, const Visit& visit) {
    const auto choose = [&]<Kind kKind>() {
        encoding.isBigEndian ? visit(Codec<kKind, true>()) : visit(Codec<kKind, false>());
    };
    switch (encoding.kind) {
        case Kind::Unsigned8:
            return visit(Codec<Kind::Unsigned8, false>());
        case Kind::Signed8:
            return visit(Codec<Kind::Signed8, false>());
        case Kind::Signed16:
            return choose.template operator()<Kind::Signed16>();
        case Kind::Signed24:
            return choose.template operator()<Kind::Signed24>();
        case Kind::Signed32:
            return choose.template operator()<Kind::Signed32>();
        case Kind::Float32:
            return choose.template operator()<Kind::Float32>();
    }
}

}  // namespace

std::size_t PcmEncoding::bytes() const {
    return bytesOf(kind);
}

std::optional<PcmEncoding> PcmEncoding::of(const AudioStreamBasicDescription& format) {
    const bool isPlanar = (format.formatFlags & kAudioFormatFlagIsNonInterleaved) != 0;
    const std::uint32_t samples = isPlanar ? 1 : format.channelsPerFrame;
    if (format.formatID != kAudioFormatLinearPCM || format.framesPerPacket != 1 || format.bitsPerChannel % 8 != 0 ||
        samples == 0 || format.bytesPerFrame != std::uint64_t{format.bitsPerChannel} / 8 * samples ||
        format.bytesPerPacket != format.bytesPerFrame) {
        return std::nullopt;
    }
    PcmEncoding encoding;
    encoding.isBigEndian = (format.formatFlags & kAudioFormatFlagIsBigEndian) != 0;
    const bool isSigned = (format.formatFlags & kAudioFormatFlagIsSignedInteger) != 0;
    if ((format.formatFlags & kAudioFormatFlagIsFloat) != 0) {
        encoding.kind = Kind::Float32;
        return format.bitsPerChannel == 32 && !isSigned ? std::optional(encoding) : std::nullopt;
    }
    if (format.bitsPerChannel == 8) {
        encoding.kind = isSigned ? Kind::Signed8 : Kind::Unsigned8;
        encoding.isBigEndian = false;
        return encoding;
    }
    if (!isSigned || format.bitsPerChannel < 16 || format.bitsPerChannel > 32) {
        return std::nullopt;
    }
    encoding.kind = format.bitsPerChannel == 16   ? Kind::Signed16
                    : format.bitsPerChannel == 24 ? Kind::Signed24
                                                  : Kind::Signed32;
    return encoding;
}

void unpackPcm(PcmEncoding encoding, const void* from, std::size_t stride, float* to, std::size_t count) {
    withCodec(encoding, [&](auto codec) { codec.unpack(static_cast<const std::uint8_t*>(from), stride, to, count); });
}

void packPcm(PcmEncoding encoding, const float* from, void* to, std::size_t stride, std::size_t count) {
    withCodec(encoding, [&](auto codec) { codec.pack(from, static_cast<std::uint8_t*>(to), stride, count); });
}

}  // namespace tavi
