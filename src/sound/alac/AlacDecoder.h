#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tavi {

/// Decodes packets of Apple Lossless with 16 bits and one or two channels (Apple Lossless Format Description), which
/// takes about half of the time that libavcodec takes. It refuses what it does not understand completely. No packet
/// depends on another. One thread at a time.
class AlacDecoder {
public:
    /// cookie is the box "alac" of the sample description, with its header. Nothing for other depths and channels.
    static std::optional<AlacDecoder> create(std::span<const std::uint8_t> cookie);

    int channels() const { return m_channels; }
    /// Decodes a packet; kPadding bytes after its end must be readable, too. Returns the number of samples of each
    /// channel; 0 when it refuses.
    int decode(std::span<const std::uint8_t> packet);
    static constexpr std::size_t kPadding = 16;
    /// The samples of a channel, until the next packet.
    const std::int32_t* samples(int channel) const { return m_samples[static_cast<std::size_t>(channel)].data(); }

private:
    static constexpr int kMaximumOrder = 32;

    class BitReader;
    struct Predictor {
        int kind = 0;
        int shift = 0;
        int riceFactor = 0;
        int order = 0;
        std::array<std::int32_t, kMaximumOrder> coefficients{};
    };

    AlacDecoder() = default;

    bool decodeElement(BitReader& bits, int channels, int& count);
    bool readPredictor(BitReader& bits, Predictor& predictor) const;
    /// Reads count prediction errors of so many bits.
    bool readErrors(BitReader& bits, int riceFactor, int sampleBits, int count);
    bool predict(Predictor& predictor, int sampleBits, int count, std::int32_t* out) const;

    int m_frameLength = 0;
    int m_historyFactor = 0;
    int m_initialHistory = 0;
    int m_riceLimit = 0;
    int m_channels = 0;
    std::vector<std::int32_t> m_errors;
    std::array<std::vector<std::int32_t>, 2> m_samples;
};

}  // namespace tavi
