#include "sound/alac/AlacDecoder.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace tavi {

namespace {

constexpr int kSampleBits = 16;
constexpr int kMaximumFrameLength = 1 << 16;

std::int32_t signExtended(std::int32_t value, int bits) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value) << (32 - bits)) >> (32 - bits);
}

int signOf(std::int32_t value) {
    return (value > 0) - (value < 0);
}

/// Predicts each sample from the kOrder samples before it, and adapts the coefficients by the signs of the errors. With
/// the order known the compiler keeps them in registers.
template <int kOrder>
void predictFrom(const std::int32_t* errors, std::int32_t* coefficients, int shift, int bits, int first, int count,
                 std::int32_t* out) {
    std::array<std::int32_t, kOrder> gains;
    std::copy_n(coefficients, kOrder, gains.begin());
    const std::int32_t half = 1 << (shift - 1);
    for (int i = first; i < count; ++i) {
        const std::int32_t* before = out + i - kOrder;
        const std::int32_t base = before[-1];
        std::array<std::int32_t, kOrder> steps;
        std::uint32_t sum = 0;
        for (std::size_t j = 0; j < kOrder; ++j) {
            steps[j] = before[j] - base;
            sum += static_cast<std::uint32_t>(steps[j]) * static_cast<std::uint32_t>(gains[j]);
        }
        std::int32_t error = errors[i];
        const auto predicted =
            static_cast<std::int32_t>((std::int64_t{static_cast<std::int32_t>(sum)} + half) >> shift);
        out[i] = signExtended(
            static_cast<std::int32_t>(static_cast<std::uint32_t>(predicted) + static_cast<std::uint32_t>(base) +
                                      static_cast<std::uint32_t>(error)),
            bits);
        // Coefficient after coefficient, until their parts add up to the error.
        if (error > 0) {
            for (std::size_t j = 0; j < kOrder && error > 0; ++j) {
                gains[j] += signOf(steps[j]);
                error -= (std::abs(steps[j]) >> shift) * static_cast<int>(j + 1);
            }
        } else if (error < 0) {
            for (std::size_t j = 0; j < kOrder && error < 0; ++j) {
                gains[j] -= signOf(steps[j]);
                error -= (-std::abs(steps[j]) >> shift) * static_cast<int>(j + 1);
            }
        }
    }
    std::copy_n(gains.begin(), kOrder, coefficients);
}

/// Turns a mixture and the difference of two channels into the channels. Without signs: what a hostile packet names may
/// be larger than any sound, and then wraps.
void unmix(int shift, int weight, int count, std::int32_t* mixture, std::int32_t* differences) {
    for (int i = 0; i < count; ++i) {
        const auto difference = static_cast<std::uint32_t>(differences[i]);
        const auto weighted = static_cast<std::int32_t>(difference * static_cast<std::uint32_t>(weight));
        const std::uint32_t right =
            static_cast<std::uint32_t>(mixture[i]) - static_cast<std::uint32_t>(weighted >> shift);
        mixture[i] = static_cast<std::int32_t>(right + difference);
        differences[i] = static_cast<std::int32_t>(right);
    }
}

}  // namespace

/// Bits, the high one of a byte first. Reads beyond the end give bits without meaning; isPastEnd() tells afterwards.
class AlacDecoder::BitReader {
public:
    explicit BitReader(std::span<const std::uint8_t> bytes) : m_bytes(bytes.data()), m_end(bytes.size() * 8) {}

    bool isPastEnd() const { return m_position > m_end; }
    /// The next bits, the first one highest; at least 57 of the 64 are valid.
    std::uint64_t word() const {
        std::uint64_t value;
        std::memcpy(&value, m_bytes + std::min(m_position, m_end) / 8, sizeof value);
        if constexpr (std::endian::native == std::endian::little) {
            value = __builtin_bswap64(value);
        }
        return value << (m_position % 8);
    }
    void skip(unsigned count) { m_position += count; }
    std::uint32_t take(unsigned count) {
        const auto value = static_cast<std::uint32_t>(word() >> (64 - count));
        skip(count);
        return value;
    }

private:
    const std::uint8_t* m_bytes;
    std::size_t m_end;
    std::size_t m_position = 0;
};

std::optional<AlacDecoder> AlacDecoder::create(std::span<const std::uint8_t> cookie) {
    if (cookie.size() < 36 || std::memcmp(cookie.data() + 4, "alac", 4) != 0 || cookie[17] != kSampleBits ||
        cookie[21] < 1 || cookie[21] > 2 || cookie[20] < 1 || cookie[20] > 24) {
        return std::nullopt;
    }
    AlacDecoder decoder;
    decoder.m_frameLength = cookie[12] << 24 | cookie[13] << 16 | cookie[14] << 8 | cookie[15];
    decoder.m_historyFactor = cookie[18];
    decoder.m_initialHistory = cookie[19];
    decoder.m_riceLimit = cookie[20];
    decoder.m_channels = cookie[21];
    if (decoder.m_frameLength < 1 || decoder.m_frameLength > kMaximumFrameLength) {
        return std::nullopt;
    }
    decoder.m_errors.resize(static_cast<std::size_t>(decoder.m_frameLength));
    for (auto& samples : decoder.m_samples) {
        samples.resize(static_cast<std::size_t>(decoder.m_frameLength));
    }
    return decoder;
}

int AlacDecoder::decode(std::span<const std::uint8_t> packet) {
    constexpr std::uint32_t kSingle = 0;
    constexpr std::uint32_t kPair = 1;
    constexpr std::uint32_t kEnd = 7;
    BitReader bits(packet);
    const std::uint32_t kind = bits.take(3);
    int count = 0;
    const bool isOurs = (kind == kSingle && m_channels == 1) || (kind == kPair && m_channels == 2);
    if (!isOurs || !decodeElement(bits, m_channels, count)) {
        return 0;
    }
    return bits.take(3) == kEnd && !bits.isPastEnd() ? count : 0;
}

