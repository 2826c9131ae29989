#pragma once

#include <cstdint>
#include <future>
#include <vector>

#include "platform/AssetReader.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// Reads a file as 16-bit samples. Long sound that has to be decoded and can be sought in is read by two decoders,
/// which take turns in stretches of some seconds and work ahead on threads of their own. Noise that AAC substitutes is
/// not the same in every such stretch as in one pass.
class FfmpegAssetReader : public AssetReader {
public:
    explicit FfmpegAssetReader(const Asset& asset) : m_asset(asset) {}

    bool startReading() override;
    std::optional<SampleBuffer> copyNextSampleBuffer() override;
    void cancelReading() override;
    AssetReaderStatus status() const override { return m_status; }
    Error error() const override { return m_error; }

private:
    using Samples = std::vector<std::int16_t>;

    struct Decoder {
        std::unique_ptr<ExtAudioFile> file;
        /// Where its next stretch begins.
        std::int64_t start = 0;
        /// The stretch that it works on. Ends before the file does.
        std::future<Samples> ahead;
    };

    /// Opens the file for that decoder; false where that cannot be.
    bool open(Decoder& decoder);
    /// Has it begin with its next stretch.
    void readAhead(Decoder& decoder) const;

    Asset m_asset;
    AssetReaderStatus m_status = AssetReaderStatus::Unknown;
    Error m_error;
    std::uint32_t m_channels = 0;
    /// One or two, and which one's turn it is.
    std::vector<Decoder> m_decoders;
    std::size_t m_turn = 0;
    Samples m_samples;
    std::int64_t m_position = 0;
};

}  // namespace tavi
