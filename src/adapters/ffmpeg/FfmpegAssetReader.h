#pragma once

#include <vector>

#include "platform/AssetReader.h"
#include "platform/ExtAudioFile.h"

namespace tavi {

/// Decodes through the reader of sound files.
class FfmpegAssetReader : public AssetReader {
public:
    explicit FfmpegAssetReader(const Asset& asset) : m_asset(asset) {}

    bool startReading() override;
    std::optional<SampleBuffer> copyNextSampleBuffer() override;
    void cancelReading() override;
    AssetReaderStatus status() const override { return m_status; }
    Error error() const override { return m_error; }

private:
    bool fail(const QString& text);

    Asset m_asset;
    AssetReaderStatus m_status = AssetReaderStatus::Unknown;
    Error m_error;
    std::unique_ptr<ExtAudioFile> m_file;
    std::uint32_t m_channels = 0;
    std::int64_t m_position = 0;
    std::vector<std::int16_t> m_samples;
};

}  // namespace tavi