bool AlacDecoder::decodeElement(BitReader& bits, int channels, int& count) {
    bits.skip(4 + 12);
    const bool hasSize = bits.take(1) != 0;
    const bool hasLowBytes = bits.take(2) != 0;
    const bool isEscaped = bits.take(1) != 0;
    if (hasLowBytes || isEscaped) {
        return false;
    }
    const std::uint32_t size = hasSize ? bits.take(32) : static_cast<std::uint32_t>(m_frameLength);
    if (size < 1 || size > static_cast<std::uint32_t>(m_frameLength)) {
        return false;
    }
    count = static_cast<int>(size);
    const auto mixShift = static_cast<int>(bits.take(8));
    const auto mixWeight = static_cast<std::int8_t>(bits.take(8));
    std::array<Predictor, 2> predictors;
    for (int channel = 0; channel < channels; ++channel) {
        if (!readPredictor(bits, predictors[static_cast<std::size_t>(channel)])) {
            return false;
        }
    }
    const int sampleBits = kSampleBits + channels - 1;
    for (std::size_t channel = 0; channel < static_cast<std::size_t>(channels); ++channel) {
        Predictor& predictor = predictors[channel];
        if (!readErrors(bits, predictor.riceFactor, sampleBits, count) ||
            !predict(predictor, sampleBits, count, m_samples[channel].data())) {
            return false;
        }
    }
    if (channels == 2 && mixWeight != 0) {
        if (mixShift > 31) {
            return false;
        }
        unmix(mixShift, mixWeight, count, m_samples[0].data(), m_samples[1].data());
    }
    return true;
}

bool AlacDecoder::readPredictor(BitReader& bits, Predictor& predictor) const {
    predictor.kind = static_cast<int>(bits.take(4));
    predictor.shift = static_cast<int>(bits.take(4));
    predictor.riceFactor = static_cast<int>(bits.take(3));
    predictor.order = static_cast<int>(bits.take(5));
    for (int i = predictor.order - 1; i >= 0; --i) {
        predictor.coefficients[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(bits.take(16));
    }
    return predictor.kind == 0 && predictor.shift > 0 && !bits.isPastEnd();
}

bool AlacDecoder::readErrors(BitReader& bits, int riceFactor, int sampleBits, int count) {
    constexpr std::uint32_t kMaximumHistory = 0xffff;
    const auto limit = static_cast<unsigned>(m_riceLimit);
    const auto factor = static_cast<std::uint32_t>(riceFactor * m_historyFactor / 4);
    const auto readNumber = [&bits](unsigned k, unsigned escapeBits) {
        const std::uint64_t word = bits.word();
        const auto ones = static_cast<unsigned>(std::countl_one(word));
        if (ones > 8) {
            bits.skip(9 + escapeBits);
            return static_cast<std::uint32_t>(word << 9 >> (64 - escapeBits));
        }
        if (k == 1) {
            bits.skip(ones + 1);
            return ones;
        }
        const auto rest = static_cast<std::uint32_t>(word << (ones + 1) >> (64 - k));
        bits.skip(ones + k + (rest > 1 ? 1 : 0));
        return (ones << k) - ones + (rest > 1 ? rest - 1 : 0);
    };
    auto history = static_cast<std::uint32_t>(m_initialHistory);
    std::uint32_t carried = 0;
    std::int32_t* errors = m_errors.data();
    for (int i = 0; i < count; ++i) {
        const unsigned k = std::min(static_cast<unsigned>(std::bit_width((history >> 9) + 3)) - 1, limit);
        const std::uint32_t number = readNumber(k, static_cast<unsigned>(sampleBits)) + carried;
        carried = 0;
        errors[i] = static_cast<std::int32_t>(number >> 1 ^ (0U - (number & 1)));
        history = number > kMaximumHistory ? kMaximumHistory : history + number * factor - (history * factor >> 9);
        if (history < 128 && i + 1 < count) {
            const unsigned level = history > 0 ? static_cast<unsigned>(std::bit_width(history)) - 1 : 0;
            const std::uint32_t zeros = readNumber(std::min(7 - level + ((history + 16) >> 6), limit), 16);
            if (zeros > static_cast<std::uint32_t>(count - i - 1)) {
                return false;
            }
            std::fill_n(errors + i + 1, zeros, 0);
            i += static_cast<int>(zeros);
            carried = zeros < 0xffff ? 1 : 0;
            history = 0;
        }
        if (bits.isPastEnd()) {
            return false;
        }
    }
    return true;
}

bool AlacDecoder::predict(Predictor& predictor, int sampleBits, int count, std::int32_t* out) const {
    constexpr int kSimpleDifferences = 31;
    const std::int32_t* errors = m_errors.data();
    if (predictor.order == 0) {
        std::copy_n(errors, count, out);
        return true;
    }
    out[0] = errors[0];
    const int first = predictor.order == kSimpleDifferences ? count : std::min(predictor.order + 1, count);
    for (int i = 1; i < first; ++i) {
        out[i] = signExtended(out[i - 1] + errors[i], sampleBits);
    }
    const auto run = [&]<int kOrder>() {
        predictFrom<kOrder>(errors, predictor.coefficients.data(), predictor.shift, sampleBits, first, count, out);
        return true;
    };
    switch (predictor.order) {
        case kSimpleDifferences:
            return true;
        case 4:
            return run.operator()<4>();
        case 5:
            return run.operator()<5>();
        case 6:
            return run.operator()<6>();
        case 8:
            return run.operator()<8>();
        default:
            return false;
    }
}

}  // namespace tavi
